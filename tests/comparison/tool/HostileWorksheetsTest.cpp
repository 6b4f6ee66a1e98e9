// Worksheets at the ends of every range are answered in every form.

#include "RandomCases.h"
#include "ToolRun.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr std::array Amounts{"0",    "0.0001", "100",   "250000.00",
                             "-500", "1e9",    "-0.01", "922337203685477.5807",
                             "1e14", "-9e14",  "9e14",  "-922337203685477.5808"};
constexpr std::array Rates{"0", "1e-300", "0.0001", "0.065", "3", "1e300"};
constexpr std::array Terms{"0", "1", "60", "360", "2147483647"};
constexpr std::array Codes{"M", "B", "W", "Q", "", "x"};
constexpr std::array Dates{"", "0001-01-01", "2026-01-31", "9999-12-31"};
constexpr std::array Lenders{"", "Cedar", "Cedar", "\\u001b[31m", "%1%2%n", "銀行\\n=1"};

std::string Text(const char* value) { return '"' + std::string(value) + '"'; }

/// A number as one: the exponents are no amounts in a text.
std::string Amount(Random& random) {
    const std::string amount = random.OneOf(Amounts);
    return amount.find('e') == std::string::npos ? Text(amount.c_str()) : amount;
}

std::string Offer(Random& random) {
    return R"({"lender":)" + Text(random.OneOf(Lenders)) + R"(,"points":)" +
           random.OneOf(std::array{"0", "1.5", "-200", "1e10"}) + R"(,"pointsFinanced":)" +
           random.OneOf(std::array{"true", "false"}) + R"(,"costs":)" + Amount(random) +
           R"(,"rate":)" + random.OneOf(Rates) + R"(,"termMonths":)" + random.OneOf(Terms) +
           R"(,"frequency":)" + Text(random.OneOf(Codes)) + R"(,"actualPayment":)" +
           Amount(random) + '}';
}

std::string Worksheet(Random& random) {
    std::string offers = Offer(random);
    for (int further = random.Int(0, 3); further > 0; --further) {
        offers += ',' + Offer(random);
    }
    return R"({"name":)" + Text(random.OneOf(Lenders)) + R"(,"amount":)" + Amount(random) +
           R"(,"termMonths":)" + random.OneOf(Terms) +
           R"(,"annualTaxes":"3600","current":{"rate":)" + random.OneOf(Rates) + R"(,"balance":)" +
           Amount(random) + R"(,"actualPayment":)" + Amount(random) + R"(,"actualFrequency":)" +
           Text(random.OneOf(Codes)) + R"(,"nextPayment":)" + Text(random.OneOf(Dates)) +
           R"(},"offers":[)" + offers + "]}";
}

TEST(HostileWorksheets, AreAnsweredInEveryForm) {
    const std::array<std::vector<std::string>, 6> forms{{{"--years", "50"},
                                                         {"--format", "csv"},
                                                         {"--payments", "922337203685477.58"},
                                                         {"--payment-by", "2040-01-01"},
                                                         {"--schedule", "1"},
                                                         {"--schedule", "current"}}};
    ForRandomCases(150, [&](Random& random) {
        const std::string worksheet = Worksheet(random);
        SCOPED_TRACE(worksheet);
        std::vector<std::string> form = random.OneOf(forms);
        const bool isSchedule = form.front() == "--schedule";
        form.insert(form.end(), {"--today", random.OneOf(std::array{"0001-01-01", "2026-01-31",
                                                                    "9999-12-31"})});
        form.emplace_back("-");
        const ToolResult result = RunTool(form, worksheet);
        EXPECT_TRUE(result.status == 0 || isSchedule) << result.err;
        EXPECT_EQ(result.out.empty(), result.status != 0);
        EXPECT_EQ(result.err.empty(), result.status == 0);
        EXPECT_EQ(result.err.find('\x1b'), std::string::npos);
        const bool isCsv = isSchedule || form.front() == "--format";
        EXPECT_TRUE(isCsv || result.out.find('\x1b') == std::string::npos);
    });
}

} // namespace
