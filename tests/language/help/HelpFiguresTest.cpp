// The figures in the examples of the help are those that the program computes. A figure is in a
// span whose class names it, "example.result", or the difference of two such names. The examples
// begin on 2 January 2026.

#include "CalendarDate.h"
#include "DisplayFormats.h"
#include "HelpPages.h"
#include "QuendNames.h"
#include "RecordingLoanContext.h"
#include "Schedule.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>

namespace {

struct Example {
    const char* name;
    double amount;
    double points;
    bool financed;
    double percent;
    int months;
    const char* frequency;
    double escrow;
    double pays; ///< 0: the calculated payment
};

const Example Offers[] = {
    // name        amount   points fin.   percent months code escrow pays
    {"north", 200'000, 0, false, 6.5, 360, "M", 275, 0},
    {"south", 200'000, 2, false, 6, 360, "M", 275, 0},
    {"financed", 200'000, 2, true, 6, 360, "M", 275, 0},
    {"northmore", 200'000, 0, false, 6.5, 360, "M", 275, 1'700},
    {"short", 200'000, 0, false, 6, 180, "M", 275, 0},
    {"monthly", 100'000, 0, false, 6, 360, "M", 0, 0},
    {"twice", 100'000, 0, false, 6, 360, "B", 0, 0},
    {"twoweeks", 100'000, 0, false, 6, 360, "W", 0, 0},
    {"fourweeks", 100'000, 0, false, 6, 360, "Q", 0, 0},
    {"halves", 100'000, 0, false, 6, 360, "W", 0, 300},
    {"last", 1'000, 0, false, 12, 2, "M", 0, 600},
    {"new", 165'000, 0, false, 6.125, 300, "M", 275, 0},
    {"newsame", 165'000, 0, false, 6.125, 300, "M", 275, 1'502.92},
};

/// The current loan in the example: 180,000 originally, 165,000 still owed.
struct HeldLoan {
    const char* name;
    double pays; ///< 0: the calculated payment
};

const HeldLoan Held[] = {{"held", 0}, {"heldmore", 1'600}};

struct Results {
    std::map<QString, Money> amounts;
    Date payoff;
};

class Figures {
public:
    Figures() {
        for (const Example& example : Offers) {
            m_results[QString::fromLatin1(example.name)] = OfferOf(example);
        }
        for (const HeldLoan& loan : Held) {
            m_results[QString::fromLatin1(loan.name)] = HeldOf(loan);
        }
    }

    /// The date of "example.payoff"; no date for anything else.
    Date DateOf(const QString& figure) const {
        return figure.endsWith(u".payoff") ? Of(figure).payoff : Date();
    }
    /// The amount of "example.result", or of a difference as a reader would compute it.
    Money AmountOf(const QString& figure) const {
        Money amount = Term(figure.section(u'-', 0, 0));
        return figure.contains(u'-') ? amount - Term(figure.section(u'-', 1)) : amount;
    }

private:
    static Results OfferOf(const Example& example) {
        RecordingLoanContext worksheet;
        worksheet.escrowMonthly = Money::FromDouble(example.escrow);
        worksheet.today = Date::FromCalendar(2026, 1, 2);
        CLoan offer(worksheet);
        offer.SetStartingAmount(Money::FromDouble(example.amount));
        offer.SetPoints(Percent::FromPercent(example.points));
        offer.SetFinancePoints(example.financed);
        offer.SetTerm(Months{example.months});
        offer.SetInterestRate(Rate::FromFraction(example.percent / 100));
        offer.SetFrequencyCode(FrequencyCode(QString::fromLatin1(example.frequency)));
        offer.SetActualPayment(Money::FromDouble(example.pays));
        Results results;
        results.amounts[QStringLiteral("escrow")] = worksheet.escrowMonthly;
        results.amounts[QStringLiteral("principal")] = offer.StartingPrinciple();
        results.amounts[QStringLiteral("pandi")] = offer.PandI();
        results.amounts[QStringLiteral("payment")] = offer.Payment();
        results.payoff = offer.PayoffDate();
        results.amounts[QStringLiteral("interest")] = offer.Interest();
        return results;
    }

    static Results HeldOf(const HeldLoan& loan) {
        constexpr double rate = 0.0725;
        const Money escrow = Money::FromDouble(275);
        Results results =
            OfferOf({"", 180'000, 0, false, rate * 100, 360, "M", escrow.ToDouble(), 0});
        const Money pays = loan.pays == 0 ? results.amounts[QStringLiteral("payment")]
                                          : Money::FromDouble(loan.pays);
        const ScheduleTotals totals =
            RunSchedule({.balance = Money::FromDouble(165'000),
                         .rate = Rate::FromFraction(rate),
                         .payment = pays,
                         .escrowShare = escrow,
                         .frequency = FindFrequency(FrequencyCode(QStringLiteral("M"))),
                         .start = Date::FromCalendar(2026, 2, 1)});
        results.payoff = totals.payoff;
        results.amounts[QStringLiteral("interest")] = totals.interest;
        results.amounts[QStringLiteral("left")] = totals.paid;
        return results;
    }

    const Results& Of(const QString& term) const {
        const auto found = m_results.find(term.section(u'.', 0, 0));
        EXPECT_NE(found, m_results.end()) << term.toStdString();
        return found->second;
    }
    Money Term(const QString& term) const {
        const auto& amounts = Of(term).amounts;
        const auto found = amounts.find(term.section(u'.', 1));
        EXPECT_NE(found, amounts.end()) << term.toStdString();
        return found->second.RoundedToCents();
    }

    std::map<QString, Results> m_results;
};

struct Speech {
    const char* identifier;
    QLocale locale;
    const char* date;
};

class HelpFigures : public testing::TestWithParam<Speech> {
protected:
    QString Shown(const QString& figure) const {
        const Date date = m_figures.DateOf(figure);
        return date == Date()
                   ? DisplayFormats(GetParam().locale).Currency(m_figures.AmountOf(figure))
                   : GetParam().locale.toString(ToCalendar(date),
                                                QString::fromLatin1(GetParam().date));
    }

    const Figures m_figures;
};

INSTANTIATE_TEST_SUITE_P(
    Every, HelpFigures,
    testing::Values(Speech{"000", QLocale(QLocale::English, QLocale::UnitedStates), "MMMM d, yyyy"},
                    Speech{"40a", QLocale(QLocale::Spanish, QLocale::Mexico),
                           "d 'de' MMMM 'de' yyyy"}),
    [](const auto& tested) { return std::string(tested.param.identifier); });

TEST_P(HelpFigures, AreTheProgramsOwn) {
    int checked = 0;
    const HelpPages help(GetParam().identifier);
    const QRegularExpression span(QStringLiteral("<span class=\"([^\"]*)\">([^<]*)</span>"));
    for (auto page = help.pages.begin(); page != help.pages.end(); ++page) {
        for (auto match = span.globalMatch(*page); match.hasNext(); ++checked) {
            const auto found = match.next();
            EXPECT_EQ(Shown(found.captured(1)).toStdString(), found.captured(2).toStdString())
                << page.key().toStdString() << ": " << found.captured(1).toStdString();
        }
    }
    EXPECT_GT(checked, 60);
}

/// Amounts with cents are always computed, so each is in a span.
TEST_P(HelpFigures, NoAmountIsLeftUnchecked) {
    const HelpPages help(GetParam().identifier);
    const QRegularExpression span(QStringLiteral("<span[^>]*>[^<]*</span>"));
    const QRegularExpression cents(QStringLiteral("\\$[\\d,]+\\.\\d"));
    for (auto page = help.pages.begin(); page != help.pages.end(); ++page) {
        QString rest = *page;
        rest.remove(span);
        EXPECT_FALSE(cents.match(rest).hasMatch())
            << page.key().toStdString() << ": " << cents.match(rest).captured().toStdString();
    }
}

} // namespace
