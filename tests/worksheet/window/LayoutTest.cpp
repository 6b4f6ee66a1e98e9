// The layout of the window at any size.

#include "OfferRows.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>

#include <vector>

namespace {

struct Screen {
    const char* name;
    QSize size;
};

/// From below the window's minimum size to four times a common desktop.
const std::vector<Screen> Screens = {
    {"Least", {1, 1}},      {"Small", {960, 540}},          {"Usual", {1280, 800}},
    {"High", {1000, 1600}}, {"Maximised", {1920, 1080}},    {"Odd", {2001, 1199}},
    {"Wide", {3840, 700}},  {"FourThousand", {3840, 2160}},
};

struct Shape {
    Screen screen;
    int offers;
};

std::vector<Shape> Shapes() {
    std::vector<Shape> shapes;
    for (const Screen& screen : Screens) {
        for (const int offers : {1, 6, 16}) {
            shapes.push_back({screen, offers});
        }
    }
    return shapes;
}

void PrintTo(const Shape& shape, std::ostream* out) {
    *out << shape.screen.name << ' ' << shape.offers;
}

class Layout : public WindowTest, public ::testing::WithParamInterface<Shape> {
protected:
    Layout() {
        Open({.loansDisplayed = GetParam().offers - 1});
        Window().resize(GetParam().screen.size);
        Settle();
    }
    QRect PlaceOf(QStringView name) const {
        const QWidget& control = Control(name);
        return {control.mapTo(&Control(u"centralWidget"), QPoint()), control.size()};
    }
};

INSTANTIATE_TEST_SUITE_P(Shapes, Layout, ::testing::ValuesIn(Shapes()), [](const auto& shape) {
    return shape.param.screen.name + std::to_string(shape.param.offers);
});

/// A gap between two of them would be printed, too.
TEST_P(Layout, EverythingFollowsWhatIsAboveIt) {
    constexpr int most = 20;
    const std::vector<QStringView> downwards = {
        u"txtCurPayoffDate", u"Line3", u"picHeadings", u"Line4", u"picScroll", u"lblHint"};
    EXPECT_LE(PlaceOf(u"cboLoanName").top(), most);
    for (std::size_t below = 1; below < downwards.size(); ++below) {
        const int gap =
            PlaceOf(downwards.at(below)).top() - PlaceOf(downwards.at(below - 1)).bottom() - 1;
        EXPECT_GE(gap, 0) << downwards.at(below).toString().toStdString();
        EXPECT_LE(gap, most) << downwards.at(below).toString().toStdString();
    }
}

TEST_P(Layout, TheFrameHoldsTheRowsOnDisplayAndNoMore) {
    const int row = Bar().singleStep();
    const QRect frame = PlaceOf(u"picScroll");
    EXPECT_EQ(PlaceOf(u"OfferRow(0)").top(), frame.top());
    EXPECT_GE(frame.height(), GetParam().offers * row);
    EXPECT_LT(frame.height(), GetParam().offers * (row + 1));
    EXPECT_EQ(PlaceOf(u"vsbLoans").top(), frame.top());
    EXPECT_EQ(PlaceOf(u"vsbLoans").height(), frame.height());
    EXPECT_EQ(Bar().maximum(), 0);
}

/// A screen of 1920 by 1080 at 200 %, without the desktop's panel and the title bar.
class SmallScreen : public WindowTest {
protected:
    void OpenSmall(const Start& start) {
        Open(start);
        Window().resize(960, 480);
        Settle();
    }
    bool IsInSight(const QWidget& control) const {
        const QWidget& view = *Get<QAbstractScrollArea>(u"scrWindow").viewport();
        return view.rect().contains(QRect(control.mapTo(&view, QPoint()), control.size()));
    }
};

TEST_F(SmallScreen, HoldsTheWindow) {
    for (const int language : {English, Spanish}) {
        for (const int offers : {1, 6, 16}) {
            OpenSmall({.language = language, .loansDisplayed = offers - 1});
            EXPECT_LE(Window().width(), 960);
            EXPECT_LE(Window().height(), 480);
            Shut();
        }
    }
}

TEST_F(SmallScreen, TheTabKeyBringsEveryFieldIntoSight) {
    OpenSmall({.language = Spanish, .loansDisplayed = 14});
    Window().resize(500, 300);
    Settle();
    Control(u"cboLoanName").setFocus(Qt::TabFocusReason);
    QStringList visited;
    while (!visited.contains(FocusName())) {
        visited.append(FocusName());
        EXPECT_TRUE(IsInSight(*QApplication::focusWidget())) << FocusName().toStdString();
        Tab();
    }
    EXPECT_GT(visited.size(), 100);
}

TEST_F(SmallScreen, TheWheelScrollsTheRowsFirstAndThenTheWindow) {
    OpenSmall({.loansDisplayed = 14});
    Window().Rows().GrowTo(Row{15});
    auto& window = *Get<QAbstractScrollArea>(u"scrWindow").verticalScrollBar();
    ASSERT_GT(window.maximum(), 0);
    Wheel(Control(u"picHeadings"), -1);
    const int scrolled = window.value();
    EXPECT_GT(scrolled, 0) << "over what does not scroll by itself";
    Wheel(Control(u"txtTerm(1)"), -1);
    EXPECT_EQ(Bar().value(), Bar().maximum());
    EXPECT_EQ(window.value(), scrolled);
    Wheel(Control(u"txtTerm(2)"), -1);
    EXPECT_GT(window.value(), scrolled);
    EXPECT_EQ(Text(u"cboFrequency(1)"), u"");
}

/// If a click scrolled, the button would be released over another control.
TEST_F(SmallScreen, AClickScrollsNothing) {
    OpenSmall({.loansDisplayed = 14});
    auto& window = *Get<QAbstractScrollArea>(u"scrWindow").verticalScrollBar();
    window.setValue(20);
    Click(u"txtLoanAmount");
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
    EXPECT_EQ(window.value(), 20);
}

using WindowHeight = WindowTest;

TEST_F(WindowHeight, FollowsTheNumberOfOffersAtOnce) {
    Open();
    Settings settings = Window().GetSettings();
    const auto& view = Get<QAbstractScrollArea>(u"scrWindow");
    for (const int offers : {9, 6, 1, 6, 8, 2}) {
        settings.loansDisplayed = offers - 1;
        Window().ApplySettings(settings);
        Settle();
        const int needed = Control(u"centralWidget").minimumSizeHint().height();
        EXPECT_EQ(view.viewport()->height(), needed) << offers;
        EXPECT_EQ(Control(u"centralWidget").height(), needed) << offers;
    }
}

TEST_F(WindowHeight, EndsAtTheScreen) {
    Open();
    Settings settings = Window().GetSettings();
    settings.loansDisplayed = 15;
    Window().ApplySettings(settings);
    Settle();
    EXPECT_LE(Window().height(), Window().screen()->availableGeometry().height());
    settings.loansDisplayed = 0;
    Window().ApplySettings(settings);
    Settle();
    EXPECT_EQ(Window().height(), Window().sizeHint().height());
}

class Hint : public WindowTest {
protected:
    void Clear(QStringView name) {
        Enter(name);
        Press(Qt::Key_Delete);
        Tab();
    }
};

TEST_F(Hint, GoesOnceTheOffersAreComplete) {
    Open();
    const QWidget& hint = Control(u"lblHint");
    EXPECT_TRUE(hint.isVisible());
    const int height = Window().sizeHint().height();
    Fill(u"txtLoanAmount", u"100000");
    Fill(u"txtInterestRate(0)", u"6");
    Fill(u"txtTerm(0)", u"30");
    EXPECT_TRUE(hint.isVisible()) << "the frequency lacks";
    Choose(u"cboFrequency(0)", 0);
    EXPECT_FALSE(hint.isVisible());
    EXPECT_EQ(Window().sizeHint().height(), height) << "its place stays";
    Fill(u"txtInterestRate(1)", u"5");
    EXPECT_TRUE(hint.isVisible()) << "another offer is begun";
    Clear(u"txtInterestRate(1)");
    EXPECT_FALSE(hint.isVisible());
    Clear(u"txtLoanAmount");
    EXPECT_TRUE(hint.isVisible());
}

} // namespace
