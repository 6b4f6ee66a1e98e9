// When a press in an offer field becomes a drag, and what it then carries. A real drag needs a
// window system; here it ends at once.

#include "DragFixture.h"

#include <QApplication>
#include <QDrag>
#include <QLineEdit>
#include <QPixmap>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// What a drag carries when it starts.
struct Begun {
    QString text;
    Qt::DropActions actions;
    bool hasPixmap = false;
};

class DragStart : public DragTest {
protected:
    DragStart() {
        Open();
        FillOffers();
        QApplication::instance()->installEventFilter(&m_watch);
    }

    static QPoint Middle(const QWidget& control) { return control.rect().center(); }
    static int Distance() { return QApplication::startDragDistance(); }

    /// Presses in the middle of a field and moves this far to the right; returns the drags started.
    std::vector<Begun> Drag(QStringView name, int distance, Qt::MouseButton button = Qt::LeftButton,
                            Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const QWidget& control = Control(name);
        const QPoint from = Middle(control);
        m_watch.begun.clear();
        DragMouse(control, from, from + QPoint(distance, 0), button, modifiers);
        QTest::mouseRelease(Window().windowHandle(), button, modifiers,
                            PlaceInWindow(control, from + QPoint(distance, 0)));
        Settle();
        return m_watch.begun;
    }
    std::vector<Begun> Drag(QStringView name) { return Drag(name, 3 * Distance()); }

private:
    /// A drag has started and ended when Qt deletes it.
    struct Watch : QObject {
        std::vector<Begun> begun;
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (const auto* drag = qobject_cast<QDrag*>(watched);
                drag != nullptr && event->type() == QEvent::DeferredDelete) {
                begun.push_back(
                    {drag->mimeData()->text(), drag->supportedActions(), !drag->pixmap().isNull()});
            }
            return false;
        }
    };
    Watch m_watch;
};

TEST_F(DragStart, TakesTheValueAlong) {
    struct {
        QStringView field;
        QStringView text;
    } const table[]{
        {u"txtPoints(0)", u"1.5"},         {u"txtPoints(1)", u"0"}, // never entered
        {u"txtInterestRate(0)", u"0.065"}, {u"txtInterestRate(1)", u"0.0625"},
        {u"txtActualPayment(0)", u"700"},  {u"txtWho(0)", u"Bank 1"},
    };
    for (const auto& row : table) {
        const auto begun = Drag(row.field);
        ASSERT_EQ(begun.size(), 1U) << row.field.toString().toStdString();
        EXPECT_EQ(begun.front().text, row.text);
        EXPECT_EQ(begun.front().actions, Qt::CopyAction);
        EXPECT_TRUE(begun.front().hasPixmap);
    }
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(DragStart, NothingToTakeAlongIsNoDrag) {
    EXPECT_TRUE(Drag(u"txtActualPayment(4)").empty());
    EXPECT_TRUE(Drag(u"txtWho(4)").empty());
}

TEST_F(DragStart, OtherFieldsDoNotDrag) {
    EXPECT_TRUE(Drag(u"txtTerm(0)").empty());
    EXPECT_TRUE(Drag(u"txtPandI(0)").empty());
    EXPECT_TRUE(Drag(u"txtLoanAmount").empty());
}

TEST_F(DragStart, TakesTheLeftButtonAlone) {
    EXPECT_TRUE(Drag(u"txtPoints(0)", 3 * Distance(), Qt::RightButton).empty());
    EXPECT_TRUE(Drag(u"txtPoints(2)", 3 * Distance(), Qt::MiddleButton).empty());
    EXPECT_TRUE(
        Drag(u"txtInterestRate(0)", 3 * Distance(), Qt::LeftButton, Qt::ShiftModifier).empty());
}

TEST_F(DragStart, TakesThePlatformsDistance) {
    EXPECT_TRUE(Drag(u"txtPoints(0)", Distance() - 1).empty());
    EXPECT_EQ(Edit(u"txtPoints(0)").selectedText(), u"1.5"); // an entering click selects all
    EXPECT_EQ(Drag(u"txtPoints(2)", 2 * Distance()).size(), 1U);
}

TEST_F(DragStart, AFieldThatWasEnteredByKeysDragsFromItsSelection) {
    Enter(u"chkPoints(0)");
    Tab();
    ASSERT_EQ(FocusName(), u"txtPoints(0)");
    EXPECT_EQ(Drag(u"txtPoints(0)").size(), 1U);
    EXPECT_EQ(Edit(u"txtPoints(0)").selectedText(), u"1.5"); // as before the drag
}

TEST_F(DragStart, AClickInTheFieldBeingEditedSetsTheCaret) {
    Click(u"txtPoints(0)");
    EXPECT_EQ(Edit(u"txtPoints(0)").selectedText(), u"1.5");
    const QRect text = Edit(u"txtPoints(0)").rect();
    Click(Edit(u"txtPoints(0)"), text.center() - QPoint(text.width() / 2 - 2, 0));
    EXPECT_FALSE(Edit(u"txtPoints(0)").hasSelectedText());
    EXPECT_EQ(Edit(u"txtPoints(0)").cursorPosition(), 0);
}

TEST_F(DragStart, TheMouseStillSelectsInTheFieldBeingEdited) {
    for (const QStringView field : {u"txtPoints(0)", u"txtWho(0)"}) {
        Click(field);
        Click(field); // only sets the caret
        ASSERT_FALSE(Edit(field).hasSelectedText());
        const QRect area = Edit(field).rect();
        DragMouse(Edit(field), QPoint(2, area.center().y()),
                  QPoint(area.right() - 2, area.center().y()), Qt::LeftButton);
        EXPECT_EQ(Edit(field).selectedText(), Edit(field).text());
        QTest::mouseRelease(
            Window().windowHandle(), Qt::LeftButton, {},
            PlaceInWindow(Edit(field), QPoint(area.right() - 2, area.center().y())));
        Tab();
    }
}

TEST_F(DragStart, AFieldIsDraggedAgainAndAgain) {
    for (const QStringView field : {u"txtPoints(0)", u"txtActualPayment(0)", u"txtWho(0)"}) {
        for (int times = 0; times < 3; ++times) {
            EXPECT_EQ(Drag(field).size(), 1U) << field.toString().toStdString() << ' ' << times;
        }
    }
    // After another click, which sets the caret, a press selects.
    Click(u"txtWho(0)");
    EXPECT_TRUE(Drag(u"txtWho(0)").empty());
}

TEST_F(DragStart, WhatIsBeingTypedIsStoredBeforeItTravels) {
    Enter(u"txtPoints(0)");
    Type(u"2.25");
    Press(Qt::Key_A, Qt::ControlModifier);
    const auto begun = Drag(u"txtPoints(0)");
    ASSERT_EQ(begun.size(), 1U);
    EXPECT_EQ(begun.front().text, u"2.25");
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_F(DragStart, WhatIsRefusedDoesNotTravel) {
    Enter(u"txtPoints(0)");
    Paste(u"1.2.3");
    Press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(Drag(u"txtPoints(0)").empty());
    EXPECT_TRUE(
        WaitFor([this] { return !Messages().Texts().isEmpty(); })); // after the button release
    EXPECT_EQ(SettledMessages(), QStringList{u"Please enter a number of the form nnnn.nnn"_s});
    EXPECT_EQ(Text(u"txtPoints(0)"), u"1.2.3");
}

TEST_F(DragStart, APressThatIsRefusedDoesNotDrag) {
    Enter(u"txtTerm(0)");
    Paste(u"1.2.3");
    EXPECT_TRUE(Drag(u"txtPoints(1)").empty());
    EXPECT_EQ(FocusName(), u"txtTerm(0)");
}

} // namespace
