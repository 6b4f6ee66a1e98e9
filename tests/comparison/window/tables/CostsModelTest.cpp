#include "CostsModel.h"
#include "FigureColumns.h"
#include "NoneLastOrder.h"
#include "SampleTables.h"
#include "TableRoles.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QItemSelectionModel>
#include <QPersistentModelIndex>
#include <QSignalSpy>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Tester = QAbstractItemModelTester::FailureReportingMode::Fatal;

class CostsTable : public testing::Test {
protected:
    CostsTable()
        : m_sheet(SheetOf({{u"A"_s, 9, 0, 0.05},
                           {u"B"_s, 8, 500, 0.06},
                           {u"C"_s, None},
                           {u"D"_s, 7},
                           {u"today"_s, 10}})) {
        Speak(English);
        m_order.setSourceModel(&m_model);
        m_model.Set(m_sheet, Dollars);
    }
    QVariant At(int row, Figure figure, int role = Qt::DisplayRole) const {
        return m_model.index(row, ColumnNumber(figure)).data(role);
    }
    std::string Text(int row, Figure figure, int role = Qt::DisplayRole) const {
        return At(row, figure, role).toString().toStdString();
    }
    static std::string Lenders(const QAbstractItemModel& model) {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(model.index(row, 0).data().toString());
        }
        return names.join(u' ').toStdString();
    }

    ComparedWorksheet m_sheet;
    std::vector<std::pair<int, QString>> m_taken;
    bool m_takes = true;
    CostsModel m_model{[this](int place, const QString& text) {
        m_taken.emplace_back(place, text);
        return m_takes;
    }};
    NoneLastOrder m_order{UnitedStates};
    QAbstractItemModelTester m_modelTester{&m_model, Tester};
    QAbstractItemModelTester m_orderTester{&m_order, Tester};
};

TEST_F(CostsTable, ShowsTheLoansThatTakePart) {
    EXPECT_EQ("A B D The loan held today", Lenders(m_model));
    EXPECT_EQ(4, m_model.PlaceAt(2));
    EXPECT_EQ(2, m_model.RowOf(4));
    EXPECT_EQ(-1, m_model.RowOf(3));
    EXPECT_EQ("B", m_model.headerData(1, Qt::Vertical).toString().toStdString());
    EXPECT_EQ("Cost in\n5 years",
              m_model.headerData(ColumnNumber(Figure::CostByHorizon), Qt::Horizontal)
                  .toString()
                  .toStdString());
    EXPECT_FALSE(m_model.headerData(99, Qt::Horizontal).isValid());
    EXPECT_FALSE(m_model.headerData(99, Qt::Vertical).isValid());
}

TEST_F(CostsTable, MarksTheBestBySignTypeAndWord) {
    EXPECT_EQ("✓ $7.00", Text(2, Figure::TotalCost));
    EXPECT_EQ("$7.00, the best of its column", Text(2, Figure::TotalCost, Qt::AccessibleTextRole));
    EXPECT_TRUE(At(2, Figure::TotalCost, Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ("7", Text(2, Figure::TotalCost, NumberRole));
    EXPECT_EQ("$8.00", Text(1, Figure::TotalCost));
    EXPECT_EQ("$8.00", Text(1, Figure::TotalCost, Qt::AccessibleTextRole));
    EXPECT_FALSE(At(1, Figure::TotalCost, Qt::FontRole).isValid());
}

TEST_F(CostsTable, SaysWhatACellIs) {
    EXPECT_EQ(2, At(1, Figure::Apr, PlaceRole).toInt());
    EXPECT_EQ(ColumnNumber(Figure::Apr), At(1, Figure::Apr, FigureRole).toInt());
    EXPECT_EQ(0.06, At(1, Figure::Apr, SortRole).toDouble());
    EXPECT_EQ(705,
              m_model.headerData(ColumnNumber(Figure::Apr), Qt::Horizontal, HelpTopicRole).toInt());
    EXPECT_FALSE(At(3, Figure::Apr, SortRole).isValid()); // the loan held today
    EXPECT_FALSE(At(3, Figure::Apr, NumberRole).isValid());
    EXPECT_TRUE(At(0, Figure::Lender, Qt::TextAlignmentRole)
                    .value<Qt::Alignment>()
                    .testFlag(Qt::AlignLeft));
    EXPECT_TRUE(
        At(0, Figure::Apr, Qt::TextAlignmentRole).value<Qt::Alignment>().testFlag(Qt::AlignRight));
}

TEST_F(CostsTable, HandsCostsOverAsTyped) {
    const struct {
        int row;
        Figure figure;
        bool mayEdit;
    } cases[] = {
        {1, Figure::Costs, true},
        {3, Figure::Costs, false}, // the loan held today
        {1, Figure::Upfront, false},
        {1, Figure::Lender, false},
    };
    for (const auto& tested : cases) {
        const QModelIndex cell = m_model.index(tested.row, ColumnNumber(tested.figure));
        EXPECT_EQ(tested.mayEdit, m_model.flags(cell).testFlag(Qt::ItemIsEditable));
        EXPECT_EQ(tested.mayEdit, m_model.setData(cell, u" x "_s));
    }
    EXPECT_EQ((std::vector<std::pair<int, QString>>{{2, u" x "_s}}), m_taken);
    EXPECT_EQ("500", Text(1, Figure::Costs, Qt::EditRole));
    m_takes = false;
    EXPECT_FALSE(m_model.setData(m_model.index(1, ColumnNumber(Figure::Costs)), u"y"_s));
}

TEST_F(CostsTable, SignalsOnlyWhatChanged) {
    const QSignalSpy changes(&m_model, &QAbstractItemModel::dataChanged);
    const QSignalSpy headings(&m_model, &QAbstractItemModel::headerDataChanged);
    m_model.Set(m_sheet, Dollars);
    EXPECT_EQ(0, changes.count());
    m_sheet.input.offers[1].costs = Dollar(501);
    m_model.Set(m_sheet, Dollars);
    ASSERT_EQ(1, changes.count());
    EXPECT_EQ(m_model.index(1, ColumnNumber(Figure::Costs)), changes[0][0].toModelIndex());
    EXPECT_EQ(m_model.index(1, ColumnNumber(Figure::Costs)), changes[0][1].toModelIndex());
    EXPECT_EQ(0, headings.count());
    m_sheet.input.years = 1;
    m_model.Set(m_sheet, Dollars);
    EXPECT_EQ(1, headings.count());
    EXPECT_EQ(1, changes.count());
    Speak(Spanish);
    m_model.Set(m_sheet, Dollars);
    EXPECT_EQ(2, headings.count());
    EXPECT_EQ("A B D El préstamo actual", Lenders(m_model));
}

TEST_F(CostsTable, KeepsTheSelectedLoanWhateverComesAndGoes) {
    const QSignalSpy resets(&m_model, &QAbstractItemModel::modelReset);
    const QPersistentModelIndex selected(m_model.index(1, ColumnNumber(Figure::Apr)));
    const QPersistentModelIndex inOrder(m_order.index(1, ColumnNumber(Figure::Apr)));
    const struct {
        std::vector<int> rows;
        std::vector<int> without;
        const char* shown;
        int row; ///< of the selected loan; -1: gone
    } cases[] = {
        // clang-format off
        {{4, 3, 2, 1}, {},           "D B A The loan held today",   1},
        {{2, 1, 4, 3}, {},           "B A D The loan held today",   0},
        {{2, 1, 4, 3}, {1, 4},       "B The loan held today",       0},
        {{1, 2, 3, 4}, {},           "A B D The loan held today",   1},
        {{4, 1, 3, 2}, {1},          "D B The loan held today",     1},
        {{3, 1, 2, 4}, {4},          "A B The loan held today",     1}, // one gone, one new
        {{1, 2, 3, 4}, {2},          "A D The loan held today",    -1},
        {{1, 2, 3, 4}, {1, 2, 4},    "The loan held today",        -1},
        {{1, 2, 3, 4}, {},           "A B D The loan held today",  -1},
        // clang-format on
    };
    for (const auto& tested : cases) {
        ComparedWorksheet sheet = m_sheet;
        sheet.rows = tested.rows;
        for (const int place : tested.without) {
            sheet.result.offers[static_cast<std::size_t>(place) - 1].figures.reset();
        }
        m_model.Set(sheet, Dollars);
        EXPECT_EQ(tested.shown, Lenders(m_model));
        EXPECT_EQ(tested.shown, Lenders(m_order));
        EXPECT_EQ(tested.row, selected.row()) << tested.shown;
        EXPECT_EQ(tested.row, inOrder.row()) << tested.shown;
    }
    EXPECT_EQ(0, resets.count());
}

TEST_F(CostsTable, SortsWithWhatHasNoValueLast) {
    m_model.Set(SheetOf({
                    {u"Offer 10"_s, 9, 0, 0.05, {{3, None}}},
                    {u"offer 2"_s, 8, 0, None, {}},
                    {u"b"_s, 9, 0, 0.01, {{1, 9}}},
                    {u"Árbol"_s, 7, 0, 0.05, {{3, 5}}},
                    {u"today"_s, 8.5},
                }),
                Dollars);
    const struct {
        int column;
        const char* ascending;
        const char* descending;
    } cases[] = {
        // clang-format off
        {-1,                                 "Offer 10 offer 2 b Árbol The loan held today", "Offer 10 offer 2 b Árbol The loan held today"},
        {ColumnNumber(Figure::Lender),       "Árbol b offer 2 Offer 10 The loan held today", "The loan held today Offer 10 offer 2 b Árbol"},
        {ColumnNumber(Figure::TotalCost),    "Árbol offer 2 The loan held today Offer 10 b", "Offer 10 b The loan held today offer 2 Árbol"},
        {ColumnNumber(Figure::Apr),          "b Offer 10 Árbol offer 2 The loan held today", "Offer 10 Árbol b offer 2 The loan held today"},
        {ColumnNumber(Figure::Cheaper),      "b Offer 10 Árbol offer 2 The loan held today", "offer 2 Árbol Offer 10 b The loan held today"},
        {ColumnNumber(Figure::RateToMatch),  "Offer 10 offer 2 b Árbol The loan held today", "Offer 10 offer 2 b Árbol The loan held today"},
        // clang-format on
    };
    for (const auto& tested : cases) {
        m_order.sort(tested.column, Qt::AscendingOrder);
        EXPECT_EQ(tested.ascending, Lenders(m_order)) << tested.column;
        m_order.sort(tested.column, Qt::DescendingOrder);
        EXPECT_EQ(tested.descending, Lenders(m_order)) << tested.column;
    }
}

TEST_F(CostsTable, IsSortedAgainWhenAFigureChanges) {
    m_order.sort(ColumnNumber(Figure::TotalCost));
    EXPECT_EQ("D B A The loan held today", Lenders(m_order));
    m_sheet.result.offers[3].figures->totalCost = Dollar(99);
    m_model.Set(m_sheet, Dollars);
    EXPECT_EQ("B A The loan held today D", Lenders(m_order));
}

} // namespace
