#include "ActuarialRate.h"
#include "Answer.h"
#include "Explanation.h"
#include "Frequency.h"
#include "LoanSchedule.h"
#include "RandomCases.h"
#include "RandomWorksheet.h"
#include "SampleComparison.h"
#include "WhyLeftOut.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <array>
#include <utility>

using namespace quend::compare;

namespace {

/// A sentence has words, an end, and no place that was not filled.
void ExpectSentence(const QString& text) {
    static const QRegularExpression unfilled(QStringLiteral("%\\d"));
    EXPECT_TRUE(text.size() > 10 && (text.endsWith(u'.') || text.endsWith(u')')))
        << text.toStdString();
    EXPECT_FALSE(text.contains(unfilled)) << text.toStdString();
}

TEST(WordsProperty, EveryFigureOfEveryLoanIsExplained) {
    constexpr std::array Locales{std::pair(Texts::English, "en_US"),
                                 std::pair(Texts::Spanish, "es_ES"),
                                 std::pair(Texts::English, "ar_EG")};
    ForRandomCases(30, [&](Random& random) {
        const auto [language, locale] = random.OneOf(Locales);
        const DisplayFormats formats = Switch(language, locale);
        const ComparedWorksheet worksheet = Compared(RandomWorksheet(random));
        const QStringList answer = AnswerOf(worksheet, formats);
        EXPECT_FALSE(answer.isEmpty());
        for (const QString& sentence : answer) {
            ExpectSentence(sentence);
        }
        const int offers = static_cast<int>(worksheet.input.offers.size());
        const int first = worksheet.result.current ? CurrentLoanPlace : 1;
        for (int place = first; place <= offers; ++place) {
            const bool takesPart = place == CurrentLoanPlace
                                       ? worksheet.result.current->figures.has_value()
                                       : FiguresOf(worksheet, place) != nullptr;
            const QString why = WhyLeftOut(worksheet, place, formats);
            EXPECT_EQ(why.isEmpty(), takesPart) << place;
            for (int figure = 0; figure <= static_cast<int>(Figure::PaymentForHorizon); ++figure) {
                const auto asked = static_cast<Figure>(figure);
                ExpectSentence(ExplanationOf(worksheet, asked, place, formats));
            }
        }
    });
}

// What the sentence about the annual percentage rate claims.
TEST(WordsProperty, PaymentsAtTheAprRepayWhatIsReceived) {
    ForRandomCases(30, [](Random& random) {
        const ComparedWorksheet worksheet = Compared(RandomWorksheet(random));
        ComparisonInput required = worksheet.input;
        required.choice = PaymentChoice::Required;
        required.escrowMonthly = Money();
        for (int place = 1; place <= static_cast<int>(required.offers.size()); ++place) {
            const OfferFigures* const offer = FiguresOf(worksheet, place);
            if (offer == nullptr || !offer->apr) {
                continue;
            }
            const auto rows = *ScheduleOf(required, place);
            const std::array<CashFlows, 2> payments{
                {{.amount = rows.front().payment.ToDouble(),
                  .count = rows.back().number - 1,
                  .periods = 1},
                 {.amount = rows.back().payment.ToDouble(), .periods = rows.back().number}}};
            const auto& code = required.offers[static_cast<std::size_t>(place) - 1].frequency;
            const double rate = offer->apr->Fraction() / FindFrequency(code)->periodsPerYear;
            const double received = (required.amount - offer->upfront).ToDouble();
            // The rate is good to 1e-10, and at most 500 years pass.
            EXPECT_NEAR(PresentValue(payments, rate), received, received * 1e-7) << place;
        }
    });
}

} // namespace
