// Files of worksheets with arbitrary contents. One is read, compared and written, or refused with a
// line of it.

#include "Comparison.h"
#include "Fuzzing.h"
#include "HostileTexts.h"
#include "QuendNames.h"
#include "ResultJson.h"
#include "WorksheetFile.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace {

void ExpectPossible(const WorksheetInFile& sheet) {
    const auto isPossible = [](Rate rate, Months term) {
        return std::isfinite(rate.Fraction()) && rate.Fraction() >= 0.0 && term >= Months();
    };
    EXPECT_TRUE(isPossible(sheet.current.rate, sheet.current.term));
    EXPECT_LE(sheet.offers.size(), static_cast<std::size_t>(MostOffers));
    for (const OfferInFile& each : sheet.offers) {
        EXPECT_TRUE(isPossible(each.offer.rate, each.offer.term));
        EXPECT_TRUE(std::isfinite(each.offer.points.Value()));
    }
}

void TryRequest(const ComparisonRequest& request) {
    ExpectPossible(request.worksheet);
    const QByteArray written = WriteWorksheet(request.worksheet);
    const ReadResult<ComparisonRequest> again = ReadRequest(written);
    ASSERT_TRUE(again.content) << written.toStdString();
    EXPECT_EQ(again.content->worksheet, request.worksheet) << written.toStdString();

    ComparisonInput input = ToInput(request, Date::FromCalendar(2026, 7, 21));
    EXPECT_TRUE(input.years >= 1 && input.years <= MostYears);
    constexpr std::size_t MostCompared = 2; // the longest schedules take long
    input.offers.resize(std::min(input.offers.size(), MostCompared));
    const QByteArray result = ToJson(Compare(input));
    EXPECT_TRUE(QJsonDocument::fromJson(result).isObject()) << result.toStdString();
}

const FuzzTarget& Target() {
    static const FuzzTarget target("worksheet-file", [](const std::string& input) {
        const ReadResult<ComparisonRequest> read = ReadRequest(QByteArray::fromStdString(input));
        if (read.content) {
            TryRequest(*read.content);
            return;
        }
        EXPECT_GE(read.error.line, 1);
        EXPECT_LE(read.error.line, 1 + std::count(input.begin(), input.end(), '\n'));
        EXPECT_LE(read.error.member.size(), 2'000);
    });
    return target;
}

struct PossibleMember {
    const char* name;
    const char* value; ///< one that it may have
};

constexpr std::array PossibleMembers{
    PossibleMember{"quendLoan", "1"},
    PossibleMember{"name", R"("Home \u00e9\ud83c\udfe0")"},
    PossibleMember{"amount", R"("250000.0001")"},
    PossibleMember{"termMonths", "360"},
    PossibleMember{"annualTaxes", "3600"},
    PossibleMember{"annualInsurance", R"("922337203685477.5807")"},
    PossibleMember{"lender", R"("\u0000\r\n")"},
    PossibleMember{"points", "-1.25"},
    PossibleMember{"pointsFinanced", "true"},
    PossibleMember{"costs", R"("-950")"},
    PossibleMember{"rate", "0.06125"},
    PossibleMember{"\\u0072ate", "1e-9"},
    PossibleMember{"frequency", R"("B")"},
    PossibleMember{"balance", R"("198450.75")"},
    PossibleMember{"actualPayment", R"("1200")"},
    PossibleMember{"actualFrequency", R"("W")"},
    PossibleMember{"nextPayment", R"("2024-02-29")"},
    PossibleMember{"today", R"("9990-12-31")"},
    PossibleMember{"years", "50"},
    PossibleMember{"payments", R"("2000.5")"},
    PossibleMember{"offers", nullptr},
    PossibleMember{"current", nullptr},
    PossibleMember{"worksheet", nullptr},
    PossibleMember{"x", nullptr},
};

std::string AnyValue(FuzzRandom& random, int levels);

/// Most members have a value that they may have.
// NOLINTNEXTLINE(misc-no-recursion): as deep as asked
std::string AnyObject(FuzzRandom& random, int levels) {
    std::set<std::string> used;
    std::string json;
    for (std::size_t left = 2 + random.Below(9); left > 0; --left) {
        const PossibleMember& member = random.AnyOf(PossibleMembers);
        const std::string name = member.name;
        std::string value;
        if (random.OneIn(30)) {
            value = AnyValue(random, levels - 1);
        } else if (member.value != nullptr) {
            value = member.value;
        } else {
            value = levels > 0 ? AnyObject(random, levels - 1) : "null";
            value = name == "offers" ? '[' + value + ",null," + value + ']' : value;
        }
        if (used.insert(name).second || random.OneIn(50)) {
            json += (json.empty() ? "\"" : ",\n\"") + name + "\":" + value;
        }
    }
    return '{' + json + '}';
}

// NOLINTNEXTLINE(misc-no-recursion): as deep as asked
std::string AnyValue(FuzzRandom& random, int levels) {
    // clang-format off
    constexpr std::array values{
        "null", "true", "0", "1", "-1", "-0.0", "1e999", "1e-400", "5e-324", "1e300", "2.5", "51",
        "360", "2147483647", "[]", "2147483648", "\"-0.0001\"", "\"\"", "\"M\"", "\"Q\"",
        "\"computed\"", "{}", "\"2026-02-30\"", "\"9999-12-31\"", "\"\\ud83c\"", "2026",
        "\"5.12345\"",
    };
    // clang-format on
    if (levels > 0 && random.OneIn(5)) {
        return '[' + AnyValue(random, levels - 1) + ',' + AnyObject(random, levels - 1) + ']';
    }
    return random.OneIn(5) ? '"' + Patched(random, HostilePieces) + '"' : random.AnyOf(values);
}

TEST(WorksheetFileFuzz, TheCorpusIsReadOrRefusedByLine) { Target().TryCorpus(); }

TEST(WorksheetFileFuzz, AnyFileIsReadOrRefusedByLine) {
    Target().TryAtRandom([](FuzzRandom& random) {
        if (random.OneIn(2)) {
            return AnyObject(random, 3);
        }
        return Damaged(random, random.OneIn(2) ? AnyObject(random, 3)
                                               : std::string(random.AnyOf(Target().Corpus())));
    });
}

} // namespace
