// The pages of the comparison window.

#include "ChartWidget.h"
#include "CompareFixture.h"
#include "ComparisonOfWorksheet.h"
#include "EnterValues.h"
#include "FigureTable.h"
#include "LoanSchedule.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

class ComparePages : public CompareTest {
protected:
    static QStringList Loans() {
        const auto& list = User().Get<QComboBox>(u"cboLoan");
        QStringList loans;
        for (int i = 0; i < list.count(); ++i) {
            loans << list.itemText(i);
        }
        return loans;
    }
    int Payments(int place) const {
        return static_cast<int>(
            quend::comparison::ScheduleOf(ToComparison(Sheet()), place).value().size());
    }
    static compare::ChartWidget& Chart() {
        return User().Get<compare::ChartWidget>(u"chtOverTime");
    }
};

TEST_F(ComparePages, ExplainTheSelectedFigure) {
    OpenCompare();
    auto& table = User().Get<compare::FigureTable>(u"tblCosts");
    EXPECT_EQ(User().Text(u"lblExplanation"), u"Select a figure to read how it came about.");
    table.setCurrentIndex(table.model()->index(1, static_cast<int>(Figure::Upfront)));
    const QString before = User().Text(u"lblExplanation");
    EXPECT_TRUE(before.contains(u"Lakeside")) << before.toStdString();
    EnterInto(FieldId::Points, Row{1}, u"3");
    Settle();
    EXPECT_NE(User().Text(u"lblExplanation"), before) << "it follows";
    EXPECT_EQ(table.currentIndex().row(), 1);
}

TEST_F(ComparePages, SortStaysWhenTheWorksheetChanges) {
    OpenCompare();
    auto& table = User().Get<compare::FigureTable>(u"tblCosts");
    table.horizontalHeader()->setSortIndicator(static_cast<int>(Figure::Upfront),
                                               Qt::DescendingOrder);
    Settle();
    EXPECT_EQ(Column(Figure::Lender).front(), u"Lakeside");
    EnterInto(FieldId::Points, Row{0}, u"4");
    Settle();
    EXPECT_EQ(Column(Figure::Lender).front(), u"Cedar & Sons");
}

TEST_F(ComparePages, ScheduleOfEachLoan) {
    OpenCompare();
    ShowPage(2);
    EXPECT_EQ(Loans(), (QStringList{u"Cedar & Sons"_s, u"Lakeside"_s, u"The loan held today"_s}));
    EXPECT_EQ(User().Text(u"cboLoan"), u"Cedar & Sons") << "the cheapest";
    const int places[] = {1, 2, 0};
    for (int i = 0; i < 3; ++i) {
        User().Get<QComboBox>(u"cboLoan").setCurrentIndex(i);
        EXPECT_EQ(Table(u"tblSchedule").rowCount(), Payments(places[i]));
        EXPECT_EQ(User().Text(u"lblNote"),
                  i < 2 ? u"An offer is counted from today, as its payoff date is."
                        : u"The loan held today is counted from its next payment.");
    }
    User().Get<QRadioButton>(u"optByYear").click();
    EXPECT_LT(Table(u"tblSchedule").rowCount(), 40);
    User().Get<QRadioButton>(u"optByPayment").click();
    User().Get<QComboBox>(u"cboLoan").setCurrentIndex(1);
    EnterInto(FieldId::InterestRate, Row{2}, u"5");
    Settle();
    EXPECT_EQ(Loans().size(), 4);
    EXPECT_EQ(User().Text(u"cboLoan"), u"Lakeside") << "stays";
    SheetToWrite().Clear();
    Settle();
    EXPECT_FALSE(User().Control(u"cboLoan").isEnabled());
    EXPECT_EQ(User().Text(u"lblNote"), u"Complete an offer to see its schedule.");
    EXPECT_EQ(Table(u"tblSchedule").rowCount(), 0);
}

TEST_F(ComparePages, ScheduleIsThatOfTheChosenPayment) {
    OpenCompare();
    ShowPage(2);
    const int intended = Table(u"tblSchedule").rowCount();
    User().Get<QRadioButton>(u"optRequired").click();
    Settle();
    User().Get<QComboBox>(u"cboLoan").setCurrentIndex(0);
    EXPECT_GE(Table(u"tblSchedule").rowCount(), 360);
    EXPECT_LT(intended, 200);
}

TEST_F(ComparePages, OverTimeAsChartAndTable) {
    OpenCompare();
    ShowPage(1);
    EXPECT_EQ(Chart().Data().lines.size(), 3U);
    User().Get<QCheckBox>(u"chkTable").click();
    EXPECT_EQ(User().Get<QStackedWidget>(u"stkOverTime").currentIndex(), 1);
    const QString cost = Table(u"tblOverTime").index(3, 1).data().toString();
    User().Get<QRadioButton>(u"optBalance").click();
    EXPECT_NE(Table(u"tblOverTime").index(3, 1).data().toString(), cost);
    User().Get<QCheckBox>(u"chkTable").click();
    User().Get<QRadioButton>(u"optCost").click();
    Chart().setFocus();
    User().Press(Qt::Key_Plus);
    Settle();
    EXPECT_EQ(Window().GetSettings().compareYears, 6);
    EXPECT_EQ(User().Get<QSpinBox>(u"udYears").value(), 6);
}

TEST_F(ComparePages, FollowTheDarkPalette) {
    OpenCompare();
    ShowPage(1);
    const auto corner = [] {
        return CompareWindow()->grab().toImage().pixelColor(3, 3).lightness();
    };
    EXPECT_GT(corner(), 128);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(53, 53, 53)));
    Settle();
    for (int page = 0; page < 3; ++page) {
        ShowPage(page);
        EXPECT_LT(corner(), 128);
        const QWidget& shown = page == 1 ? Chart() : User().Control(u"tabPages");
        EXPECT_LT(const_cast<QWidget&>(shown).grab().toImage().pixelColor(6, 60).lightness(), 128)
            << page;
    }
    QApplication::setPalette(before);
    Settle();
}

} // namespace
