// The chart is read and its horizon moved by mouse and keys.

#include "ChartWidget.h"
#include "ChartSamples.h"
#include "Language.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<int> YearsOf(const QSignalSpy& spy) {
    std::vector<int> years;
    for (const QList<QVariant>& call : spy) {
        years.push_back(call.front().toInt());
    }
    return years;
}

class ChartWindow : public testing::Test {
protected:
    ChartWindow() {
        m_chart.setFont(SampleFont());
        m_chart.setGeometry(0, 0, 700, 360);
        m_other.setGeometry(0, 370, 100, 20);
        m_window.resize(700, 400);
        m_chart.SetData(MakeSample({.lines = 3}), Dollars());
        m_other.setFocus();
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&m_chart, static_cast<Qt::Key>(key), modifiers);
    }
    void Focus() { m_chart.setFocus(Qt::TabFocusReason); }
    void MoveTo(const QPointF& position) { QTest::mouseMove(&m_chart, position.toPoint()); }
    void PressAt(const QPointF& position) {
        QTest::mousePress(&m_chart, Qt::LeftButton, {}, position.toPoint());
    }
    void ReleaseAt(const QPointF& position) {
        QTest::mouseRelease(&m_chart, Qt::LeftButton, {}, position.toPoint());
    }
    /// As a pressed mouse does, which QTest refuses.
    void DragOut(const QPointF& position) {
        QMouseEvent move(QEvent::MouseMove, position, m_chart.mapToGlobal(position), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&m_chart, &move);
    }
    QPointF At(double month) const {
        return {m_chart.Layout().scale.XOf(month), m_chart.Layout().plot.center().y()};
    }
    int Month() const { return m_chart.Mark() ? m_chart.Mark()->month : -1; }
    std::string Heard(QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(&m_chart)->text(kind).toStdString();
    }

    QWidget m_window;
    QLineEdit m_other{&m_window};
    ChartWidget m_chart{&m_window};
    QSignalSpy m_moved{&m_chart, &ChartWidget::HorizonChanged};
};

TEST_F(ChartWindow, KeysReadMonths) {
    struct Step {
        int key;
        Qt::KeyboardModifiers modifiers;
        int month;
    };
    Focus();
    EXPECT_EQ(60, Month()) << "the horizon is read first";
    for (const Step& step : std::vector<Step>{
             {Qt::Key_Right, {}, 61},
             {Qt::Key_Left, {}, 60},
             {Qt::Key_Left, {}, 59},
             {Qt::Key_Right, Qt::ControlModifier, 71},
             {Qt::Key_Left, Qt::ControlModifier, 59},
             {Qt::Key_Home, {}, 0},
             {Qt::Key_Left, {}, 0},
             {Qt::Key_Right, {}, 1},
             {Qt::Key_Left, Qt::ControlModifier, 0},
             {Qt::Key_End, {}, 360},
             {Qt::Key_Right, {}, 360},
             {Qt::Key_Left, Qt::KeypadModifier, 359},
         }) {
        Press(step.key, step.modifiers);
        EXPECT_EQ(step.month, Month()) << step.key;
    }
    m_chart.clearFocus();
    EXPECT_EQ(-1, Month());
    EXPECT_TRUE(m_moved.empty());
}

TEST_F(ChartWindow, UpAndDownChooseTheLineAboveOrBelow) {
    Focus();
    EXPECT_EQ(0, m_chart.Mark()->chosen);
    for (const auto& [key, line] : std::vector<std::pair<int, int>>{{Qt::Key_Up, 0},
                                                                    {Qt::Key_Down, 1},
                                                                    {Qt::Key_Down, 2},
                                                                    {Qt::Key_Down, 2},
                                                                    {Qt::Key_Up, 1}}) {
        Press(key);
        EXPECT_EQ(line, m_chart.Mark()->chosen);
    }
    ChartData turned = MakeSample({.lines = 3});
    std::ranges::reverse(turned.lines);
    Press(Qt::Key_Down);
    m_chart.SetData(turned, Dollars());
    EXPECT_EQ(0, m_chart.Mark()->chosen) << "the same loan in its new place";
}

TEST_F(ChartWindow, KeysMoveTheHorizonByAYear) {
    Focus();
    Press(Qt::Key_Plus);
    Press(Qt::Key_Right, Qt::AltModifier);
    Press(Qt::Key_Minus);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ((std::vector{6, 7, 6, 5}), YearsOf(m_moved));
    for (int i = 0; i < 60; ++i) {
        Press(Qt::Key_Plus, Qt::ShiftModifier);
    }
    EXPECT_EQ(50, m_chart.Data().years);
    EXPECT_EQ(600, m_chart.Layout().scale.span);
    for (int i = 0; i < 60; ++i) {
        Press(Qt::Key_Minus, Qt::KeypadModifier);
    }
    EXPECT_EQ(1, m_chart.Data().years);
    EXPECT_EQ(60, Month()) << "what is read stays";
}

TEST_F(ChartWindow, TheHorizonIsDraggedInWholeYears) {
    PressAt(At(60));
    MoveTo(At(64));
    EXPECT_TRUE(m_moved.empty());
    MoveTo(At(68));
    MoveTo(At(121));
    EXPECT_EQ((std::vector{6, 10}), YearsOf(m_moved)) << "while it is dragged";
    EXPECT_EQ(-1, Month());
    DragOut({-500, 100});
    EXPECT_EQ(1, m_chart.Data().years);
    DragOut({50'000, 100});
    EXPECT_EQ(50, m_chart.Data().years);
    ReleaseAt(At(300));
    EXPECT_EQ(600, m_chart.Layout().scale.span);
    m_moved.clear();
    MoveTo(At(60));
    EXPECT_TRUE(m_moved.empty()) << "released";
}

TEST_F(ChartWindow, NewDataDoNotEndADrag) {
    ChartData shorter = MakeSample({.lines = 3, .months = 60});
    PressAt(At(60));
    const QPointF later = At(240);
    for (const int years : {12, 20}) {
        shorter.years = years;
        MoveTo(At(years * 12));
        m_chart.SetData(shorter, Dollars());
        EXPECT_EQ(360, m_chart.Layout().scale.span) << "the picture does not move meanwhile";
    }
    ReleaseAt(later);
    EXPECT_EQ(20, m_chart.Data().years);
    EXPECT_EQ(240, m_chart.Layout().scale.span);
}

TEST_F(ChartWindow, EscapeEndsADragWithoutAChange) {
    PressAt(At(60));
    MoveTo(At(120));
    Press(Qt::Key_Escape);
    EXPECT_EQ((std::vector{10, 5}), YearsOf(m_moved));
    ReleaseAt(At(120));
    EXPECT_EQ(5, m_chart.Data().years);
}

TEST_F(ChartWindow, OnlyTheHorizonCanBeDragged) {
    PressAt(At(90));
    MoveTo(At(200));
    ReleaseAt(At(200));
    QTest::mousePress(&m_chart, Qt::RightButton, {}, At(60).toPoint());
    MoveTo(At(100));
    EXPECT_TRUE(m_moved.empty());
}

TEST_F(ChartWindow, TheMouseReadsAndShowsWhatCanBeDragged) {
    MoveTo(At(180));
    EXPECT_NEAR(180, Month(), 1);
    EXPECT_EQ(-1, m_chart.Mark()->chosen);
    EXPECT_EQ(Qt::ArrowCursor, m_chart.cursor().shape());
    MoveTo(At(60));
    EXPECT_EQ(Qt::SizeHorCursor, m_chart.cursor().shape());
    MoveTo({m_chart.width() - 5.0, 100});
    EXPECT_EQ(-1, Month()) << "on the labels";
    MoveTo(At(180));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&m_chart, &leave);
    EXPECT_EQ(-1, Month());
    MoveTo(At(30));
    Focus();
    Press(Qt::Key_Right);
    EXPECT_EQ(61, Month());
    MoveTo(At(90)); // a move to where the mouse is already is none
    MoveTo(At(30));
    Press(Qt::Key_Right);
    EXPECT_NEAR(31, Month(), 1) << "the keys go on where the mouse reads";
}

TEST_F(ChartWindow, ScreenReadersHearWhatIsRead) {
    EXPECT_EQ(QAccessible::Chart, QAccessible::queryAccessibleInterface(&m_chart)->role());
    EXPECT_EQ("Cost so far", Heard(QAccessible::Name));
    EXPECT_EQ("Left and Right read another month, Up and Down another loan. Plus and Minus change "
              "the years.",
              Heard(QAccessible::Value));
    Focus();
    EXPECT_EQ("Month 60: Lender 1 has cost $76,388.89.", Heard(QAccessible::Value));
    Press(Qt::Key_Down);
    Press(Qt::Key_End);
    EXPECT_EQ("Month 360: Lender 2 has cost $240,000.00.", Heard(QAccessible::Description));
    m_chart.SetData(MakeSample({.lines = 3, .shows = ChartShows::Balance}), Dollars());
    EXPECT_EQ("Balance", Heard(QAccessible::Name));
    EXPECT_EQ("Month 360: with Lender 2, $0.00 is still owed.", Heard(QAccessible::Value));
    m_chart.SetData({}, Dollars());
    EXPECT_EQ("No loan is complete enough to be shown here.", Heard(QAccessible::Value));
}

TEST_F(ChartWindow, FollowsTheLanguage) {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    Language::Instance().LoadLanguage(2);
    Focus();
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(&m_chart, &change);
    EXPECT_EQ("Costo acumulado", Heard(QAccessible::Name));
    EXPECT_EQ("Mes 60: Lender 1 ha costado $76,388.89.", Heard(QAccessible::Value));
    EXPECT_EQ("Al cabo de 5 años", m_chart.Layout().horizon.text.toStdString());
    Language::Instance().SetUp({}, QStringLiteral("Loan"));
}

TEST_F(ChartWindow, ADragEndsWhereTheButtonIsUp) {
    PressAt(At(60));
    QMouseEvent move(QEvent::MouseMove, At(120), m_chart.mapToGlobal(At(120)), Qt::NoButton,
                     Qt::NoButton, {});
    QApplication::sendEvent(&m_chart, &move);
    EXPECT_TRUE(m_moved.empty());
    ReleaseAt(At(120));
}

TEST_F(ChartWindow, WithoutLinesNothingFails) {
    m_chart.SetData({}, Dollars());
    Focus();
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End}) {
        Press(key);
    }
    MoveTo({300, 100});
    m_chart.grab();
    EXPECT_FALSE(m_chart.Mark());
}

TEST_F(ChartWindow, OtherKeysAndTheWheelAreLeftToTheWindow) {
    for (const int key : {Qt::Key_A, Qt::Key_Escape, Qt::Key_Return, Qt::Key_PageDown}) {
        QKeyEvent press(QEvent::KeyPress, key, {});
        press.accept();
        QApplication::sendEvent(&m_chart, &press);
        EXPECT_FALSE(press.isAccepted()) << key;
    }
    QWheelEvent wheel(At(60), m_chart.mapToGlobal(At(60)), {}, {0, 120}, {}, {}, {}, false);
    wheel.accept();
    QApplication::sendEvent(&m_chart, &wheel);
    EXPECT_FALSE(wheel.isAccepted());
}

TEST_F(ChartWindow, FollowsPaletteFontAndFocus) {
    m_chart.setPalette(LightPalette());
    const QImage light = m_chart.grab().toImage();
    EXPECT_EQ(QColor(Qt::white), light.pixelColor(1, 1));
    m_chart.setPalette(DarkPaletteOfChart());
    const QImage dark = m_chart.grab().toImage();
    EXPECT_EQ(QColor(25, 25, 25), dark.pixelColor(1, 1));
    m_chart.setFont(SampleFont(14));
    EXPECT_NE(dark, m_chart.grab().toImage());
    const QImage unfocused = m_chart.grab().toImage();
    m_chart.setFocus(Qt::OtherFocusReason);
    EXPECT_FALSE(m_chart.Mark());
    EXPECT_NE(unfocused, m_chart.grab().toImage()) << "the frame of the focus";
}

} // namespace
