#include "Payment.h"
#include "QuendNames.h"

#include "Failure.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct PaymentCase {
    double principal;
    double rate;
    int term;
    QString code;
    std::optional<std::int64_t> cents; ///< none means OverflowFailure
};

TEST(Payment, RepaysALoanWithinItsTerm) {
    constexpr int Longest = std::numeric_limits<int>::max();
    constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
    // clang-format off
    const std::vector<PaymentCase> cases{
        //  principal  rate      term             code            cents
        {   100'000.0, 0.06,     360,             u"M"_s,       59'955 },
        {   100'000.0, 0.06,     360,             u"B"_s,       29'964 },
        {   100'000.0, 0.06,     360,             u"W"_s,       27'658 },
        {   100'000.0, 0.06,     360,             u"Q"_s,       55'339 },
        {     1'000.0, 0.12,     2,               u"M"_s,       50'751 },
        {         0.0, 0.06,     360,             u"M"_s,            0 },
        {   100'000.0, 0.0,      360,             u"M"_s,            0 },
        {   100'000.0, -0.0,     360,             u"M"_s,            0 },
        {   100'000.0, 0.06,     0,               u"M"_s,            0 },
        {   100'000.0, 0.06,     360,             u""_s,             0 },
        {   100'000.0, 0.06,     360,             u"X"_s,            0 },
        {   100'000.0, 0.06,     360,             u"m"_s,            0 },
        {   100'000.0, NoNumber, 360,             u"X"_s,            0 },
        {  -100'000.0, 0.06,     360,             u"M"_s,      -59'955 },
        {   100'000.0, 0.06,     Longest,         u"M"_s,       50'000 }, // interest only
        {   100'000.0, 0.06,     Longest / 2,     u"B"_s,       25'000 },
        {   100'000.0, 0.06,     Longest / 2 + 1, u"B"_s, std::nullopt },
        {         0.0, 0.06,     Longest,         u"B"_s,            0 }, // a missing input is checked first
        {   100'000.0, 0.06,     Longest,         u"X"_s,            0 },
        {   100'000.0, NoNumber, 360,             u"M"_s, std::nullopt },
        {   100'000.0, -30.0,    100,             u"W"_s, std::nullopt }, // a fractional power of a negative number
        {   100'000.0, 1e-17,    360,             u"M"_s, std::nullopt }, // 1 + rate rounds to 1
        {        9e14, 10.0,     1,               u"M"_s, std::nullopt },
    };
    // clang-format on
    for (const auto& [principal, rate, term, code, cents] : cases) {
        SCOPED_TRACE(testing::Message() << principal << " at " << rate << " for " << term << " "
                                        << code.toStdString());
        const auto payment = [&, p = principal, r = rate, t = term, c = code] {
            return PrincipalAndInterest(Money::FromDouble(p), Rate::FromFraction(r), Months{t},
                                        FrequencyCode(c));
        };
        if (cents) {
            EXPECT_EQ(payment(), Money::FromTenThousandths(*cents * 100));
        } else {
            EXPECT_THROW(payment(), OverflowFailure);
        }
    }
}

TEST(Payment, MonthlyEscrowIsATwelfthInWholeCents) {
    struct Case {
        double taxes;
        double insurance;
        std::int64_t cents;
    };
    const std::vector<Case> cases{
        {3'600.0, 1'200.0, 40'000},
        {1'000.0, 0.0, 8'333},
        {0.0, 1'001.0, 8'342},
        {-12.0, 0.0, -100},
    };
    for (const auto& [taxes, insurance, cents] : cases) {
        EXPECT_EQ(MonthlyEscrow(Money::FromDouble(taxes), Money::FromDouble(insurance)),
                  Money::FromTenThousandths(cents * 100))
            << taxes << " " << insurance;
    }
}

} // namespace
