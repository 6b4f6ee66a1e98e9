// Amounts that are typed into the comparison window.

#include "CompareFixture.h"
#include "FigureTable.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class CompareEntry : public CompareTest {
protected:
    static QLineEdit& Monthly() { return User().Get<QLineEdit>(u"txtMonthly"); }
    void ChooseMonthly() {
        OpenCompare();
        User().Click(u"optMonthly");
        Settle();
    }
    /// Opens the editor of the costs in a row and types into it.
    static void TypeCosts(int row, QStringView text) {
        auto& table = User().Get<compare::FigureTable>(u"tblCosts");
        table.setFocus();
        table.setCurrentIndex(table.model()->index(row, static_cast<int>(Figure::Costs)));
        table.scrollTo(table.currentIndex());
        User().Press(Qt::Key_F2);
        Settle();
        User().Type(text);
    }
    static QLineEdit* Editor() { return CompareWindow()->findChild<QLineEdit*>(u"txtEntry"_s); }
    Money CostsOf(int row) const {
        return std::get<Money>(Sheet().Value({FieldId::Costs, Row{row}}));
    }
};

TEST_F(CompareEntry, TakesTheSameAmountAMonth) {
    ChooseMonthly();
    User().Fill(u"txtMonthly", u"2000.5");
    EXPECT_EQ(Monthly().text(), u"$2,000.50");
    EXPECT_EQ(Window().GetSettings().compareMonthly, Money::FromDouble(2000.5));
    EXPECT_TRUE(Cell(1, Figure::PaymentCompared).endsWith(u"$2,000.50"))
        << Cell(1, Figure::PaymentCompared).toStdString();
    User().Click(u"txtMonthly");
    Settle();
    EXPECT_EQ(Monthly().text(), u"2000.5") << "the bare number";
    User().Type(u"3000");
    User().Press(Qt::Key_Return);
    Settle();
    EXPECT_TRUE(Cell(1, Figure::PaymentCompared).endsWith(u"$3,000.00"));
    EXPECT_EQ(FocusName(), u"txtMonthly");
    User().Fill(u"txtMonthly", u"");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(CompareEntry, RefusedAmountsKeepTextAndFocus) {
    ChooseMonthly();
    for (const QStringView text : {u"1.2.3", u"99999999999999999999", u"-"}) {
        SCOPED_TRACE(text.toUtf8().toStdString());
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
            Messages().Clear();
            User().Click(u"txtMonthly");
            Settle();
            Monthly().selectAll();
            User().Type(text);
            User().Press(key);
            EXPECT_EQ(SettledMessages().size(), 1);
            EXPECT_EQ(Monthly().text(), text);
            EXPECT_EQ(FocusName(), u"txtMonthly");
            EXPECT_TRUE(Window().GetSettings().compareMonthly.IsZero());
        }
    }
    Messages().Clear();
    EXPECT_FALSE(CompareWindow()->close());
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(SettledMessages().size(), 1);
    User().Get<QRadioButton>(u"optRequired").click(); // gives the text up
    Settle();
    EXPECT_EQ(Monthly().text(), QString());
    EXPECT_TRUE(CompareWindow()->close());
}

TEST_F(CompareEntry, CostsArriveInTheWorksheet) {
    OpenCompare();
    TypeCosts(1, u"1234.5");
    User().Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ(CostsOf(1), Money::FromDouble(1234.5));
    EXPECT_TRUE(Sheet().Dirty());
    EXPECT_EQ(Cell(1, Figure::Costs), u"$1,234.50");
    const auto expected = Expected();
    EXPECT_TRUE(Cell(1, Figure::CostByHorizon)
                    .endsWith(Currency(expected.offers.at(1).figures->costByHorizon)));
    SheetToWrite().SortByPayoffDate();
    SheetToWrite().ShowOffers();
    Settle();
    const auto row = static_cast<int>(Column(Figure::Lender).indexOf(u"Lakeside"));
    TypeCosts(row, u"-5"); // a credit
    User().Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ(std::get<Money>(Sheet().Value(FieldId::Costs, OfferIndex{1})), Money::FromDouble(-5));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(CompareEntry, CostsBeingTypedSurviveAnEditOfTheMainWindow) {
    OpenCompare();
    TypeCosts(1, u"12");
    EnterInto(FieldId::InterestRate, Row{0}, u"6.25");
    Settle();
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->text(), u"12");
    User().Type(u"3");
    User().Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ(CostsOf(1), Money::FromDouble(123));
}

TEST_F(CompareEntry, RefusedCostsStayInTheEditor) {
    OpenCompare();
    TypeCosts(1, u"1.2.3");
    User().Press(Qt::Key_Return);
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_TRUE(CostsOf(1).IsZero());
    EXPECT_FALSE(Sheet().Dirty());
    ASSERT_NE(Editor(), nullptr);
    EXPECT_EQ(Editor()->text(), u"1.2.3");
    EXPECT_FALSE(CompareWindow()->close());
    Settle();
    EXPECT_TRUE(IsOpen());
    for (const QStringView command : {u"cmdExport", u"cmdPrint"}) {
        User().Click(command);
        Settle();
    }
    EXPECT_TRUE(m_outside.suggested.isEmpty());
    EXPECT_TRUE(m_outside.printed.isEmpty());
    User().Press(Qt::Key_Escape);
    Settle();
    EXPECT_TRUE(CompareWindow()->close());
}

TEST_F(CompareEntry, ClosingStoresCostsBeingTyped) {
    OpenCompare();
    TypeCosts(0, u"77");
    EXPECT_TRUE(CompareWindow()->close());
    EXPECT_EQ(CostsOf(0), Money::FromDouble(77));
}

} // namespace
