// The lists and the box for financed points.

#include "Lists.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using ChoiceLists = WindowTest;

TEST_F(ChoiceLists, AreFilledOnlyWhileTheyAreEmpty) {
    Open();
    QComboBox list;
    FillFrequencyList(list);
    EXPECT_EQ(list.count(), 4);
    EXPECT_EQ(list.currentIndex(), -1);
    list.setCurrentIndex(2);
    FillFrequencyList(list);
    FillLoanTypeList(list);
    EXPECT_EQ(list.count(), 4);
    EXPECT_EQ(list.currentIndex(), 2);
    QComboBox other;
    other.addItem(QStringLiteral("mine"));
    FillFrequencyList(other);
    EXPECT_EQ(other.count(), 1);
}

TEST_F(ChoiceLists, StoreWhatIsPicked) {
    Open();
    struct Case {
        QStringView list;
        int index;
        QStringView text;
        std::function<QString()> stored;
    };
    const std::vector<Case> rows = {
        {u"cboLoanType", 1, u"Auto", [&] { return Sheet().LoanType().Text(); }},
        {u"cboLoanType", 0, u"Mortgage", [&] { return Sheet().LoanType().Text(); }},
        {u"cboCurPaymentFrequency", 1, u"Twice a month",
         [&] { return Sheet().CurrentFrequency(); }},
        {u"cboActPaymentFrequency", 3, u"Every four weeks",
         [&] { return Sheet().CurrentActualFrequency(); }},
        {u"cboFrequency(2)", 2, u"Every two weeks",
         [&] { return Sheet().OfferOfRow(Row{2}).Frequency(); }},
    };
    for (const auto& row : rows) {
        Choose(row.list, row.index);
        EXPECT_EQ(Text(row.list), row.text);
        EXPECT_FALSE(row.stored().isEmpty()) << row.text.toString().toStdString();
        Tab();
        EXPECT_EQ(Text(row.list), row.text);
        EXPECT_TRUE(row.stored() == row.text || row.stored() == row.text.left(1))
            << row.stored().toStdString();
    }
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_F(ChoiceLists, CanBeChosenFromByKeyAlone) {
    Open();
    Fill(u"txtLoanAmount", u"100000");
    Fill(u"txtInterestRate(0)", u"6");
    Fill(u"txtTerm(0)", u"30");
    ASSERT_EQ(FocusName(), u"cboFrequency(0)");
    Type(u"t");
    EXPECT_EQ(Text(u"cboFrequency(0)"), u"Twice a month");
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$299.64");
    Press(Qt::Key_Up);
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$599.55");
}

TEST_F(ChoiceLists, LeavingStoresTheEntryShown) {
    Open();
    FillFirstOffer();
    List(u"cboFrequency(0)").setCurrentIndex(3); // set by the program, not picked by the user
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$599.55");
    Click(u"txtLoanAmount");
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$553.39");
}

TEST_F(ChoiceLists, LeftUntouchedTheySetNothing) {
    Open();
    for (const QStringView list : {u"cboLoanType", u"cboCurPaymentFrequency", u"cboFrequency(0)"}) {
        Click(list);
        Press(Qt::Key_Escape);
        ActivateAgain();
        Click(u"txtLoanAmount");
        EXPECT_EQ(Text(list), u"");
    }
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(ChoiceLists, TheFrequencyOfTheLoanHeldTodayDefaultsToMonthly) {
    Open();
    Fill(u"txtCurInterestRate", u"6");
    EXPECT_EQ(Text(u"cboCurPaymentFrequency"), u"Monthly");
    EXPECT_EQ(Text(u"cboActPaymentFrequency"), u"");
}

/// All lists and the date above the offers, and one list of the rows.
constexpr std::array TurnedByNoWheel{
    u"cboLoanName",   u"cboLoanType",    u"cboCurPaymentFrequency", u"cboActPaymentFrequency",
    u"dtNextPayment", u"cboFrequency(0)"};

TEST_F(ChoiceLists, TheWheelChangesNothingAndTakesNoFocus) {
    Open();
    FillFirstOffer();
    Choose(u"cboLoanType", 2);
    Choose(u"cboCurPaymentFrequency", 2);
    Choose(u"cboActPaymentFrequency", 2);
    List(u"cboLoanName").addItems({u"Alpha"_s, u"Beta"_s, u"Gamma"_s});
    Fill(u"cboLoanName", u"Beta");
    for (const QStringView field : TurnedByNoWheel) {
        SCOPED_TRACE(field.toString().toStdString());
        const QString before = Text(field);
        EXPECT_FALSE(before.isEmpty());
        Click(u"txtLoanAmount");
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(u"77");
        Wheel(Control(field), -1);
        Wheel(Control(field), 2);
        EXPECT_EQ(Text(field), before);
        EXPECT_EQ(FocusName(), u"txtLoanAmount");
        EXPECT_EQ(Text(u"txtLoanAmount"), u"77") << "still being typed";
        Control(field).setFocus(Qt::TabFocusReason);
        Wheel(Control(field), -1);
        Wheel(Control(field), 2);
        EXPECT_EQ(Text(field), before) << "with the keyboard in it";
    }
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
}

class PointsBox : public WindowTest {
protected:
    PointsBox() {
        Open();
        FillFirstOffer();
        Fill(u"txtPoints(0)", u"2");
        EXPECT_EQ(Text(u"txtPandI(0)"), u"$599.55");
    }
    bool Ticked() const { return Get<QCheckBox>(u"chkPoints(0)").isChecked(); }
    bool Financed() const { return Sheet().OfferOfRow(Row{0}).FinancePoints(); }
};

TEST_F(PointsBox, AClickFinancesThePointsAndBack) {
    for (const bool financed : {true, false, true}) {
        Click(u"chkPoints(0)");
        EXPECT_EQ(Ticked(), financed);
        EXPECT_EQ(Financed(), financed);
        EXPECT_EQ(Text(u"txtPandI(0)"), financed ? u"$611.54" : u"$599.55");
    }
}

TEST_F(PointsBox, TheSpaceBarDoesTheSame) {
    Click(u"txtPoints(0)");
    BackTab();
    ASSERT_EQ(FocusName(), u"chkPoints(0)");
    Press(Qt::Key_Space);
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$611.54");
}

TEST_F(PointsBox, LeavingItStoresTheStateShown) {
    for (const bool ticked : {true, false}) {
        Click(u"txtPoints(0)");
        BackTab();
        Get<QCheckBox>(u"chkPoints(0)").setChecked(ticked); // not clicked by the user
        EXPECT_EQ(Financed(), !ticked);
        Tab();
        EXPECT_EQ(Financed(), ticked);
        EXPECT_EQ(Text(u"txtPandI(0)"), ticked ? u"$611.54" : u"$599.55");
    }
}

TEST_F(PointsBox, LeftTickedItIsCalculatedAgain) {
    Click(u"chkPoints(0)");
    QLineEdit& result = Edit(u"txtPandI(0)");
    result.setText(QStringLiteral("stale"));
    Click(u"txtLoanAmount");
    EXPECT_EQ(result.text(), u"$611.54");
    Click(u"chkPoints(0)");
    result.setText(QStringLiteral("stale"));
    Click(u"txtLoanAmount");
    EXPECT_EQ(result.text(), u"stale") << "an unticked box that the offer knows of";
}

} // namespace
