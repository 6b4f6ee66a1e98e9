#include "FigureTable.h"
#include "CostsModel.h"
#include "FigureColumns.h"
#include "NoneLastOrder.h"
#include "SampleTables.h"
#include "ScheduleModel.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class FigureTables : public testing::Test {
protected:
    FigureTables()
        : m_sheet(SheetOf({{u"A"_s, 9, 0, 0.05},
                           {u"B"_s, 8, 500, 0.06},
                           {u"C"_s, None},
                           {u"D"_s, 7},
                           {u"today"_s, 10}})) {
        Speak(English);
        QLocale::setDefault(UnitedStates);
        m_order.setSourceModel(&m_model);
        m_model.Set(m_sheet, Dollars);
        m_table = new FigureTable(&m_window);
        m_table->setLocale(UnitedStates);
        m_other = new QPushButton(&m_window);
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(m_table);
        layout->addWidget(m_other);
        m_table->setModel(&m_order);
        m_window.resize(1000, 300);
        m_window.show();
        m_window.activateWindow();
        m_table->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        QCoreApplication::processEvents();
    }
    QModelIndex Cell(int row, Figure figure) const {
        return m_order.index(row, ColumnNumber(figure));
    }
    void GoTo(int row, Figure figure) { m_table->setCurrentIndex(Cell(row, figure)); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QCoreApplication::processEvents();
    }
    /// The first key may open the editor.
    static void Type(const char* text) {
        for (const QChar key : QString::fromUtf8(text)) {
            QTest::keyClicks(QApplication::focusWidget(), key);
        }
    }
    QLineEdit* Editor() const { return m_table->findChild<QLineEdit*>(u"txtEntry"_s); }
    void ClickHeading(Figure figure) const {
        const QHeaderView* header = m_table->horizontalHeader();
        const int x = header->sectionViewportPosition(ColumnNumber(figure)) + 12;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
    }
    std::string Lenders() const {
        QStringList names;
        for (int row = 0; row < m_order.rowCount(); ++row) {
            names.append(Cell(row, Figure::Lender).data().toString());
        }
        return names.join(u' ').toStdString();
    }
    /// Picks an entry of the menu that opens for the current cell by key.
    void Pick(const QString& caption) {
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(m_table->viewport(), &asked);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(nullptr, menu);
        for (QAction* entry : menu->actions()) {
            if (entry->text() == caption && entry->isEnabled()) {
                entry->trigger();
            }
        }
        menu->close();
        QCoreApplication::processEvents();
    }
    static QString Clipped() { return QGuiApplication::clipboard()->text(); }

    ComparedWorksheet m_sheet;
    std::vector<std::pair<int, QString>> m_taken;
    bool m_takes = true;
    std::function<void()> m_onTaking;
    CostsModel m_model{[this](int place, const QString& text) {
        m_taken.emplace_back(place, text);
        if (m_onTaking) {
            m_onTaking();
        }
        return m_takes;
    }};
    NoneLastOrder m_order{UnitedStates};
    QWidget m_window;
    FigureTable* m_table;
    QPushButton* m_other;
};

using Taken = std::vector<std::pair<int, QString>>;

TEST_F(FigureTables, ShowTheUsualColumnsWhole) {
    const std::vector usual{ColumnNumber(Figure::Lender),
                            ColumnNumber(Figure::MonthlyEquivalent),
                            ColumnNumber(Figure::Upfront),
                            ColumnNumber(Figure::Costs),
                            ColumnNumber(Figure::Apr),
                            ColumnNumber(Figure::CostByHorizon),
                            ColumnNumber(Figure::BalanceAtHorizon),
                            ColumnNumber(Figure::TotalCost),
                            ColumnNumber(Figure::RateToMatch)};
    for (const int language : {English, Spanish}) {
        Speak(language);
        ComparedWorksheet sheet =
            SheetOf({{u"First Prairie Bank"_s, 123456.78, 12345.67, 0.0654321},
                     {u"Cedar & Sons"_s, 223456.78, -950, 0.07},
                     {u"today"_s, 99999}});
        for (OfferComparison& offer : sheet.result.offers) {
            offer.figures->monthlyEquivalent = Dollar(12580.17);
            offer.figures->balanceAtHorizon = Dollar(222222.22);
            offer.figures->upfront = Dollar(12345.67);
            offer.figures->rateToMatch = Rate::FromFraction(0.06125);
        }
        m_model.Set(sheet, Dollars);
        QCoreApplication::processEvents();
        EXPECT_EQ(usual, m_table->ShownColumns());
        EXPECT_LE(m_table->horizontalHeader()->length(), 1000 - 24);
        for (const int column : usual) {
            for (int row = 0; row < m_order.rowCount(); ++row) {
                EXPECT_LE(m_table->sizeHintForIndex(m_order.index(row, column)).width(),
                          m_table->columnWidth(column))
                    << row << ", " << column;
            }
        }
    }
}

TEST_F(FigureTables, SortByClicksOnAHeading) {
    const struct {
        Figure figure;
        const char* lenders;
    } clicks[] = {
        {Figure::TotalCost, "D B A The loan held today"},
        {Figure::TotalCost, "The loan held today A B D"},
        {Figure::TotalCost, "A B D The loan held today"}, // unsorted
        {Figure::TotalCost, "D B A The loan held today"},
        {Figure::Apr, "A B D The loan held today"},
        {Figure::Apr, "B A D The loan held today"},
        {Figure::Lender, "A B D The loan held today"},
        {Figure::Lender, "The loan held today D B A"},
    };
    EXPECT_EQ("A B D The loan held today", Lenders());
    for (const auto& click : clicks) {
        ClickHeading(click.figure);
        EXPECT_EQ(click.lenders, Lenders());
    }
}

TEST_F(FigureTables, AreArrangedByKey) {
    GoTo(0, Figure::Upfront);
    Pick(u"&Sort by This Column"_s);
    EXPECT_EQ(ColumnNumber(Figure::Upfront), m_table->horizontalHeader()->sortIndicatorSection());
    Pick(u"Move &Left"_s);
    EXPECT_EQ(ColumnNumber(Figure::Upfront), m_table->ShownColumns()[1]);
    Pick(u"Move &Left"_s);
    Pick(u"Move &Left"_s); // disabled now
    EXPECT_EQ(ColumnNumber(Figure::Upfront), m_table->ShownColumns()[0]);
    Pick(u"Move &Right"_s);
    Pick(u"Move &Right"_s);
    Pick(u"Costs"_s);
    Pick(u"Effective rate"_s);
    Pick(u"Lender"_s); // disabled: always shown
    EXPECT_TRUE(m_table->isColumnHidden(ColumnNumber(Figure::Costs)));
    EXPECT_FALSE(m_table->isColumnHidden(ColumnNumber(Figure::EffectiveRate)));
    EXPECT_FALSE(m_table->isColumnHidden(ColumnNumber(Figure::Lender)));
    EXPECT_GT(m_table->columnWidth(ColumnNumber(Figure::EffectiveRate)), 40);
    Pick(u"&Usual Columns"_s);
    EXPECT_EQ(9U, m_table->ShownColumns().size());
    EXPECT_EQ(ColumnNumber(Figure::Upfront), m_table->ShownColumns()[2]);
}

TEST_F(FigureTables, ListTheColumnsInTheMenuOfTheHeadings) {
    Q_EMIT m_table->horizontalHeader()->customContextMenuRequested(QPoint(5, 5));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(nullptr, menu);
    EXPECT_EQ(16 + 1 + 4, menu->actions().size());
    EXPECT_TRUE(menu->actions().at(ColumnNumber(Figure::Costs))->isChecked());
    EXPECT_FALSE(menu->actions().at(ColumnNumber(Figure::EffectiveRate))->isChecked());
    menu->close();
}

TEST_F(FigureTables, KeepTheirColumns) {
    m_table->horizontalHeader()->moveSection(1, 4);
    m_table->setColumnWidth(ColumnNumber(Figure::Apr), 222);
    m_table->ShowColumn(ColumnNumber(Figure::Costs), false);
    const auto shown = m_table->ShownColumns();
    const QByteArray saved = m_table->SaveColumns();
    m_table->ShowUsualColumns();
    QCoreApplication::processEvents();
    EXPECT_NE(222, m_table->columnWidth(ColumnNumber(Figure::Apr)));
    EXPECT_TRUE(m_table->RestoreColumns(saved));
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, m_table->ShownColumns());
    EXPECT_EQ(222, m_table->columnWidth(ColumnNumber(Figure::Apr)));
    EXPECT_EQ(saved, m_table->SaveColumns());
    for (const QByteArray& garbage :
         {QByteArray(), QByteArray("garbage"), saved + "x", saved.chopped(1) + ':'}) {
        EXPECT_FALSE(m_table->RestoreColumns(garbage));
        EXPECT_EQ(saved, m_table->SaveColumns());
    }
    // At least the lender is shown, and what is not named is as usual.
    EXPECT_TRUE(m_table->RestoreColumns("1 4:0h 0:0h"));
    EXPECT_EQ(ColumnNumber(Figure::Lender), m_table->ShownColumns()[0]);
    EXPECT_EQ(8U, m_table->ShownColumns().size());
}

TEST_F(FigureTables, WidenWithTheirContentUnlessTheUserDid) {
    const int apr = ColumnNumber(Figure::Apr);
    const int total = ColumnNumber(Figure::TotalCost);
    m_table->setColumnWidth(apr, 30);
    const int before = m_table->columnWidth(total);
    m_sheet.result.offers[0].figures->totalCost = Dollar(123456789012.34);
    m_model.Set(m_sheet, Dollars);
    QCoreApplication::processEvents();
    const int wide = m_table->columnWidth(total);
    EXPECT_GT(wide, before);
    EXPECT_EQ(30, m_table->columnWidth(apr));
    m_sheet.result.offers[0].figures->totalCost = Dollar(1);
    m_model.Set(m_sheet, Dollars);
    QCoreApplication::processEvents();
    EXPECT_EQ(wide, m_table->columnWidth(total)); // no trembling
    QFont large = m_table->font();
    large.setPointSize(30);
    const int height = m_table->rowHeight(0);
    m_table->setFont(large);
    QCoreApplication::processEvents();
    EXPECT_GT(m_table->rowHeight(0), height);
    EXPECT_GE(m_table->columnWidth(total),
              m_table->sizeHintForIndex(Cell(0, Figure::TotalCost)).width());
}

TEST_F(FigureTables, CopyTheSelectionOrEverything) {
    m_table->ShowColumn(ColumnNumber(Figure::MonthlyEquivalent), false);
    GoTo(1, Figure::Costs);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(u"500\n"_s, Clipped());
    m_table->selectionModel()->select(Cell(2, Figure::TotalCost), QItemSelectionModel::Select);
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(u"500\t\n\t7\n"_s, Clipped());
    m_table->clearSelection();
    Press(Qt::Key_C, Qt::ControlModifier);
    const QString whole = Clipped();
    EXPECT_TRUE(whole.startsWith(
        u"Lender\tAt closing\tCosts\tAPR (estimated)\tCost in 5 years\tBalance then\tTotal cost\tRate to match\nA\t0\t0\t5\t9\t0\t9\t\n"_s))
        << whole.toStdString();
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->html().contains(
        u"<td align=\"right\"><b>$7.00</b></td>"_s));
    m_table->selectAll();
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(whole, Clipped());
}

TEST_F(FigureTables, SayWhichFigureIsCurrent) {
    std::vector<std::pair<int, Figure>> current;
    QObject::connect(m_table, &FigureTable::CurrentFigureChanged, m_table,
                     [&](int place, Figure figure) { current.emplace_back(place, figure); });
    GoTo(2, Figure::Apr);
    EXPECT_EQ(705, m_table->property("helpTopic").toInt());
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    EXPECT_EQ((std::vector<std::pair<int, Figure>>{{4, Figure::Apr},
                                                   {CurrentLoanPlace, Figure::Apr},
                                                   {CurrentLoanPlace, Figure::CostByHorizon}}),
              current);
    EXPECT_EQ(707, m_table->property("helpTopic").toInt());
    // Below the pointer, for a click that asks.
    QWidget* headings = m_table->horizontalHeader()->viewport();
    QTest::mouseMove(headings,
                     QPoint(m_table->columnViewportPosition(ColumnNumber(Figure::Upfront)) + 5, 5));
    EXPECT_EQ(703, headings->property("helpTopic").toInt());
    QTest::mouseMove(m_table->viewport(), m_table->visualRect(Cell(0, Figure::Costs)).center());
    EXPECT_EQ(704, m_table->viewport()->property("helpTopic").toInt());
}

TEST_F(FigureTables, EditCosts) {
    GoTo(1, Figure::Costs);
    Type("950.5");
    ASSERT_NE(nullptr, Editor());
    EXPECT_EQ(u"Costs"_s, Editor()->accessibleName());
    EXPECT_EQ(u"B"_s, Editor()->accessibleDescription());
    Press(Qt::Key_Return);
    EXPECT_EQ((Taken{{2, u"950.5"_s}}), m_taken);
    Press(Qt::Key_F2);
    ASSERT_NE(nullptr, Editor());
    EXPECT_EQ(u"500"_s, Editor()->text()); // the model was not changed
    Press(Qt::Key_Return);
    EXPECT_EQ(1U, m_taken.size()); // nothing was typed
    Press(Qt::Key_F2);
    Type("7");
    Press(Qt::Key_Escape);
    EXPECT_EQ(1U, m_taken.size());
    Press(Qt::Key_F2);
    Type("8");
    m_other->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ((Taken{{2, u"950.5"_s}, {2, u"8"_s}}), m_taken);
    EXPECT_TRUE(m_other->hasFocus());
    GoTo(3, Figure::Costs); // the loan held today
    m_table->setFocus();
    Press(Qt::Key_F2);
    EXPECT_TRUE(m_table->CommitEntry());
    EXPECT_EQ(2U, m_taken.size());
}

TEST_F(FigureTables, AllowOnlySomeKeys) {
    m_table->AllowKeys([](QChar key) { return key.isDigit() || key == u'.'; });
    GoTo(1, Figure::Costs);
    Type("x");
    EXPECT_EQ(nullptr, Editor());
    Type("1x2");
    ASSERT_NE(nullptr, Editor());
    EXPECT_EQ(u"12"_s, Editor()->text());
    Press(Qt::Key_Backspace);
    EXPECT_EQ(u"1"_s, Editor()->text());
}

TEST_F(FigureTables, KeepARefusedEntry) {
    m_takes = false;
    GoTo(1, Figure::Costs);
    Type("1-");
    const struct {
        const char* how;
        std::function<void()> leave;
        std::size_t asked; // so far
    } steps[] = {
        {"Return", [this] { Press(Qt::Key_Return); }, 1},
        {"Return again", [this] { Press(Qt::Key_Return); }, 2},
        {"focus", [this] { m_other->setFocus(); }, 2}, // refused already
        {"Tab", [this] { Press(Qt::Key_Tab); }, 3},
        {"changed",
         [this] {
             Type("9");
             m_other->setFocus();
         },
         4},
        {"commit", [this] { EXPECT_FALSE(m_table->CommitEntry()); }, 5},
    };
    for (const auto& step : steps) {
        step.leave();
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        EXPECT_EQ(step.asked, m_taken.size()) << step.how;
        ASSERT_NE(nullptr, Editor()) << step.how;
        EXPECT_TRUE(Editor()->hasFocus()) << step.how;
    }
    EXPECT_EQ(u"1-9"_s, Editor()->text());
    Press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(nullptr, Editor());
    EXPECT_EQ(5U, m_taken.size());
}

TEST_F(FigureTables, KeepAnEntryThatHasBegunWhileFiguresChange) {
    GoTo(1, Figure::Costs);
    Type("77");
    m_sheet.input.offers[1].costs = Dollar(600);
    m_sheet.result.offers[1].figures->totalCost = Dollar(6);
    m_sheet.rows = {4, 3, 2, 1};
    m_model.Set(m_sheet, Dollars);
    QCoreApplication::processEvents();
    ASSERT_NE(nullptr, Editor());
    EXPECT_EQ(u"77"_s, Editor()->text());
    // Storing it may even remove the loan.
    m_onTaking = [this] {
        m_sheet.result.offers[1].figures.reset();
        m_model.Set(m_sheet, Dollars);
    };
    Press(Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ((Taken{{2, u"77"_s}}), m_taken);
    EXPECT_EQ(nullptr, Editor());
    EXPECT_EQ("D A The loan held today", Lenders());
}

TEST_F(FigureTables, AreReadByScreenReaders) {
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(m_table);
    ASSERT_NE(nullptr, table);
    ASSERT_NE(nullptr, table->tableInterface());
    EXPECT_EQ(u"Total cost"_s,
              table->tableInterface()->columnDescription(ColumnNumber(Figure::TotalCost)));
    EXPECT_EQ(u"D"_s, table->tableInterface()->rowDescription(2));
    QAccessibleInterface* best =
        table->tableInterface()->cellAt(2, ColumnNumber(Figure::TotalCost));
    ASSERT_NE(nullptr, best);
    EXPECT_EQ(u"$7.00, the best of its column"_s, best->text(QAccessible::Name));
}

TEST_F(FigureTables, ShowWholeTextsAndExplanationsInTooltips) {
    const QString longName = u"<b>"_s + QString(60, u'x');
    m_sheet.lenders[0] = longName;
    m_model.Set(m_sheet, Dollars);
    QCoreApplication::processEvents();
    m_table->setColumnWidth(ColumnNumber(Figure::Upfront), 30);
    const struct {
        int row;
        Figure figure;
        QString tip;
    } cases[] = {
        {0, Figure::Lender, u"<p>&lt;b&gt;"_s + QString(60, u'x') + u"</p>"_s},
        {0, Figure::Costs, Cell(0, Figure::Costs).data(Qt::ToolTipRole).toString()},
        {0, Figure::Upfront, u"<p>$0.00</p><p>Points and costs that you pay at closing</p>"_s},
    };
    for (const auto& tested : cases) {
        const QPoint at = m_table->visualRect(Cell(tested.row, tested.figure)).center();
        QHelpEvent asked(QEvent::ToolTip, at, m_table->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(m_table->viewport(), &asked);
        EXPECT_EQ(tested.tip.toStdString(), QToolTip::text().toStdString());
    }
}

TEST_F(FigureTables, ShowLongSchedulesAtOnce) {
    ScheduleModel schedule;
    FigureTable table;
    table.setModel(&schedule);
    EXPECT_FALSE(table.isSortingEnabled());
    std::vector<ScheduleRow> rows(
        2600, {.number = 1, .date = Date::FromCalendar(2026, 1, 1), .payment = Dollar(1)});
    rows.back().interestSoFar = Dollar(123456789.12);
    schedule.Set(rows, ScheduleModel::Rows::Payments, Dollars);
    table.resize(800, 300);
    table.show();
    QCoreApplication::processEvents();
    EXPECT_GE(table.columnWidth(7), table.sizeHintForIndex(schedule.index(2599, 7)).width());
    table.setCurrentIndex(schedule.index(1300, 3));
    const QModelIndex top = table.indexAt(QPoint(5, 5));
    rows.resize(2000);
    schedule.Set(rows, ScheduleModel::Rows::Payments, Dollars);
    QCoreApplication::processEvents();
    EXPECT_EQ(top.row(), table.indexAt(QPoint(5, 5)).row());
    EXPECT_EQ(1300, table.currentIndex().row());
    EXPECT_EQ(716 + 3, table.property("helpTopic").toInt());
}

} // namespace
