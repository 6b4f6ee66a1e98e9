// What may be dropped on an offer field, and its effects.

#include "DragFixture.h"
#include "QuendNames.h"

#include <QLineEdit>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

class DropOnFields : public DragTest {
protected:
    DropOnFields() {
        Open();
        FillOffers();
    }
};

TEST_F(DropOnFields, StoresAndBringsTheRowUpToDate) {
    EXPECT_EQ(Drop(u"txtPoints(3)", u"1.5"), Copied);
    EXPECT_EQ(Text(u"txtPoints(3)"), u"1.500");
    EXPECT_EQ(Sheet().OfferOfRow(Row{3}).Points(), Percent::FromPercent(1.5));
    EXPECT_TRUE(Sheet().Dirty());

    EXPECT_EQ(Drop(u"txtInterestRate(1)", u"0.065"), Copied);
    EXPECT_EQ(Text(u"txtInterestRate(1)"), u"6.500%");
    EXPECT_EQ(Text(u"txtPandI(1)"), Text(u"txtPandI(0)"));

    EXPECT_EQ(Drop(u"txtActualPayment(1)", u"800.25"), Copied);
    EXPECT_EQ(Text(u"txtActualPayment(1)"), u"$800.25");

    EXPECT_EQ(Drop(u"txtWho(1)", u"Old Mill"), Copied);
    EXPECT_EQ(Text(u"txtWho(1)"), u"Old Mill");
    EXPECT_EQ(Sheet().OfferOfRow(Row{1}).Who(), u"Old Mill");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(DropOnFields, GoesToTheOfferThatTheRowShowsAfterASort) {
    EXPECT_EQ(Drop(u"txtActualPayment(1)", u"900"), Copied);
    Click(u"cmdInterest");
    const OfferIndex first = Sheet().OfferIndexOfRow(Row{0});
    const OfferIndex second = Sheet().OfferIndexOfRow(Row{1});
    ASSERT_EQ(first.value, 1U) << "the least interest";
    ASSERT_EQ(second.value, 0U);
    EXPECT_EQ(Drop(u"txtPoints(0)", u"3.125"), Copied);
    EXPECT_EQ(Drop(u"txtWho(1)", u"Old Mill"), Copied);
    EXPECT_EQ(Sheet().Offer(first).Points(), Percent::FromPercent(3.125));
    EXPECT_EQ(Sheet().Offer(second).Points(), Percent::FromPercent(1.5));
    EXPECT_EQ(Sheet().Offer(first).Who(), u"Bank 2");
    EXPECT_EQ(Sheet().Offer(second).Who(), u"Old Mill");
    EXPECT_EQ(Text(u"txtPoints(0)"), u"3.125");
    EXPECT_EQ(Text(u"txtWho(1)"), u"Old Mill");
    EXPECT_EQ(Sheet().OfferIndexOfRow(Row{0}), first) << "a drop does not sort again";
}

// A lender of several lines is dragged whole, although the field shows one line.
TEST_F(DropOnFields, LenderOfSeveralLinesKeepsThem) {
    const QString lender = u"Old Mill Bank\r\nMs. Ito, 555-0100\r\nÑandú 💶"_s;
    EXPECT_EQ(Drop(u"txtWho(1)", lender), Copied);
    EXPECT_EQ(Sheet().OfferOfRow(Row{1}).Who(), lender);
    Click(u"txtWho(1)");
    Tab();
    EXPECT_EQ(Sheet().OfferOfRow(Row{1}).Who(), lender);
}

struct OverCase {
    QStringView field;
    QStringView text;
    Qt::DropActions actions;
    Offered offered;
};

constexpr Qt::DropActions CopyOrMove = Qt::CopyAction | Qt::MoveAction;

TEST_F(DropOnFields, IsAnnouncedOnlyWherePossible) {
    // clang-format off
    const OverCase table[]{
        // field                  text       actions          offered
        {u"txtPoints(1)",         u"1.5",    Qt::CopyAction,  Copied},
        {u"txtPoints(1)",         u"1.5",    CopyOrMove,      Copied},
        {u"txtPoints(1)",         u"1.5",    Qt::MoveAction,  Refused}, // numbers are only copied
        {u"txtPoints(1)",         u"1.5",    Qt::LinkAction,  Refused},
        {u"txtPoints(1)",         u"12abc",  Qt::CopyAction,  Refused},
        {u"txtPoints(1)",         u"",       Qt::CopyAction,  Refused},
        {u"txtInterestRate(1)",   u"0.065",  Qt::CopyAction,  Copied},
        {u"txtInterestRate(1)",   u"0.0625", Qt::CopyAction,  Refused}, // 6.25 %
        {u"txtActualPayment(1)",  u"800.25", Qt::CopyAction,  Copied},
        {u"txtActualPayment(1)",  u"0.065",  Qt::CopyAction,  Refused},
        {u"txtActualPayment(1)",  u"$8.00",  Qt::CopyAction,  Refused},
        {u"txtWho(1)",            u"12abc",  Qt::CopyAction,  Copied},
        {u"txtWho(1)",            u"",       Qt::CopyAction,  Copied},
        {u"txtWho(1)",            u"a",      Qt::MoveAction,  Moved},
        {u"txtWho(1)",            u"a",      CopyOrMove,      Copied},
        {u"txtWho(1)",            u"a",      Qt::LinkAction,  Refused},
        // A text dropped here would show without being stored.
        {u"txtTerm(1)",           u"30",     Qt::CopyAction,  Refused},
        {u"txtPandI(1)",          u"30",     Qt::CopyAction,  Refused},
        {u"txtInterest(1)",       u"30",     Qt::CopyAction,  Refused},
        {u"txtLoanAmount",        u"30",     Qt::CopyAction,  Refused},
        {u"cboLoanName",          u"Home",   Qt::CopyAction,  Refused},
        {u"dtNextPayment",        u"1",      Qt::CopyAction,  Refused},
        {u"chkPoints(1)",         u"1",      Qt::CopyAction,  Refused},
    };
    // clang-format on
    for (const OverCase& row : table) {
        EXPECT_EQ(Over(row.field, row.text, row.actions), row.offered)
            << row.field.toString().toStdString() << ' ' << row.text.toString().toStdString();
    }
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(DropOnFields, WhatIsNoTextIsRefused) {
    QMimeData picture;
    picture.setData(u"image/png"_s, "no text");
    for (const QStringView field :
         {u"txtPoints(1)", u"txtInterestRate(1)", u"txtActualPayment(1)", u"txtWho(1)"}) {
        EXPECT_EQ(Over(field, picture), Refused) << field.toString().toStdString();
    }
}

TEST_F(DropOnFields, MovesALenderFromAProgramThatOnlyMoves) {
    EXPECT_EQ(Drop(u"txtWho(1)", u"Old Mill", Qt::MoveAction), Moved);
    EXPECT_EQ(Text(u"txtWho(1)"), u"Old Mill");
}

TEST_F(DropOnFields, AFormThatIsNoNumberIsReported) {
    struct {
        QStringView field;
        QStringView text;
        QStringView failure;
    } const table[]{
        {u"txtPoints(1)", u"-", u"errn=13  src=Loan  desc=Type mismatch"},
        {u"txtInterestRate(1)", u".", u"errn=13  src=Loan  desc=Type mismatch"},
        {u"txtActualPayment(1)", u"+", u"errn=13  src=Loan  desc=Type mismatch"},
        {u"txtActualPayment(1)", u"99999999999999999999",
         u"This number is too large.\nerrn=6  src=Loan  desc=Overflow"},
    };
    for (const auto& row : table) {
        const QString before = Text(row.field);
        EXPECT_EQ(Over(row.field, row.text), Copied);
        EXPECT_EQ(Drop(row.field, row.text), Refused);
        EXPECT_EQ(SettledMessages(), QStringList{row.failure.toString()});
        Messages().Clear();
        EXPECT_EQ(Text(row.field), before);
    }
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(DropOnFields, APaymentThatIsTooLowIsRaisedAsWhenTyped) {
    EXPECT_EQ(Drop(u"txtActualPayment(0)", u"5"), Copied);
    EXPECT_EQ(Text(u"txtActualPayment(0)"), u"$632.07");
    EXPECT_EQ(SettledMessages().size(), 1);
}

TEST_F(DropOnFields, GivesWayToTheDropWhatIsBeingTypedThere) {
    struct {
        QStringView field;
        QStringView typed;
        QStringView dropped;
        QStringView entry;
        QStringView display;
    } const table[]{
        {u"txtPoints(0)", u"3", u"2.125", u"2.125", u"2.125"},
        {u"txtInterestRate(0)", u"3", u"0.07", u"7", u"7.000%"},
        {u"txtActualPayment(0)", u"3", u"900.5", u"900.5", u"$900.50"},
        {u"txtWho(0)", u"3", u"Old Mill", u"Old Mill", u"Old Mill"},
    };
    for (const auto& row : table) {
        Enter(row.field);
        Type(row.typed);
        EXPECT_EQ(Drop(row.field, row.dropped), Copied);
        EXPECT_EQ(FocusName(), row.field);
        EXPECT_EQ(Text(row.field), row.entry);
        Tab();
        EXPECT_EQ(Text(row.field), row.display);
    }
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(DropOnFields, AFailedDropKeepsWhatIsBeingTypedThere) {
    Enter(u"txtPoints(0)");
    Type(u"3");
    EXPECT_EQ(Drop(u"txtPoints(0)", u"-"), Refused);
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(Text(u"txtPoints(0)"), u"3");
    Tab();
    EXPECT_EQ(Text(u"txtPoints(0)"), u"3.000");
}

TEST_F(DropOnFields, StoresFirstWhatIsBeingTypedInTheRow) {
    Enter(u"txtTerm(0)");
    Type(u"15"); // a dropped rate shows the term again
    EXPECT_EQ(Drop(u"txtInterestRate(0)", u"0.06"), Copied);
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).Term(), Months{180});
    EXPECT_EQ(FocusName(), u"txtTerm(0)");
    EXPECT_EQ(Text(u"txtTerm(0)"), u"15");
    EXPECT_EQ(Text(u"txtPandI(0)"), u"$843.86");

    Enter(u"txtActualPayment(0)");
    Type(u"900"); // a dropped rate may raise the payment
    EXPECT_EQ(Drop(u"txtInterestRate(0)", u"0.2"), Copied);
    EXPECT_EQ(Text(u"txtActualPayment(0)"), u"1756.3"); // the bare value, for editing
    Tab();
    EXPECT_EQ(Text(u"txtActualPayment(0)"), u"$1,756.30");
}

TEST_F(DropOnFields, NothingIsTakenWhileTheRowHoldsWhatIsRefused) {
    Enter(u"txtTerm(0)");
    Paste(u"1.2.3");
    EXPECT_EQ(Drop(u"txtPoints(0)", u"2"), Refused);
    EXPECT_EQ(SettledMessages(), QStringList{u"Please enter a number of the form nnnn.nnn"_s});
    EXPECT_EQ(Text(u"txtTerm(0)"), u"1.2.3");
    EXPECT_EQ(Text(u"txtPoints(0)"), u"1.500");
}

TEST_F(DropOnFields, WhatIsBeingTypedElsewhereStays) {
    Enter(u"txtTerm(0)");
    Paste(u"1.2.3");
    EXPECT_EQ(Drop(u"txtPoints(1)", u"2"), Copied);
    EXPECT_EQ(Text(u"txtPoints(1)"), u"2.000");
    EXPECT_EQ(Text(u"txtTerm(0)"), u"1.2.3");
    EXPECT_EQ(FocusName(), u"txtTerm(0)");
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(DropOnFields, TheLastRowInUseHasABlankOneBelow) {
    EXPECT_EQ(RowCount(), 6);
    EXPECT_EQ(Drop(u"txtPoints(5)", u"2"), Copied);
    EXPECT_EQ(RowCount(), 7);
}

TEST_F(DropOnFields, ARowHalfOutOfSightTakesItAndComesIntoSight) {
    Enter(u"txtPoints(5)");
    Enter(u"txtPoints(0)");
    Bar().setSliderDown(true); // the rows follow the slider without snapping
    Bar().setValue(RowHeight() / 2);
    const QWidget& half = Control(u"txtPoints(6)");
    const QWidget& frame = Control(u"picScroll");
    const QPoint visible(half.width() / 2, 2);
    ASSERT_TRUE(frame.rect().contains(half.mapTo(&frame, visible)));
    ASSERT_FALSE(frame.rect().contains(half.mapTo(&frame, half.rect().bottomLeft())));
    EXPECT_EQ(Drop(u"txtPoints(6)", u"2.5", Qt::CopyAction, visible), Copied);
    Bar().setSliderDown(false);
    EXPECT_EQ(Sheet().OfferOfRow(Row{6}).Points(), Percent::FromPercent(2.5));
    EXPECT_TRUE(frame.rect().contains(half.mapTo(&frame, half.rect().bottomLeft())));
}

TEST_F(DropOnFields, ReadTheUsersDecimalSymbol) {
    Shut();
    Open({.locale = Germany});
    EXPECT_EQ(Over(u"txtPoints(1)", u"1.5"), Refused);
    EXPECT_EQ(Drop(u"txtPoints(1)", u"1,5"), Copied);
    EXPECT_EQ(Text(u"txtPoints(1)"), u"1,500");
}

} // namespace
