#include "Frequency.h"
#include "QuendNames.h"

#include "Failure.h"
#include "Language.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <vector>

using namespace Qt::StringLiterals;

void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace {

const std::vector<QString> CodesWithoutFrequency{QString(),
                                                 QStringLiteral(""),
                                                 QStringLiteral("X"),
                                                 QStringLiteral("m"),
                                                 QStringLiteral("MM"),
                                                 QStringLiteral(" M"),
                                                 QStringLiteral("M "),
                                                 QStringLiteral("114")};

struct FrequencyCase {
    QString code;
    int listIndex;
    int textNumber;
    double periodsOf360;
    double periodsOf100;
    std::int64_t escrowOf250; ///< ten-thousandths
    std::int64_t escrowOf1;   ///< of 0.0001, the smallest that cannot be halved
    std::int64_t escrowOf8333;
};

const std::vector<FrequencyCase>& Cases() {
    // clang-format off
    static const std::vector<FrequencyCase> cases{
        // code     listIndex  textNumber  periodsOf360  periodsOf100     escrowOf250  escrowOf1  escrowOf8333
        {  u"M"_s,         0,        114,        360.0, 100.0,             2'500'000,         1,      833'300 },
        {  u"B"_s,         1,        111,        720.0, 200.0,             1'250'000,         0,      416'650 },
        {  u"W"_s,         2,        112,        780.0, 100 / 12.0 * 26,   1'250'000,         0,      416'650 },
        {  u"Q"_s,         3,        115,        390.0, 100 / 12.0 * 13,   2'500'000,         1,      833'300 },
    };
    // clang-format on
    return cases;
}

TEST(Frequency, HasAPlaceATextPeriodsAndAnEscrowShare) {
    for (const FrequencyCase& row : Cases()) {
        SCOPED_TRACE(row.code.toStdString());
        const FrequencyCode code(row.code);
        const Frequency* const frequency = FindFrequency(code);
        ASSERT_NE(frequency, nullptr);
        EXPECT_EQ(frequency - Frequencies.data(), row.listIndex);
        EXPECT_EQ(frequency->Code(), code);
        EXPECT_EQ(frequency->textNumber, row.textNumber);
        EXPECT_EQ(PeriodsOfTerm(*frequency, Months{360}), row.periodsOf360);
        EXPECT_EQ(PeriodsOfTerm(*frequency, Months{100}), row.periodsOf100);
        EXPECT_EQ(PeriodsOfTerm(*frequency, Months()), 0.0);
        const auto share = [&code](std::int64_t monthly) {
            return EscrowShare(code, Money::FromTenThousandths(monthly)).TenThousandths();
        };
        EXPECT_EQ(share(2'500'000), row.escrowOf250);
        EXPECT_EQ(share(1), row.escrowOf1);
        EXPECT_EQ(share(833'300), row.escrowOf8333);
        EXPECT_EQ(share(0), 0);
    }
}

TEST(Frequency, OfAnyOtherCodeIsNoneAndHalvesTheEscrow) {
    for (const QString& text : CodesWithoutFrequency) {
        SCOPED_TRACE(text.toStdString());
        const FrequencyCode code(text);
        EXPECT_EQ(FindFrequency(code), nullptr);
        EXPECT_EQ(FrequencyCodeToText(code), QString());
        EXPECT_EQ(EscrowShare(code, Money::FromTenThousandths(2'500'000)),
                  Money::FromTenThousandths(1'250'000));
    }
}

struct TermLimitCase {
    QString code;
    int months;
    bool overflows;
};

TEST(Frequency, CountsPaymentsTwiceAMonthInWholeNumbersOnly) {
    constexpr int Longest = std::numeric_limits<int>::max();
    constexpr int Shortest = std::numeric_limits<int>::min();
    // clang-format off
    const std::vector<TermLimitCase> cases{
        // code     months           overflows
        {  u"B"_s, Longest / 2,     false },
        {  u"B"_s, Longest / 2 + 1, true },
        {  u"B"_s, Longest,         true },
        {  u"B"_s, Shortest / 2,    false },
        {  u"B"_s, Shortest,        true },
        {  u"M"_s, Longest,         false },
        {  u"M"_s, Shortest,        false },
        {  u"W"_s, Longest,         false },
        {  u"Q"_s, Shortest,        false },
    };
    // clang-format on
    for (const auto& [code, months, overflows] : cases) {
        SCOPED_TRACE(testing::Message() << code.toStdString() << " " << months);
        const Frequency& frequency = *FindFrequency(FrequencyCode(code));
        if (overflows) {
            EXPECT_THROW(PeriodsOfTerm(frequency, Months{months}), OverflowFailure);
        } else {
            EXPECT_EQ(PeriodsOfTerm(frequency, Months{months}) < 0.0, months < 0);
        }
    }
}

TEST(Frequency, IsShownAndReadBackInTheLanguageInUse) {
    QStringList expected;
    for (const FrequencyCase& row : Cases()) {
        const QString text = GetResourceText(row.textNumber);
        ASSERT_FALSE(text.isEmpty()) << row.textNumber;
        EXPECT_EQ(FrequencyCodeToText(FrequencyCode(row.code)), text);
        EXPECT_EQ(FrequencyTextToCode(text), FrequencyCode(row.code));
        EXPECT_TRUE(FrequencyTextToCode(text + u' ').IsNone());
        EXPECT_TRUE(FrequencyTextToCode(text.toUpper()).IsNone());
        expected.append(text);
    }
    EXPECT_EQ(FrequencyTexts(), expected);
    EXPECT_TRUE(FrequencyTextToCode(QString()).IsNone());
    EXPECT_TRUE(FrequencyTextToCode(QStringLiteral("M")).IsNone());
}

} // namespace
