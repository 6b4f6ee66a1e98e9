// Undo and redo as a user has them: keys, menu, focus, and what the menu says.

#include "EnterValues.h"
#include "QuendNames.h"
#include "RandomCases.h"
#include "WindowFixture.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class Undo : public WindowTest {
protected:
    QAction& Entry(QStringView name) { return *Window().findChild<QAction*>(name.toString()); }
    QString Caption(QStringView name) { return Entry(name).text(); }
    void PressUndo() { Press(Qt::Key_Z, Qt::ControlModifier); }
    void PressRedo() { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
};

TEST_F(Undo, TakesBackEachChangeAndNamesIt) {
    Open();
    FillFirstOffer();
    const struct {
        std::function<void()> change;
        QString name;
        QString control; ///< has the focus afterwards
        QString before;
        QString after;
    } cases[] = {
        {[&] { Fill(u"txtInterestRate(1)", u"7"); }, u"&Undo rate of offer 2"_s,
         u"txtInterestRate(1)"_s, u""_s, u"7.000%"_s},
        {[&] { Fill(u"txtLoanAmount", u"90000"); }, u"&Undo loan amount"_s, u"txtLoanAmount"_s,
         u"$100,000.00"_s, u"$90,000.00"_s},
        {[&] { Choose(u"cboFrequency(1)", 0); }, u"&Undo frequency of offer 2"_s,
         u"cboFrequency(1)"_s, u""_s, u"Monthly"_s},
        {[&] { Fill(u"txtWho(1)", u"Bank"); }, u"&Undo lender of offer 2"_s, u"txtWho(1)"_s, u""_s,
         u"Bank"_s},
        {[&] { Fill(u"txtAnnualTaxes", u"1200"); }, u"&Undo annual taxes"_s, u"txtAnnualTaxes"_s,
         u""_s, u"$1,200.00"_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name.toStdString());
        EXPECT_EQ(Text(c.control), c.before);
        c.change();
        Enter(u"txtCurrentBalance");
        EXPECT_EQ(Text(c.control), c.after);
        EXPECT_EQ(Caption(u"mnuEditUndo"), c.name);
        PressUndo();
        EXPECT_EQ(FocusName(), c.control);
        Enter(u"txtCurrentBalance");
        EXPECT_EQ(Text(c.control), c.before);
        EXPECT_TRUE(Entry(u"mnuEditRedo").isEnabled());
        PressRedo();
        Enter(u"txtCurrentBalance");
        EXPECT_EQ(Text(c.control), c.after);
    }
    EXPECT_EQ(SettledMessages(), QStringList());
}

/// The keys claimed by a text field are the menu's while its text has nothing to undo.
TEST_F(Undo, IsTheTextsWhileSomethingIsTyped) {
    Open();
    Fill(u"txtLoanAmount", u"100000");
    Enter(u"txtLoanAmount");
    Type(u"5");
    PressUndo();
    EXPECT_EQ(Text(u"txtLoanAmount"), u"100000");
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(100'000));
    PressUndo();
    EXPECT_EQ(Sheet().LoanAmount(), Money());
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
    EXPECT_EQ(Text(u"txtLoanAmount"), u""); // in entry form
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(100'000));
    EXPECT_EQ(Text(u"txtLoanAmount"), u"100000");
    Type(u"7");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"7"); // it was all selected
}

TEST_F(Undo, TakesARaisedPaymentBackInSilence) {
    Open();
    FillFirstOffer();
    HurryTimer();
    ASSERT_TRUE(WaitFor([this] { return SettledMessages().size() == 1; }));
    const QString before = Text(u"txtActualPayment(0)");
    Fill(u"txtInterestRate(0)", u"9");
    ASSERT_NE(Text(u"txtActualPayment(0)"), before);
    PressUndo();
    EXPECT_EQ(Text(u"txtActualPayment(0)"), before);
    EXPECT_EQ(FocusName(), u"txtInterestRate(0)");
    EXPECT_EQ(SettledMessages().size(), 1) << "no second notice";
}

/// The notice comes a second later, when the payment may be the earlier one again.
TEST_F(Undo, WithdrawsTheNoticeOfAPayment) {
    Open();
    FillFirstOffer();
    ASSERT_TRUE(Timer1().isActive());
    PressUndo();
    EXPECT_FALSE(Timer1().isActive());
    EXPECT_FALSE(Sheet().PaymentNoticeShown());
}

TEST_F(Undo, ShowsTheRowConcernedWhereverItIsNow) {
    Open();
    SheetToWrite().SetLoanAmount(Money::FromDouble(100'000));
    FillFirstOffer();
    Fill(u"txtInterestRate(1)", u"5");
    Fill(u"txtTerm(1)", u"30");
    Choose(u"cboFrequency(1)", 0);
    Fill(u"txtWho(1)", u"Soon");
    SheetToWrite().SortByInterest();
    SheetToWrite().ShowOffers();
    ASSERT_EQ(Text(u"txtWho(0)"), u"Soon");
    Enter(u"txtLoanAmount");
    QMetaObject::invokeMethod(Window().findChild<QMenu*>(u"mnuEdit"_s), "aboutToShow");
    EXPECT_EQ(Caption(u"mnuEditUndo"), u"&Undo lender of offer 1");
    PressUndo();
    EXPECT_EQ(FocusName(), u"txtWho(0)");
    EXPECT_EQ(Text(u"txtWho(0)"), u"");
}

TEST_F(Undo, StartsAnewWithAWorksheet) {
    Open();
    FillFirstOffer();
    ASSERT_TRUE(Entry(u"mnuEditUndo").isEnabled());
    SheetToWrite().Clear();
    EXPECT_FALSE(Entry(u"mnuEditUndo").isEnabled());
    EXPECT_FALSE(Entry(u"mnuEditRedo").isEnabled());
    EXPECT_EQ(Caption(u"mnuEditUndo"), u"&Undo");
}

TEST_F(Undo, SpeaksTheLanguageOfTheWindow) {
    Open();
    Fill(u"txtInterestRate(1)", u"7");
    SwitchLanguage(Spanish);
    EXPECT_EQ(Caption(u"mnuEditUndo"), u"&Deshacer: tasa de la oferta 2");
    EXPECT_EQ(Caption(u"mnuEditRedo"), u"&Rehacer");
}

/// All that the window shows in its fields.
QStringList Shown(const Loan& window) {
    QStringList texts;
    for (const QLineEdit* edit : window.findChildren<QLineEdit*>()) {
        texts.append(edit->text());
    }
    return texts;
}

/// Keys and clicks of a user in random fields, then as many undone and redone.
TEST_F(Undo, GivesBackTheWindowOfEachStep) {
    ForRandomCases(6, [this](Random& random) {
        Open();
        FillFirstOffer();
        QAction& undo = Entry(u"mnuEditUndo");
        QAction& redo = Entry(u"mnuEditRedo");
        static const std::vector<QString> fields{u"txtLoanAmount"_s,     u"txtInterestRate(0)"_s,
                                                 u"txtTerm(1)"_s,        u"txtPoints(0)"_s,
                                                 u"txtCurLoanAmount"_s,  u"txtCurInterestRate"_s,
                                                 u"txtCurrentBalance"_s, u"txtWho(2)"_s};
        static const std::vector<QString> values{u""_s, u"1"_s, u"5"_s, u"12"_s};
        const auto look = [this] {
            Enter(u"txtAnnualInsurance"); // all others show their values
            return Shown(Window());
        };
        std::vector<QStringList> seen{look()};
        for (int action = 0; action < 12; ++action) {
            const QString field = random.OneOf(fields);
            Enter(field);
            Edit(field).selectAll();
            Press(Qt::Key_Delete);
            Type(random.OneOf(values));
            const QStringList now = look();
            if (now != seen.back()) {
                seen.push_back(now);
            }
        }
        for (std::size_t i = seen.size() - 1; i > 0; --i) {
            ASSERT_TRUE(undo.isEnabled());
            undo.trigger();
            ASSERT_EQ(look(), seen[i - 1]);
        }
        for (std::size_t i = 1; i < seen.size(); ++i) {
            ASSERT_TRUE(redo.isEnabled());
            redo.trigger();
            ASSERT_EQ(look(), seen[i]);
        }
        EXPECT_FALSE(redo.isEnabled());
        HurryTimer();
        SettledMessages();
        Shut();
    });
}

} // namespace
