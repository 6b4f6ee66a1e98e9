// The headings sort the offers, and everything afterwards uses the right offer.

#include "EnterValues.h"
#include "Language.h"
#include "QuendNames.h"
#include "SortButton.h"
#include "TextNumbers.h"
#include "WindowFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPalette>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Offers = 3;

class SortHeadings : public WindowTest {
protected:
    SortHeadings() { OpenWithOffers({}); }

    static bool IsActive(const SortButton& heading) {
        return !heading.accessibleDescription().isEmpty();
    }

    /// Three lenders for the same loan: A is expensive, B is between, C is cheapest but slowest.
    void OpenWithOffers(const Start& start) {
        struct Offer {
            const char* who;
            const char* rate;
            int years;
        };
        Open(start);
        SheetToWrite().SetLoanAmount(Money::FromDouble(100'000));
        Row row{0};
        for (const Offer& offer : {Offer{"A", "7", 20}, Offer{"B", "6", 15}, Offer{"C", "1", 30}}) {
            EnterText(SheetToWrite(), {FieldId::Who, row}, QLatin1String(offer.who));
            EnterText(SheetToWrite(), {FieldId::InterestRate, row}, QLatin1String(offer.rate));
            EnterText(SheetToWrite(), {FieldId::Term, row}, QString::number(offer.years));
            EnterText(SheetToWrite(), {FieldId::Frequency, row},
                      GetResourceText(TextNumber::FrequencyMonthly));
            ++row.value;
        }
        SheetToWrite().ClearRaisedMarks();
        SheetToWrite().ClearDirty();
    }
    /// The lenders as the rows show them.
    QString Lenders() const {
        QString all;
        for (int row = 0; row < Offers; ++row) {
            all += Text(RowName(u"txtWho", row));
        }
        return all;
    }
    double RateOf(std::size_t offer) const {
        return Sheet().Offer({offer}).InterestRate().Fraction();
    }
    static QString Description(QWidget& control) {
        auto* interface = QAccessible::queryAccessibleInterface(&control);
        return interface ? interface->text(QAccessible::Description) : QString();
    }
};

TEST_F(SortHeadings, SortByOneAndByTheOther) {
    EXPECT_EQ(Lenders(), u"ABC");
    Click(u"cmdPayoffDate");
    EXPECT_EQ(Lenders(), u"BAC");
    Click(u"cmdInterest");
    EXPECT_EQ(Lenders(), u"CBA");
    Click(u"cmdInterest");
    EXPECT_EQ(Lenders(), u"CBA") << "not the other way round";
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(SortHeadings, EveryFieldOfTheRowGoesAlong) {
    SheetToWrite().Store({FieldId::FinancePoints, Row{2}}, true);
    EnterText(SheetToWrite(), {FieldId::Points, Row{2}}, u"1.5"_s);
    EnterText(SheetToWrite(), {FieldId::Frequency, Row{2}},
              GetResourceText(TextNumber::FrequencyEveryTwoWeeks));
    std::vector<QString> before;
    for (const FieldRule& field : OfferFields()) {
        before.push_back(Text(RowName(QString(field.control), 2)));
    }
    Click(u"cmdInterest");
    std::vector<QString> after;
    for (const FieldRule& field : OfferFields()) {
        after.push_back(Text(RowName(QString(field.control), 0)));
    }
    EXPECT_EQ(after, before);
    EXPECT_TRUE(Control(u"chkPoints(0)").property("checked").toBool());
    EXPECT_FALSE(Control(u"chkPoints(2)").property("checked").toBool());
}

TEST_F(SortHeadings, WhatIsBeingTypedIsStoredInItsOfferFirst) {
    Enter(u"txtInterestRate(0)");
    Type(u"0.5");
    Click(u"cmdInterest");
    EXPECT_EQ(RateOf(0), 0.005);
    EXPECT_EQ(Lenders(), u"ACB");
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u".500%");
    EXPECT_EQ(FocusName(), u"cmdInterest");
}

TEST_F(SortHeadings, ALenderBeingTypedIsStoredInItsOfferFirst) {
    Enter(u"txtWho(0)");
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(u"Z");
    Click(u"cmdInterest");
    EXPECT_EQ(Sheet().Offer({0}).Who(), u"Z");
    EXPECT_EQ(Lenders(), u"CBZ");
}

TEST_F(SortHeadings, ARefusedFieldIsNotSortedAway) {
    for (const bool byMouse : {true, false}) {
        SCOPED_TRACE(byMouse);
        Messages().Clear();
        Enter(u"txtInterestRate(0)");
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(u"12abc");
        if (byMouse) {
            Click(u"cmdInterest");
        } else {
            Press(Qt::Key_I, Qt::AltModifier); // the button goes down and up before it acts
        }
        EXPECT_TRUE(WaitFor([&] { return Messages().Texts().size() == 1; }));
        EXPECT_EQ(Sheet().Order(), SortOrder::Entry);
        EXPECT_EQ(Lenders(), u"ABC");
        EXPECT_EQ(FocusName(), u"txtInterestRate(0)");
        EXPECT_EQ(Edit(u"txtInterestRate(0)").selectedText(), u"12abc");
    }
}

TEST_F(SortHeadings, AnAccessKeySortsAndTheFieldGoesOnWithItsNewOffer) {
    Enter(u"txtInterestRate(0)");
    Type(u"8");
    Press(Qt::Key_I, Qt::AltModifier);
    ASSERT_TRUE(WaitFor([&] { return Sheet().Order() == SortOrder::Interest; }));
    Settle();
    EXPECT_EQ(RateOf(0), 0.08);
    EXPECT_EQ(FocusName(), u"txtInterestRate(0)");
    EXPECT_EQ(Edit(u"txtInterestRate(0)").selectedText(), u"1") << "of C, in entry form";
    Type(u"2");
    Tab();
    EXPECT_EQ(RateOf(2), 0.02);
    EXPECT_EQ(RateOf(0), 0.08);
}

TEST_F(SortHeadings, AreReachedAndPressedByKeys) {
    Click(u"txtCurrentBalance");
    Tab();
    EXPECT_EQ(FocusName(), u"cmdPayoffDate");
    Press(Qt::Key_Space);
    EXPECT_EQ(Lenders(), u"BAC");
    EXPECT_EQ(FocusName(), u"cmdPayoffDate");
    Tab();
    EXPECT_EQ(FocusName(), u"cmdInterest");
    Press(Qt::Key_Space);
    EXPECT_EQ(Lenders(), u"CBA");
}

TEST_F(SortHeadings, EditsAfterwardsChangeTheOfferInTheRow) {
    Click(u"cmdInterest");
    Fill(u"txtPoints(0)", u"1");
    Fill(u"txtActualPayment(1)", u"2000");
    Click(Control(u"chkPoints(2)"), {8, Control(u"chkPoints(2)").height() / 2});
    Choose(u"cboFrequency(0)", 2);
    EXPECT_EQ(Sheet().Offer({2}).Points(), Percent::FromPercent(1));
    EXPECT_EQ(Sheet().Offer({2}).FrequencyCode().Text(), u"W");
    EXPECT_EQ(Sheet().Offer({1}).ActualPayment(), Money::FromDouble(2000));
    EXPECT_TRUE(Sheet().Offer({0}).FinancePoints());
    EXPECT_EQ(Lenders(), u"CBA") << "an edit does not sort again";
}

TEST_F(SortHeadings, ARowAddedAfterwardsHasItsOwnOffer) {
    Click(u"cmdInterest");
    Enter(u"txtPoints(5)"); // the last row: one is added
    ASSERT_EQ(RowCount(), 7);
    Type(u"3");
    Press(Qt::Key_Down);
    Type(u"4");
    Tab();
    EXPECT_EQ(Sheet().Offer({5}).Points(), Percent::FromPercent(3));
    EXPECT_EQ(Sheet().Offer({6}).Points(), Percent::FromPercent(4));
    Click(u"cmdPayoffDate");
    EXPECT_EQ(Sheet().OfferIndexOfRow(Row{7}).value, 7U);
}

TEST_F(SortHeadings, TheOrderOutlivesAnotherLanguageAndOtherOptions) {
    Click(u"cmdInterest");
    SwitchLanguage(Spanish);
    EXPECT_EQ(Lenders(), u"CBA");
    Settings settings = Window().GetSettings();
    settings.loansDisplayed = 8;
    settings.termInMonths = true;
    Window().ApplySettings(settings);
    EXPECT_EQ(Lenders(), u"CBA");
    EXPECT_EQ(Text(u"txtTerm(1)"), u"180");
    EXPECT_EQ(Text(u"cboFrequency(2)"), u"Mensual");
    EXPECT_EQ(RowCount(), 9);
    Fill(u"txtPoints(0)", u"1");
    EXPECT_EQ(Sheet().Offer({2}).Points(), Percent::FromPercent(1));
    EXPECT_TRUE(IsActive(Get<SortButton>(u"cmdInterest")));
}

TEST_F(SortHeadings, TheActiveOneSaysSoInEveryLanguage) {
    auto& payoff = Get<SortButton>(u"cmdPayoffDate");
    auto& interest = Get<SortButton>(u"cmdInterest");
    EXPECT_EQ(Description(interest), u"Click to sort with least interest first");
    EXPECT_FALSE(IsActive(payoff) || IsActive(interest));
    Click(interest);
    EXPECT_EQ(Description(interest), u"The offers are sorted with least interest first");
    EXPECT_EQ(Description(payoff), u"Click to sort with soonest Payoff Date first");
    SwitchLanguage(Spanish);
    EXPECT_EQ(Description(interest), u"Las ofertas están ordenadas de menos a más intereses");
    Click(payoff);
    EXPECT_EQ(Description(payoff), u"Las ofertas están ordenadas de la fecha de liquidación más "
                                   u"próxima a la más lejana");
    EXPECT_EQ(Description(interest), u"Haga clic para ordenar de menos a más intereses");
    EXPECT_TRUE(IsActive(payoff) && !IsActive(interest));
    SheetToWrite().Clear();
    EXPECT_FALSE(IsActive(payoff) || IsActive(interest));
    EXPECT_EQ(interest.toolTip(), u"Haga clic para ordenar de menos a más intereses");
}

/// The text and background colours of a dark desktop.
QPalette Dark() {
    QPalette dark(QColor(53, 53, 53));
    dark.setColor(QPalette::ButtonText, Qt::white);
    return dark;
}

TEST_F(SortHeadings, TheArrowIsBesideTheCaptionAndVisibleInEveryPalette) {
    for (const QPalette& palette : {QApplication::palette(), Dark()}) {
        auto& button = Get<SortButton>(u"cmdInterest");
        button.setPalette(palette);
        button.SetActive(false);
        const QImage without = button.grab().toImage();
        button.SetActive(true);
        const QImage with = button.grab().toImage();
        int left = with.width();
        int right = -1;
        int contrast = 0;
        for (int x = 0; x < with.width(); ++x) {
            for (int y = 0; y < with.height(); ++y) {
                const int change = std::abs(qGray(with.pixel(x, y)) - qGray(without.pixel(x, y)));
                if (change != 0) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                    contrast = std::max(contrast, change);
                }
            }
        }
        const int caption = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
        EXPECT_GE(left, (with.width() + caption) / 2) << "the caption is untouched";
        EXPECT_LT(right, with.width() - 3) << "and so is the edge";
        EXPECT_GT(contrast, 100);
    }
}

} // namespace
