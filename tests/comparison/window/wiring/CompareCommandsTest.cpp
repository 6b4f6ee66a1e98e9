// The comparison window opens, follows the main window and closes with it.

#include "CompareFixture.h"
#include "EnterValues.h"
#include "Language.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class CompareCommandsTest : public CompareTest {
protected:
    static QString LeftOut() {
        const auto& label = User().Get<QLabel>(u"lblLeftOut");
        return label.isHidden() ? QString() : label.text();
    }
    static QString TitleOfWindow() { return CompareWindow()->windowTitle(); }
};

TEST_F(CompareCommandsTest, OpenOnceAndComeToTheFront) {
    OpenMain();
    EXPECT_EQ(CompareWindow(), nullptr);
    OpenMain(); // the entries are enabled again, for other commands
    FillSheet();
    PressCtrlK();
    ASSERT_TRUE(IsOpen());
    QWidget* const first = CompareWindow();
    User().Activate();
    ActivateAgain();
    PressCtrlK();
    EXPECT_EQ(CompareWindow(), first);
    EXPECT_TRUE(WaitFor([&] { return first->isActiveWindow(); }));
    ActivateAgain();
    first->showMinimized();
    Settle();
    ActivateAgain();
    PressCtrlK();
    EXPECT_FALSE(first->isMinimized());
}

TEST_F(CompareCommandsTest, ShowTheAnswerTheTableAndWhatIsLeftOut) {
    OpenCompare();
    EXPECT_EQ(TitleOfWindow(), u"Compare Offers: Our new home");
    EXPECT_TRUE(Answer().contains(u"Cedar & Sons")) << Answer().toStdString();
    EXPECT_EQ(Column(Figure::Lender),
              (QStringList{u"Cedar & Sons"_s, u"Lakeside"_s, u"The loan held today"_s}));
    EXPECT_TRUE(LeftOut().startsWith(u"Left out:\nNo rate")) << LeftOut().toStdString();
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(CompareCommandsTest, StoreFirstWhatIsBeingTyped) {
    OpenMain();
    FillSheet();
    Enter(u"txtInterestRate(2)");
    Type(u"5");
    PressCtrlK();
    EXPECT_EQ(Column(Figure::Lender).size(), 4);
    CompareWindow()->close();
    ActivateAgain();
    Enter(u"txtInterestRate(2)");
    Type(u"1.2.3");
    PressCtrlK();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(SettledMessages().size(), 1);
}

TEST_F(CompareCommandsTest, FollowEveryChangeOfTheWorksheet) {
    OpenCompare();
    ActivateAgain();
    const QString before = Cell(0, Figure::CostByHorizon);

    Fill(u"txtInterestRate(2)", u"5");
    Settle();
    EXPECT_EQ(Column(Figure::Lender).size(), 4) << "an edit";
    EXPECT_EQ(LeftOut(), QString());
    EXPECT_EQ(Cell(0, Figure::CostByHorizon), before);

    SheetToWrite().SortByInterest();
    SheetToWrite().ShowOffers();
    Settle();
    QStringList rows;
    for (int row = 0; row < 3; ++row) {
        rows << Text(RowName(u"txtWho", row));
    }
    EXPECT_EQ(Column(Figure::Lender).first(3), rows) << "a sort";

    SheetToWrite().Clear();
    Settle();
    EXPECT_EQ(Column(Figure::Lender), QStringList()) << "a new worksheet";
    EXPECT_EQ(TitleOfWindow(), u"Compare Offers");

    FillSheet(); // as loading does
    EXPECT_EQ(Column(Figure::Lender).size(), 3) << "loading";
    EXPECT_EQ(TitleOfWindow(), u"Compare Offers: Our new home");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(CompareCommandsTest, SortByPayoffDateReordersTheRows) {
    OpenCompare();
    ActivateAgain();
    EnterInto(FieldId::ActualPayment, Row{1}, u"9000");
    Click(u"cmdPayoffDate");
    Settle();
    EXPECT_EQ(Text(u"txtWho(0)"), u"Lakeside");
    EXPECT_EQ(Column(Figure::Lender).first(2), (QStringList{u"Lakeside"_s, u"Cedar & Sons"_s}));
}

TEST_F(CompareCommandsTest, SwitchTheLanguageThereAndBack) {
    OpenCompare();
    const auto shown = [] {
        return QStringList{TitleOfWindow(), Answer(), LeftOut(), User().Text(u"cmdExport"),
                           User().Text(u"lblYearsUnit")} +
               TabTitles() + Headings(u"tblCosts") + Column(Figure::Lender);
    };
    ShowPage(2);
    const QStringList english = shown() + Headings(u"tblSchedule");
    ActivateAgain();
    SwitchLanguage(Spanish);
    Settle();
    const QStringList spanish = shown() + Headings(u"tblSchedule");
    EXPECT_EQ(spanish.front(), u"Comparar ofertas: Our new home");
    EXPECT_EQ(TabTitles(), (QStringList{u"Costos"_s, u"A lo largo del tiempo"_s, u"Calendario"_s}));
    for (qsizetype i = 0; i < english.size(); ++i) {
        const bool isName = english[i] == u"Cedar & Sons" || english[i] == u"Lakeside";
        const bool isSame = english[i] == spanish[i];
        EXPECT_TRUE(isName || !isSame || english[i] == u"Total") << english[i].toStdString();
    }
    SwitchLanguage(English);
    Settle();
    EXPECT_EQ(shown() + Headings(u"tblSchedule"), english);
}

TEST_F(CompareCommandsTest, SwitchTheLanguageWhileClosed) {
    OpenCompare();
    CompareWindow()->close();
    ActivateAgain();
    SwitchLanguage(Spanish);
    PressCtrlK();
    EXPECT_EQ(TabTitles().front(), u"Costos");
    EXPECT_EQ(TitleOfWindow(), u"Comparar ofertas: Our new home");
    SwitchLanguage(English);
}

TEST_F(CompareCommandsTest, KeepYearsAndPaymentsInTheSettings) {
    struct {
        int years;
        const char16_t* choice;
        PaymentChoice kept;
    } const table[]{
        {5, u"optIntended", PaymentChoice::Intended}, {5, u"optRequired", PaymentChoice::Required},
        {1, u"optRequired", PaymentChoice::Required}, {50, u"optIntended", PaymentChoice::Intended},
        {7, u"optMonthly", PaymentChoice::Monthly},
    };
    OpenCompare();
    for (const auto& row : table) {
        User().Get<QSpinBox>(u"udYears").setValue(row.years);
        User().Get<QRadioButton>(row.choice).click();
        Settle();
        EXPECT_EQ(Window().GetSettings().compareYears, row.years);
        EXPECT_EQ(Window().GetSettings().comparePayments, row.kept);
        EXPECT_EQ(User().Text(u"lblYearsUnit"), row.years == 1 ? u"year" : u"years");
        EXPECT_EQ(User().Control(u"txtMonthly").isEnabled(), row.kept == PaymentChoice::Monthly);
        const auto expected = Expected();
        for (int i = 0; i < 2; ++i) {
            const auto& figures = expected.offers.at(static_cast<std::size_t>(i)).figures;
            ASSERT_TRUE(figures);
            EXPECT_TRUE(Cell(i, Figure::CostByHorizon).endsWith(Currency(figures->costByHorizon)))
                << row.years << ' ' << Cell(i, Figure::CostByHorizon).toStdString();
            EXPECT_TRUE(
                Cell(i, Figure::PaymentCompared).endsWith(Currency(figures->paymentCompared)));
        }
    }
    EXPECT_FALSE(Sheet().Dirty()) << "settings belong to the user";
    CompareWindow()->close();
    EndCommands();
    EXPECT_EQ(CompareWindow(), nullptr);
}

TEST_F(CompareCommandsTest, ReadNothingWhileClosed) {
    OpenCompare();
    const auto* timer = Commands().findChild<QTimer*>();
    const auto isDue = [&] { return timer != nullptr && timer->isActive(); };
    CompareWindow()->close();
    ActivateAgain();
    const QString before = Cell(0, Figure::Lender);
    EnterInto(FieldId::Who, Row{0}, u"Another");
    EXPECT_FALSE(isDue());
    Settle();
    EXPECT_EQ(Cell(0, Figure::Lender), before);
    PressCtrlK();
    EXPECT_EQ(Cell(0, Figure::Lender), u"Another");
}

TEST_F(CompareCommandsTest, CloseWithTheMainWindow) {
    OpenCompare();
    EXPECT_FALSE(CompareWindow()->testAttribute(Qt::WA_QuitOnClose));
    Window().close();
    EXPECT_EQ(CompareWindow(), nullptr);
    EXPECT_EQ(m_outside.saved, 1);
}

TEST_F(CompareCommandsTest, EndWithTheWindowOpen) {
    OpenCompare();
    EndCommands();
    EXPECT_EQ(CompareWindow(), nullptr);
    EXPECT_EQ(m_outside.saved, 1);
    EXPECT_FALSE(m_outside.columns.isEmpty());
    Fill(u"txtInterestRate(0)", u"7"); // nobody listens any more
    Settle();
}

} // namespace
