// Results are reached, read and copied by keyboard; the tab key still skips them.

#include "FieldWidth.h"
#include "WholeText.h"
#include "WindowFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class ResultsByKeyboard : public WindowTest {
protected:
    ResultsByKeyboard() {
        Open();
        FillFirstOffer();
    }
};

TEST_F(ResultsByKeyboard, AreBesideTheFieldThatHasTheKeyboard) {
    struct Case {
        QStringView field;
        QStringView result;
    };
    const std::vector<Case> cases = {
        {u"cboLoanName", u"txtMonthlyEscrow"},   {u"txtAnnualInsurance", u"txtMonthlyEscrow"},
        {u"cmdPayoffDate", u"txtMonthlyEscrow"}, {u"txtCurLoanAmount", u"txtCurPayment"},
        {u"dtNextPayment", u"txtCurPayment"},    {u"chkPoints(0)", u"txtPandI(0)"},
        {u"cboFrequency(3)", u"txtPandI(3)"},    {u"txtWho(5)", u"txtPandI(5)"},
    };
    for (const Case& tested : cases) {
        Control(tested.field).setFocus(Qt::TabFocusReason);
        Press(Qt::Key_F6);
        EXPECT_EQ(FocusName(), tested.result) << tested.field.toString().toStdString();
        Press(Qt::Key_F6);
        EXPECT_EQ(FocusName(), tested.field) << "and back";
    }
}

TEST_F(ResultsByKeyboard, AreWalkedThroughByTheArrowKeys) {
    struct Case {
        Qt::Key key;
        QStringView result;
    };
    const std::vector<Case> inTheRows = {
        {Qt::Key_Right, u"txtPayment(0)"},   {Qt::Key_Right, u"txtPayoffDate(0)"},
        {Qt::Key_Right, u"txtInterest(0)"},  {Qt::Key_Right, u"txtInterest(0)"},
        {Qt::Key_Up, u"txtInterest(0)"},     {Qt::Key_Down, u"txtInterest(1)"},
        {Qt::Key_Left, u"txtPayoffDate(1)"}, {Qt::Key_Up, u"txtPayoffDate(0)"},
    };
    Click(u"txtTerm(0)");
    Press(Qt::Key_F6);
    for (const Case& tested : inTheRows) {
        Press(tested.key);
        EXPECT_EQ(FocusName(), tested.result);
    }
    const std::vector<Case> inTheBand = {
        {Qt::Key_Down, u"txtCurAmountLeft"}, {Qt::Key_Right, u"txtCurInterestLeft"},
        {Qt::Key_Down, u"txtCurPayoffDate"}, {Qt::Key_Down, u"txtCurPayoffDate"},
        {Qt::Key_Up, u"txtCurInterestLeft"},
    };
    Click(u"txtCurrentBalance");
    Press(Qt::Key_F6);
    for (const Case& tested : inTheBand) {
        Press(tested.key);
        EXPECT_EQ(FocusName(), tested.result);
    }
    EXPECT_EQ(RowCount(), 6) << "reading appends no row";
}

TEST_F(ResultsByKeyboard, AreSelectedAndCopied) {
    Click(u"txtTerm(0)");
    Press(Qt::Key_F6);
    EXPECT_EQ(Edit(u"txtPandI(0)").selectedText(), u"$599.55");
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"$599.55");
    Press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(), u"txtPandI(0)") << "a part can be selected";
}

TEST_F(ResultsByKeyboard, StoreTheFieldThatIsLeft) {
    Click(u"txtInterestRate(0)");
    Type(u"7");
    Press(Qt::Key_F6);
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"7.000%");
    EXPECT_EQ(Edit(u"txtPandI(0)").selectedText(), Text(u"txtPandI(0)"));
}

TEST_F(ResultsByKeyboard, StayOutWhereTheFieldIsRefused) {
    Click(u"txtInterestRate(0)");
    Paste(u"1.2.3");
    Press(Qt::Key_F6);
    EXPECT_EQ(FocusName(), u"txtInterestRate(0)");
    EXPECT_EQ(SettledMessages().size(), 1);
}

TEST_F(ResultsByKeyboard, AreNoStopsOfTheTabKey) {
    Control(u"cboLoanName").setFocus(Qt::TabFocusReason);
    QStringList visited;
    while (!visited.contains(FocusName())) {
        visited.append(FocusName());
        Tab();
    }
    for (const QStringView result : {u"txtMonthlyEscrow", u"txtCurPayment", u"txtPandI(0)"}) {
        EXPECT_FALSE(visited.contains(result)) << result.toString().toStdString();
    }
}

TEST_F(ResultsByKeyboard, EveryEditHasANameForScreenReaders) {
    for (const int language : {English, Spanish}) {
        SwitchLanguage(language);
        EXPECT_EQ(List(u"cboLoanName").lineEdit()->accessibleName(),
                  language == English ? u"Loan name" : u"Nombre del préstamo");
        EXPECT_EQ(Control(u"dtNextPayment").findChild<QLineEdit*>()->accessibleName(),
                  Control(u"dtNextPayment").accessibleName());
        EXPECT_FALSE(Control(u"dtNextPayment").accessibleName().isEmpty());
    }
}

class WideFigures : public WindowTest {
protected:
    /// The tooltip that the mouse shows over a field.
    QString ToolTipOver(QStringView name) {
        QToolTip::hideText();
        QWidget& control = Control(name);
        const QPoint at = control.rect().center();
        QHelpEvent event(QEvent::ToolTip, at, control.mapToGlobal(at));
        QApplication::sendEvent(&control, &event);
        return QToolTip::text();
    }
};

TEST_F(WideFigures, AreWholeInTheToolTip) {
    Open();
    Fill(u"txtLoanAmount", u"922337203685477.58");
    EXPECT_TRUE(ToolTipOver(u"txtLoanAmount").contains(u"$922,337,203,685,477.58"));
    EXPECT_TRUE(ToolTipOver(u"txtLoanAmount").contains(Control(u"txtLoanAmount").toolTip()));
    Fill(u"txtLoanAmount", u"100000");
    EXPECT_EQ(ToolTipOver(u"txtLoanAmount"), Control(u"txtLoanAmount").toolTip());
    const QString lender = u"A bank with a <b>very</b> long name & a longer one behind it"_s;
    Fill(u"txtWho(0)", lender);
    EXPECT_TRUE(ToolTipOver(u"txtWho(0)").contains(lender.toHtmlEscaped()));
}

} // namespace
