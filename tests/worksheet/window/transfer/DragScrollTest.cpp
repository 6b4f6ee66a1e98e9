// Rows scroll while a value is dragged near an edge of their frame.

#include "DragFixture.h"
#include "OfferRows.h"
#include "QuendNames.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>
#include <QWindow>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class DragScrolling : public DragTest {
protected:
    DragScrolling() {
        Open();
        FillOffers();
        Window().Rows().GrowTo(Row{15});
        Bar().setValue(0);
        Settle();
        m_data.setText(u"1.5"_s);
    }

    QTimer& Timer() { return *Window().findChild<QTimer*>(u"tmrDragScroll"_s); }
    int TopRow() const { return Bar().value() / RowHeight(); }
    /// Drags a value to a height of the frame, over the points or another column.
    Offered Hold(int y, QStringView column = u"txtPoints(0)") {
        const QWidget& frame = Control(u"picScroll");
        const QWidget& heading = Control(column);
        const int x = heading.mapTo(&frame, heading.rect().center()).x();
        m_held = QPoint(x, y);
        return Over(u"picScroll", m_data, Qt::CopyAction, m_held);
    }
    int Bottom() const { return Control(u"picScroll").height() - RowHeight() * 2 / 5; }
    /// Fires the timer and applies its effect.
    void Tick() { QMetaObject::invokeMethod(&Timer(), "timeout"); }
    Offered LetGo() {
        const QPoint place = PlaceInWindow(Control(u"picScroll"), m_held);
        QDropEvent drop(place, Qt::CopyAction, &m_data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Window().windowHandle(), &drop);
        return {drop.isAccepted(), drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction};
    }
    void Leave() {
        QDragLeaveEvent leave;
        QApplication::sendEvent(Window().windowHandle(), &leave);
    }

    QMimeData m_data;
    QPoint m_held;
};

TEST_F(DragScrolling, GoesByTheEdgeOfTheFrame) {
    const int half = RowHeight() / 2;
    const int height = Control(u"picScroll").height();
    struct {
        QStringView column;
        int y;
        int rows; ///< per tick; 0: the timer does not run
    } const table[]{
        {u"txtPoints(0)", 1, -1},
        {u"txtPoints(0)", half - 1, -1},
        {u"txtPoints(0)", half, 0},
        {u"txtPoints(0)", height / 2, 0},
        {u"txtPoints(0)", height - half - 1, 0},
        {u"txtPoints(0)", height - half, 1},
        {u"txtPoints(0)", height - 2, 1},
        {u"txtTerm(0)", 2, -1}, // accepts no drop, but the drag may pass over it
        {u"txtTerm(0)", height / 2, 0},
        {u"cboFrequency(0)", height - 2, 1},
    };
    for (const auto& row : table) {
        Bar().setValue(5 * RowHeight());
        Hold(row.y, row.column);
        EXPECT_EQ(Timer().isActive(), row.rows != 0) << row.y;
        if (Timer().isActive()) {
            Tick();
        }
        EXPECT_EQ(TopRow(), 5 + row.rows) << row.y;
        Leave();
        EXPECT_FALSE(Timer().isActive());
    }
}

TEST_F(DragScrolling, GoesOnByItselfToTheLastRowAndStays) {
    Hold(Bottom());
    Timer().setInterval(0);
    EXPECT_TRUE(WaitFor([&] { return Bar().value() == Bar().maximum(); }));
    EXPECT_EQ(TopRow(), 10);
    Tick();
    EXPECT_EQ(TopRow(), 10);
    Hold(Control(u"picScroll").height() / 2);
    EXPECT_FALSE(Timer().isActive());
}

TEST_F(DragScrolling, ADropGoesToTheRowThatHasComeUnderTheMouse) {
    EXPECT_EQ(Hold(Bottom()), Copied);
    Tick();
    Tick();
    EXPECT_EQ(LetGo(), Copied);
    EXPECT_EQ(Text(u"txtPoints(7)"), u"1.500");
    EXPECT_EQ(Text(u"txtPoints(5)"), u"");
    EXPECT_FALSE(Timer().isActive());
}

TEST_F(DragScrolling, ADropIsRefusedWhereWhatHasComeTakesNone) {
    m_data.setText(u"0.0625"_s);
    EXPECT_EQ(Hold(Bottom(), u"txtWho(0)"), Copied);
    m_held.setX(Control(u"txtTerm(0)").mapTo(&Control(u"picScroll"), QPoint(5, 0)).x());
    EXPECT_EQ(LetGo(), Refused);
    EXPECT_EQ(Text(u"txtTerm(5)"), u"");
    EXPECT_FALSE(Sheet().Dirty());
}

} // namespace
