// The number of offer rows, and moving through them by arrow keys.

#include "QuendNames.h"
#include "WindowFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

#include <array>
#include <vector>

namespace {

constexpr int RowCap = 16;

constexpr std::array<QStringView, 7> FieldsOfARow = {
    u"chkPoints",    u"txtPoints",        u"txtInterestRate", u"txtTerm",
    u"cboFrequency", u"txtActualPayment", u"txtWho"};

class RowsDisplayed : public WindowTest, public ::testing::WithParamInterface<int> {
protected:
    RowsDisplayed() { Open({.loansDisplayed = Displayed() - 1}); }

    static int Displayed() { return GetParam(); }
    int Height() const { return Bar().singleStep(); }
    void WalkDown(int steps) {
        Click(u"txtPoints(0)");
        for (int step = 0; step < steps; ++step) {
            Press(Qt::Key_Down);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Rows, RowsDisplayed, ::testing::Values(1, 2, 5, 6, 15, 16));

TEST_P(RowsDisplayed, AreThereAtTheStartAndNoMore) {
    EXPECT_EQ(RowCount(), Displayed());
    EXPECT_EQ(Sheet().HighestOfferRow(), Row{Displayed() - 1});
    EXPECT_FALSE(Bar().isEnabled());
    EXPECT_EQ(Bar().maximum(), 0);
    const QWidget& last = Control(RowName(u"OfferRow", Displayed() - 1));
    const QWidget& frame = Control(u"picScroll");
    EXPECT_LE(last.mapTo(&frame, last.rect().bottomLeft()).y(), frame.height());
}

TEST_P(RowsDisplayed, EnteringTheLastRowAppendsOneAndScrollsByOne) {
    const int added = Displayed() < RowCap ? 1 : 0;
    Click(RowName(u"txtTerm", Displayed() - 1));
    EXPECT_EQ(RowCount(), Displayed() + added);
    EXPECT_EQ(Bar().isEnabled(), added == 1);
    EXPECT_EQ(Bar().maximum(), added * Height());
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_TRUE(Bar().isVisible());
    Click(RowName(u"txtTerm", Displayed() - 1)); // no longer the last row
    EXPECT_EQ(RowCount(), Displayed() + added);
}

TEST_P(RowsDisplayed, ThereIsNoRowBeyondTheCap) {
    WalkDown(30);
    EXPECT_EQ(FocusName(), u"txtPoints(15)");
    EXPECT_EQ(RowCount(), RowCap);
    EXPECT_EQ(Sheet().HighestOfferRow(), Row{RowCap - 1});
    EXPECT_EQ(Bar().maximum(), (RowCap - Displayed()) * Height());
    EXPECT_EQ(Bar().value(), Bar().maximum());
    Click(u"txtWho(15)");
    Click(u"txtPoints(15)");
    EXPECT_EQ(RowCount(), RowCap);
}

TEST_P(RowsDisplayed, RowsAreOneBelowTheOther) {
    WalkDown(30);
    for (int row = 0; row < RowCap; ++row) {
        const QWidget& controls = Control(RowName(u"OfferRow", row));
        EXPECT_EQ(controls.y(), row * Height());
        EXPECT_TRUE(controls.isVisibleTo(&Control(u"picCanvas"))) << row;
        for (const QStringView field : FieldsOfARow) {
            EXPECT_EQ(Control(RowName(field, row)).x(), Control(RowName(field, 0)).x());
        }
    }
    EXPECT_EQ(Control(u"picCanvas").height(), RowCap * Height());
}

class FieldOfARow : public WindowTest, public ::testing::WithParamInterface<QStringView> {
protected:
    FieldOfARow() { Open(); }
};

INSTANTIATE_TEST_SUITE_P(Fields, FieldOfARow, ::testing::ValuesIn(FieldsOfARow));

TEST_P(FieldOfARow, EnteredInTheLastRowAppendsAnEmptyOne) {
    Click(RowName(GetParam(), 5));
    Press(Qt::Key_Escape); // closes the list that the click opened
    EXPECT_EQ(RowCount(), 7);
    EXPECT_FALSE(Get<QCheckBox>(u"chkPoints(6)").isChecked());
    EXPECT_EQ(List(u"cboFrequency(6)").currentIndex(), -1);
    EXPECT_EQ(List(u"cboFrequency(6)").count(), 4);
    for (const QStringView edit :
         {u"txtPoints", u"txtInterestRate", u"txtTerm", u"txtPandI", u"txtPayment",
          u"txtActualPayment", u"txtPayoffDate", u"txtInterest", u"txtWho"}) {
        EXPECT_EQ(Text(RowName(edit, 6)), u"");
    }
}

TEST_P(FieldOfARow, EnteredInAnotherRowAppendsNone) {
    for (int row = 0; row < 5; ++row) {
        Click(RowName(GetParam(), row));
        Press(Qt::Key_Escape);
    }
    EXPECT_EQ(RowCount(), 6);
}

using AppendedRow = WindowTest;

TEST_F(AppendedRow, TakesAnOfferLikeAnyOther) {
    Open();
    FillFirstOffer();
    Click(u"txtPoints(5)");
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtPoints(6)");
    Fill(u"txtInterestRate(6)", u"6");
    Fill(u"txtTerm(6)", u"30");
    Choose(u"cboFrequency(6)", 1);
    EXPECT_EQ(Text(u"txtPandI(6)"), u"$299.64");
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$599.55");
}

struct Column {
    QStringView name;
    bool onKeyPress; ///< moves on key press; otherwise on key release
    QStringView typed;
    QStringView shown;
};

void PrintTo(const Column& column, std::ostream* out) { PrintTo(column.name, out); }

class ArrowKeys : public WindowTest, public ::testing::WithParamInterface<Column> {
protected:
    ArrowKeys() { Open(); }
    static QString InRow(int row) { return RowName(GetParam().name, row); }
};

INSTANTIATE_TEST_SUITE_P(Columns, ArrowKeys,
                         ::testing::Values(Column{u"txtPoints", true, u"1.5", u"1.500"},
                                           Column{u"txtInterestRate", false, u"6", u"6.000%"},
                                           Column{u"txtTerm", false, u"30", u"30"},
                                           Column{u"txtActualPayment", false, u"700", u"$700.00"},
                                           Column{u"txtWho", true, u"Bank", u"Bank"}),
                         [](const auto& column) {
                             return column.param.name.toString().toStdString();
                         });

TEST_P(ArrowKeys, WalkThroughTheRowsAndStore) {
    Click(InRow(1));
    Type(GetParam().typed);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), InRow(2));
    EXPECT_EQ(Text(InRow(1)), GetParam().shown);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), InRow(3));
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), InRow(1));
    Type(u"7");
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), InRow(0));
}

TEST_P(ArrowKeys, ArriveInEntryForm) {
    Fill(InRow(1), GetParam().typed);
    Click(InRow(0));
    Press(Qt::Key_Down);
    EXPECT_EQ(Text(InRow(1)), GetParam().typed);
    if (GetParam().name != u"txtWho") {
        EXPECT_EQ(Edit(InRow(1)).selectedText(), GetParam().typed);
    }
}

TEST_P(ArrowKeys, AppendARowOnTheirWayDown) {
    Click(InRow(4));
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), InRow(5));
    EXPECT_EQ(RowCount(), 7);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), InRow(6));
    EXPECT_EQ(RowCount(), 8);
}

/// Counts the keys that a field passes to its parent.
class Unused : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            ++presses;
        }
        if (event->type() == QEvent::KeyRelease) {
            ++releases;
        }
        return false;
    }
    int presses = 0;
    int releases = 0;
};

TEST_P(ArrowKeys, StayAtBothEndsAndAreUsedUp) {
    struct Case {
        int row;
        Qt::Key key;
    };
    const std::vector<Case> ends = {{0, Qt::Key_Up}, {15, Qt::Key_Down}};
    Click(InRow(0));
    for (const auto& end : ends) {
        for (int step = 0; step < end.row; ++step) {
            Press(Qt::Key_Down);
        }
        ASSERT_EQ(FocusName(), InRow(end.row));
        Unused unused;
        Control(RowName(u"OfferRow", end.row)).installEventFilter(&unused);
        Press(end.key);
        EXPECT_EQ(FocusName(), InRow(end.row));
        EXPECT_EQ(GetParam().onKeyPress ? unused.presses : unused.releases, 0);
        EXPECT_EQ(RowCount(), end.row == 0 ? 6 : RowCap);
    }
}

TEST_P(ArrowKeys, OtherKeysStay) {
    Click(InRow(1));
    for (const Qt::Key key :
         {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown}) {
        Press(key);
        EXPECT_EQ(FocusName(), InRow(1));
    }
}

TEST_F(AppendedRow, AKeyThatClosedAListDoesNotMoveOn) {
    Open();
    Click(u"cboFrequency(1)");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Settle();
    ActivateAgain();
    EXPECT_EQ(FocusName(), u"cboFrequency(1)");
}

} // namespace
