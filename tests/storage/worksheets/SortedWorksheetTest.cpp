// Worksheets with sorted rows: offers are saved in the order of entry.

#include "EnterValues.h"
#include "FileCommands.h"
#include "OfferRows.h"
#include "QuendNames.h"
#include "SortButton.h"
#include "StoreFolder.h"
#include "WindowFixture.h"

#include <QAction>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class SortedWorksheet : public WindowTest {
protected:
    SortedWorksheet() {
        Open();
        m_files = std::make_unique<FileCommands>(Window(), WorksheetStore(m_folder.Store()));
        Fill(u"cboLoanName", u"Home");
        SheetToWrite().SetLoanAmount(Money::FromDouble(100'000));
        Row row{0};
        for (const char* who : {"dear", "middle", "cheap"}) {
            EnterText(SheetToWrite(), {FieldId::Who, row}, QLatin1String(who));
            EnterText(SheetToWrite(), {FieldId::InterestRate, row}, QString::number(7 - row.value));
            EnterText(SheetToWrite(), {FieldId::Term, row}, u"30"_s);
            EnterText(SheetToWrite(), {FieldId::Frequency, row}, u"Monthly"_s);
            ++row.value;
        }
        SheetToWrite().ClearRaisedMarks();
    }
    ~SortedWorksheet() override { m_files.reset(); }

    void Trigger(QStringView entry) {
        Window().findChild<QAction*>(entry.toString())->trigger();
        Settle();
    }
    QStringList Lenders() const {
        return {Text(u"txtWho(0)"), Text(u"txtWho(1)"), Text(u"txtWho(2)")};
    }
    QStringList KeptLenders() const {
        QStringList kept;
        for (const char* name : {"Loan 1 Who", "Loan 2 Who", "Loan 3 Who"}) {
            kept.append(QString::fromStdString(m_folder.Text(StoreFolder::LoanKey("Home"), name)));
        }
        return kept;
    }
    void LoadAgain() {
        const LoadOutcome outcome =
            WorksheetStore(m_folder.Store()).Load(SheetToWrite(), u"Home"_s, [this](Row last) {
                Window().Rows().GrowTo(last);
            });
        EXPECT_TRUE(outcome.exists && outcome.failures.empty());
    }

    const QStringList m_entered{u"dear"_s, u"middle"_s, u"cheap"_s};
    const QStringList m_sorted{u"cheap"_s, u"middle"_s, u"dear"_s};
    StoreFolder m_folder;
    std::unique_ptr<FileCommands> m_files;
};

TEST_F(SortedWorksheet, IsKeptInTheOrderOfEntry) {
    for (const QStringView heading : {u"cmdInterest", u"cmdPayoffDate"}) {
        Click(heading);
        Trigger(u"mnuFileSave");
        EXPECT_EQ(KeptLenders(), m_entered);
        EXPECT_FALSE(Sheet().Dirty());
    }
    Click(u"cmdInterest");
    EXPECT_EQ(Lenders(), m_sorted);
    EXPECT_FALSE(Sheet().Dirty()) << "a sort is nothing to save";
}

TEST_F(SortedWorksheet, KeepsWhatWasEnteredIntoSortedRowsWithItsOffer) {
    Click(u"cmdInterest");
    Fill(u"txtPoints(0)", u"1");
    Fill(u"txtWho(5)", u"new");
    Fill(u"txtPoints(6)", u"2");
    EnterText(SheetToWrite(), {FieldId::Costs, Row{0}}, u"950"_s);
    SwitchLanguage(Spanish);
    Settings settings = Window().GetSettings();
    settings.loansDisplayed = 7;
    Window().ApplySettings(settings);
    Fill(u"txtActualPayment(2)", u"900");
    Trigger(u"mnuFileSave");
    EXPECT_EQ(KeptLenders(), m_entered);
    const auto kept = [&](const char* value) {
        return m_folder.Text(StoreFolder::LoanKey("Home"), value);
    };
    EXPECT_EQ(kept("Loan 3 Points"), "1");
    EXPECT_EQ(kept("Loan 3 Costs"), "950");
    EXPECT_EQ(kept("Loan 1 Points"), "0");
    EXPECT_EQ(kept("Loan 1 ActualPayment"), "900");
    EXPECT_EQ(kept("Loan 4 Who"), "new");
    EXPECT_EQ(kept("Loan 5 Points"), "2");
}

TEST_F(SortedWorksheet, ComesBackInTheOrderOfEntry) {
    Trigger(u"mnuFileSave");
    Click(u"cmdInterest");
    ASSERT_EQ(Lenders(), m_sorted);
    LoadAgain();
    EXPECT_EQ(Lenders(), m_entered);
    EXPECT_EQ(Sheet().Order(), SortOrder::Entry);
    EXPECT_EQ(Get<SortButton>(u"cmdInterest").accessibleDescription(), QString());
}

TEST_F(SortedWorksheet, StartsAfreshInTheOrderOfEntry) {
    Trigger(u"mnuFileSave");
    for (const QStringView entry : {u"mnuFileNew", u"mnuFileDelete"}) {
        LoadAgain();
        Click(u"cmdInterest");
        Messages().WillAnswer({Answer::Yes});
        Trigger(entry);
        EXPECT_EQ(Sheet().Order(), SortOrder::Entry);
        EXPECT_EQ(Get<SortButton>(u"cmdInterest").accessibleDescription(), QString());
        Fill(u"txtWho(0)", u"first");
        EXPECT_EQ(Sheet().Offer({0}).Who(), u"first");
        SheetToWrite().ClearDirty();
    }
}

TEST_F(SortedWorksheet, LendersOfSeveralLinesComeBackWhole) {
    for (const QString& who : {u"Bank\r\nMs. Ñandú, 中文 \U0001F3E0\r\n\ttel. 555\u00A00100"_s,
                               u"one\ntwo"_s, u"\u05D0\u05D1 e\u0301"_s}) {
        EnterText(SheetToWrite(), {FieldId::Who, Row{1}}, who);
        Trigger(u"mnuFileSave");
        LoadAgain();
        EXPECT_EQ(Sheet().Offer({1}).Who(), who);
    }
}

} // namespace
