// The table has the values of the chart.

#include "OverTimeModel.h"
#include "ChartSamples.h"
#include "TableText.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class OverTimeTable : public testing::Test {
protected:
    std::string Row(int row) const {
        return m_model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString().toStdString();
    }
    QVariant Cell(int row, int column, int role = Qt::DisplayRole) const {
        return m_model.data(m_model.index(row, column), role);
    }

    OverTimeModel m_model;
    QAbstractItemModelTester m_tester{&m_model};
};

TEST_F(OverTimeTable, RowsAreYearsOrMonths) {
    struct Case {
        int months;
        int years;
        int rows;
        const char* second;
        const char* last;
    };
    for (const Case& tried : {
             Case{1, 1, 13, "Month 1", "Month 12"},
             Case{35, 1, 36, "Month 1", "Month 35"},
             Case{36, 1, 4, "Year 1", "Year 3"},
             Case{37, 1, 5, "Year 1", "Year 4"}, // the last year is begun
             Case{24, 5, 6, "Year 1", "Year 5"},
             Case{1200, 5, 101, "Year 1", "Year 100"},
         }) {
        ChartData data = MakeSample({.lines = 17, .months = tried.months});
        data.years = tried.years;
        m_model.SetData(data, Dollars());
        EXPECT_EQ(tried.rows, m_model.rowCount()) << tried.months;
        EXPECT_EQ(17, m_model.columnCount());
        EXPECT_EQ("Today", Row(0));
        EXPECT_EQ(tried.second, Row(1));
        EXPECT_EQ(tried.last, Row(tried.rows - 1));
        EXPECT_EQ("$250,000.00", Cell(tried.rows - 1, 0).toString().toStdString());
    }
}

TEST_F(OverTimeTable, CellsHaveAmountsAndSentences) {
    m_model.SetData(MakeSample({.lines = 2}), Dollars());
    EXPECT_EQ("$187,500.00", Cell(15, 0).toString().toStdString());
    EXPECT_EQ("187500", Cell(15, 0, quend::window::NumberRole).toString().toStdString());
    EXPECT_TRUE(m_model.headerData(0, Qt::Horizontal, Qt::TextAlignmentRole)
                    .value<Qt::Alignment>()
                    .testFlag(Qt::AlignRight));
    EXPECT_EQ("Month 180: the loan held today has cost $180,000.00.",
              Cell(15, 1, Qt::AccessibleTextRole).toString().toStdString());
    EXPECT_EQ("Lender 1",
              m_model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString().toStdString());
    EXPECT_FALSE(m_model.data({}, Qt::DisplayRole).isValid());
    EXPECT_FALSE(m_model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
}

TEST_F(OverTimeTable, ATableOfTheSameShapeIsNotReset) {
    const QSignalSpy resets(&m_model, &QAbstractItemModel::modelReset);
    const QSignalSpy changes(&m_model, &QAbstractItemModel::dataChanged);
    m_model.SetData(MakeSample({.lines = 3}), Dollars());
    m_model.SetData(MakeSample({.lines = 3, .spread = 0.1}), Dollars());
    EXPECT_EQ(1, resets.size());
    EXPECT_EQ(1, changes.size());
    m_model.SetData({}, Dollars());
    EXPECT_EQ(2, resets.size());
    EXPECT_EQ(0, m_model.rowCount());
}

} // namespace
