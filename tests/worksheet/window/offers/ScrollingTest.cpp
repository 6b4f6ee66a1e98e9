// Sixteen rows of offers behind a frame of six.

#include "QuendNames.h"
#include "WindowFixture.h"

#include <QComboBox>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWindow>

#include <vector>

namespace {

class Scrolling : public WindowTest {
protected:
    Scrolling() {
        Open();
        Click(u"txtPoints(5)");
        while (RowCount() < 16) {
            Press(Qt::Key_Down);
        }
        Click(u"txtLoanAmount");
        ScrollTo(0);
    }

    void ScrollTo(int topRow) {
        Wheel(Control(u"picScroll"), 20);
        Wheel(Control(u"picScroll"), -topRow);
        ASSERT_EQ(TopRow(), topRow);
    }
    int CanvasTop() const { return Control(u"picCanvas").y(); }
    double TopRow() const { return -CanvasTop() / double(RowHeight()); }
    QRect PartOfBar(QStyle::SubControl part) const {
        const QScrollBar& bar = Bar();
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = bar.orientation();
        option.minimum = bar.minimum();
        option.maximum = bar.maximum();
        option.sliderPosition = bar.sliderPosition();
        option.sliderValue = bar.value();
        option.singleStep = bar.singleStep();
        option.pageStep = bar.pageStep();
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
    }
    void ClickBar(QStyle::SubControl part) { Click(Bar(), PartOfBar(part).center()); }
};

TEST_F(Scrolling, ARowEnteredIsBroughtIntoTheFrame) {
    struct Case {
        int entered;
        int top;
        Qt::Key key;
        int topThen;
    };
    const std::vector<Case> rows = {
        {8, 0, Qt::Key_Down, 4},                            // below: becomes the last row shown
        {8, 10, Qt::Key_Down, 9},                           // above: becomes the first row shown
        {8, 10, Qt::Key_Up, 7},    {8, 4, Qt::Key_Down, 4}, // inside: stays
        {8, 9, Qt::Key_Down, 9},   {8, 7, Qt::Key_Up, 7},   {8, 2, Qt::Key_Up, 2},
        {14, 0, Qt::Key_Down, 10}, {1, 10, Qt::Key_Up, 0},
    };
    for (const auto& row : rows) {
        ScrollTo(std::min(row.entered, 10));
        Click(RowName(u"txtTerm", row.entered));
        ScrollTo(row.top);
        Press(row.key);
        EXPECT_EQ(TopRow(), row.topThen) << row.entered << " from " << row.top;
        EXPECT_EQ(CanvasTop(), -Bar().value());
    }
}

TEST_F(Scrolling, TheTabKeyBringsARowIntoTheFrame) {
    Click(u"txtWho(5)");
    Tab();
    EXPECT_EQ(FocusName(), u"chkPoints(6)");
    EXPECT_EQ(TopRow(), 1);
    BackTab();
    EXPECT_EQ(TopRow(), 1);
}

TEST_F(Scrolling, TheThumbMovesByPixelsAndSnapsOnRelease) {
    auto* window = Window().windowHandle();
    const QPoint thumb = PlaceInWindow(Bar(), PartOfBar(QStyle::SC_ScrollBarSlider).center());
    QTest::mousePress(window, Qt::LeftButton, {}, thumb);
    EXPECT_TRUE(Bar().isSliderDown());
    bool between = false;
    for (int pixel = 1; pixel < 30; ++pixel) {
        QTest::mouseMove(window, thumb + QPoint(0, pixel));
        EXPECT_EQ(CanvasTop(), -Bar().value());
        between = between || Bar().value() % RowHeight() != 0;
    }
    EXPECT_TRUE(between) << "the rows jump instead of following the thumb";
    const int dragged = Bar().value();
    QTest::mouseRelease(window, Qt::LeftButton, {}, thumb + QPoint(0, 29));
    EXPECT_EQ(Bar().value() % RowHeight(), 0);
    EXPECT_LE(std::abs(Bar().value() - dragged), RowHeight() / 2);
    EXPECT_EQ(CanvasTop(), -Bar().value());
}

TEST_F(Scrolling, HalfARowGoesToTheEvenOne) {
    for (int taller = 0; RowHeight() % 2 != 0 && taller < 40; ++taller) {
        Window().resize(Window().width(), Window().height() + taller);
        Settle();
    }
    ASSERT_EQ(RowHeight() % 2, 0) << "no height of a row has a half";
    const int h = RowHeight();
    struct Case {
        int dragged;
        int row;
    };
    const std::vector<Case> rows = {
        {0, 0},
        {h / 2 - 1, 0},
        {h / 2, 0},
        {h / 2 + 1, 1},
        {h, 1},
        {h + h / 2, 2},
        {2 * h + h / 2, 2},
        {3 * h - 1, 3},
        {3 * h + h / 2, 4},
        {9 * h + h / 2, 10},
        {8 * h + h / 2, 8},
    };
    for (const auto& row : rows) {
        Bar().setSliderDown(true);
        Bar().setSliderPosition(row.dragged);
        EXPECT_EQ(CanvasTop(), -row.dragged);
        Bar().setSliderDown(false);
        EXPECT_EQ(TopRow(), row.row) << row.dragged << " of " << h;
        EXPECT_EQ(Bar().value(), row.row * h);
    }
}

TEST_F(Scrolling, TheWheelScrollsWhereverItTurns) {
    Choose(u"cboFrequency(0)", 1);
    for (const QStringView place :
         {u"chkPoints(2)", u"txtPoints(2)", u"cboFrequency(0)", u"cboFrequency(2)", u"txtPandI(2)",
          u"txtWho(2)", u"OfferRow(2)", u"picScroll", u"vsbLoans"}) {
        SCOPED_TRACE(place.toString().toStdString());
        ScrollTo(0);
        Wheel(Control(place), -1);
        EXPECT_EQ(TopRow(), 1);
        EXPECT_EQ(Text(u"cboFrequency(0)"), u"Twice a month");
        EXPECT_EQ(Text(u"cboFrequency(2)"), u"");
    }
    // A focused list keeps its choice, too.
    ScrollTo(0);
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).FrequencyCode().Text(), u"B");
    Click(u"chkPoints(0)");
    for (int step = 0; step < 4; ++step) {
        Tab();
    }
    ASSERT_EQ(FocusName(), u"cboFrequency(0)");
    Wheel(Control(u"cboFrequency(0)"), -1);
    EXPECT_EQ(Text(u"cboFrequency(0)"), u"Twice a month");
    EXPECT_EQ(TopRow(), 1);
}

TEST_F(Scrolling, TheWheelEndsAtBothEnds) {
    Wheel(Control(u"picScroll"), 3);
    EXPECT_EQ(TopRow(), 0);
    Wheel(Control(u"picScroll"), -100);
    EXPECT_EQ(TopRow(), 10);
    Wheel(Control(u"picScroll"), 1);
    EXPECT_EQ(TopRow(), 9);
}

TEST_F(Scrolling, PartsOfANotchAddUp) {
    const QPoint at = PlaceInWindow(Control(u"picScroll"), {200, 20});
    for (const int expected : {0, 0, 1, 1, 1, 2}) {
        TurnWheel(at, -40);
        EXPECT_EQ(TopRow(), expected);
    }
}

TEST_F(Scrolling, TheBarMovesByRowsAndPages) {
    struct Case {
        QStyle::SubControl part;
        int topThen;
    };
    const std::vector<Case> rows = {
        {QStyle::SC_ScrollBarAddLine, 1},  {QStyle::SC_ScrollBarAddLine, 2},
        {QStyle::SC_ScrollBarAddPage, 8},  {QStyle::SC_ScrollBarAddLine, 9},
        {QStyle::SC_ScrollBarAddLine, 10}, {QStyle::SC_ScrollBarAddLine, 10},
        {QStyle::SC_ScrollBarSubLine, 9},  {QStyle::SC_ScrollBarSubPage, 3},
        {QStyle::SC_ScrollBarSubPage, 0},  {QStyle::SC_ScrollBarSubLine, 0},
    };
    int click = 0;
    for (const auto& row : rows) {
        ClickBar(row.part);
        EXPECT_EQ(TopRow(), row.topThen) << "click " << ++click;
        EXPECT_EQ(CanvasTop(), -Bar().value());
    }
}

TEST_F(Scrolling, AnotherSizeOfTheWindowKeepsTheTopRow) {
    ScrollTo(7);
    for (const int taller : {60, 120, -100}) {
        Window().resize(Window().width() + taller, Window().height() + taller);
        Settle();
        EXPECT_EQ(TopRow(), 7);
        EXPECT_EQ(Bar().maximum(), 10 * RowHeight());
    }
}

using NothingToScroll = WindowTest;

TEST_F(NothingToScroll, TheWheelMovesNothing) {
    Open();
    for (const QStringView place : {u"txtPoints(2)", u"cboFrequency(2)", u"picScroll"}) {
        Wheel(Control(place), -1);
        EXPECT_EQ(Control(u"picCanvas").y(), 0);
        EXPECT_EQ(Text(u"cboFrequency(2)"), u"");
    }
}

} // namespace
