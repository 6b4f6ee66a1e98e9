#include "WorksheetFile.h"
#include "QuendNames.h"
#include "RandomCases.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <array>
#include <limits>
#include <optional>
#include <string>
#include <utility>

// The file of worksheets: what is read, what is refused and where, and that what is written is read
// as the same.

namespace {

Money Count(std::int64_t count) { return Money::FromTenThousandths(count); }
Rate Fraction(double fraction) { return Rate::FromFraction(fraction); }
FrequencyCode Code(const char* text) { return FrequencyCode(QString::fromUtf8(text)); }

/// The worksheet of a text without faults; blank, and a failure, for any other.
WorksheetInFile Read(const QByteArray& json) {
    const ReadResult<ComparisonRequest> read = ReadRequest(json);
    EXPECT_TRUE(read.content) << json.toStdString() << " line " << read.error.line << " "
                              << read.error.member.toStdString();
    return read.content.value_or(ComparisonRequest()).worksheet;
}

/// A sequence of values, as deep as asked.
QByteArray Nested(int levels) {
    return R"({"x":)" + QByteArray(levels - 1, '[') + QByteArray(levels - 1, ']') + '}';
}

QByteArray Listed(int offers) {
    QByteArray list = QByteArray("{},").repeated(offers);
    list.chop(1);
    return R"({"offers":[)" + list + "]}";
}

TEST(WorksheetFile, ReadsEveryMember) {
    constexpr const char* File = R"({
  "quendLoan": 1, "name": "Our new home", "loanType": "Mortgage",
  "amount": "250000.00", "termMonths": 360, "annualTaxes": "3600.00", "annualInsurance": "1200.5",
  "current": { "amount": "230000.00", "termMonths": 359, "rate": 0.0725, "frequency": "M",
               "balance": "198450.75", "actualPayment": "2050", "actualFrequency": "Q",
               "nextPayment": "2026-12-01" },
  "offers": [ { "lender": "First \u20ac \"Bank\"", "points": 1.5, "pointsFinanced": true,
                "costs": "-950.0001", "rate": 0.06125, "termMonths": 300, "frequency": "B",
                "actualPayment": "970.56" }, null, {} ]
})";
    const WorksheetInFile expected{
        .name = QStringLiteral("Our new home"),
        .loanType = QStringLiteral("Mortgage"),
        .amount = Count(2'500'000'000),
        .term = {360},
        .annualTaxes = Count(36'000'000),
        .annualInsurance = Count(12'005'000),
        .current = {.amount = Count(2'300'000'000),
                    .term = {359},
                    .rate = Fraction(0.0725),
                    .frequency = Code("M"),
                    .balance = Count(1'984'507'500),
                    .actualPayment = Count(20'500'000),
                    .actualFrequency = Code("Q"),
                    .nextPayment = Date::FromCalendar(2026, 12, 1)},
        .offers = {{.lender = QStringLiteral("First \u20ac \"Bank\""),
                    .offer = {.points = Percent::FromPercent(1.5),
                              .pointsFinanced = true,
                              .costs = Count(-9'500'001),
                              .rate = Fraction(0.06125),
                              .term = {300},
                              .frequency = Code("B"),
                              .actualPayment = Count(9'705'600)}},
                   {},
                   {}},
    };
    EXPECT_EQ(Read(File), expected);
    EXPECT_EQ(Read(QByteArray("\xEF\xBB\xBF") + File), expected);
    EXPECT_EQ(Read(R"({"years": 4, "worksheet": )" + QByteArray(File) + '}'), expected);
    EXPECT_EQ(Read(WriteWorksheet(expected)), expected);
}

TEST(WorksheetFile, AmountsAreExact) {
    struct Case {
        const char* json;
        std::optional<std::int64_t> count; ///< none: not an amount
    };
    const std::array cases{
        Case{R"("0")", 0},
        Case{R"("-0.0000")", 0},
        Case{R"("12")", 120'000},
        Case{R"("12.3")", 123'000},
        Case{R"("-12.3456")", -123'456},
        Case{R"("000000000000000000000000000000001.5")", 15'000},
        Case{R"("900719925474.0993")", 9'007'199'254'740'993}, // no double
        Case{R"("922337203685477.5807")", std::numeric_limits<std::int64_t>::max()},
        Case{R"("-922337203685477.5808")", std::numeric_limits<std::int64_t>::min()},
        Case{R"("922337203685477.5808")", {}},
        Case{R"("-922337203685477.5809")", {}},
        Case{R"("9223372036854775807")", {}},
        Case{R"("99999999999999999999999999999999999999999")", {}},
        Case{R"("1.23456")", {}},
        Case{R"("1.")", {}},
        Case{R"(".5")", {}},
        Case{R"("")", {}},
        Case{R"("-")", {}},
        Case{R"("+1")", {}},
        Case{R"("--1")", {}},
        Case{R"("1.-5")", {}},
        Case{R"("1.2.3")", {}},
        Case{R"(" 1")", {}},
        Case{R"("1,000")", {}},
        Case{R"("1e3")", {}},
        Case{R"("1\u0000")", {}},
        Case{R"("\u0661")", {}}, // a digit of another script
        // A number is rounded as every double is.
        Case{"12.5", 125'000},
        Case{"1e3", 10'000'000},
        Case{"0.00005", 0},
        Case{"0.00025", 2},
        Case{"-0.00035", -4},
        Case{"1e-400", 0},
        Case{"9e14", 9'000'000'000'000'000'000},
        Case{"922337203685478", {}},
        Case{"1e300", {}},
        Case{"1e999", {}},
        Case{"-1e999999999999", {}},
    };
    for (const Case& row : cases) {
        const QByteArray json = QByteArray(R"({"amount":)") + row.json + '}';
        if (row.count) {
            EXPECT_EQ(Read(json).amount, Count(*row.count)) << row.json;
        } else {
            const ReadResult<ComparisonRequest> read = ReadRequest(json);
            EXPECT_FALSE(read.content) << row.json;
            EXPECT_EQ(read.error.fault, FileFault::NotAnAmount) << row.json;
        }
    }
}

TEST(WorksheetFile, WhatIsMissingOrUnknownIsPassedOver) {
    struct Case {
        const char* json;
        const char* sameAs;
    };
    const std::array cases{
        Case{R"({})", R"({"name":"","amount":"0","offers":[],"current":{}})"},
        Case{R"({"name":null,"amount":null,"termMonths":null,"current":null,"offers":null})", "{}"},
        Case{R"({"quendLoan":null,"worksheet":null,"amount":"5"})", R"({"amount":"5"})"},
        Case{R"({"worksheet":{"amount":"5"},"amount":7,"name":8})", R"({"amount":"5"})"},
        Case{R"({"amount":"5","years":"no","today":[],"payments":{"a":1}})", R"({"amount":"5"})"},
        Case{R"({"future":{"amount":[1,{"rate":-5}],"offers":{}},"amount":"5"})",
             R"({"amount":"5"})"},
        Case{R"({"offers":[{"rate":0.5,"more":[[]],"lender":"L"}]})",
             R"({"offers":[{"lender":"L","rate":5e-1}]})"},
        Case{R"({"offers":[null,{}]})", R"({"offers":[{},{"rate":0,"frequency":""}]})"},
        Case{R"({"offers":[{"frequency":"X","points":-2,"rate":-0.0}]})",
             R"({"offers":[{"points":-2.0,"frequency":"\u0058"}]})"},
        Case{R"({"current":{"nextPayment":""}})", R"({"current":{"nextPayment":null}})"},
        Case{R"({"termMonths":2147483647,"Name":"x","":{"":1}})",
             R"({"termMonths":2.147483647e9})"},
        Case{"\r\n\t {}\n ", "{}"},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(Read(row.json), Read(row.sameAs)) << row.json;
    }
    EXPECT_EQ(Read(Listed(MostOffers)).offers.size(), static_cast<std::size_t>(MostOffers));
    EXPECT_EQ(Read(Nested(32)), WorksheetInFile());
    const QByteArray blanks(MostBytes - 2, ' ');
    EXPECT_EQ(Read(blanks + "{}"), WorksheetInFile());
    constexpr QStringView WithZero(u"a\0b", 3);
    EXPECT_EQ(Read(R"({"name":"a\u0000b"})").name, WithZero);
    EXPECT_EQ(Read(R"({"name":"\ufeffa\ud83d\ude00"})").name, QStringLiteral("\ufeffa\U0001F600"));
}

struct FaultCase {
    QByteArray json;
    FileFault fault;
    int line;
    const char* member;
};

using enum FileFault;

const std::array FaultCases{
    // json                                    fault        line member
    FaultCase{"", NotJson, 1, ""},
    FaultCase{" \n ", NotJson, 2, ""},
    FaultCase{"{", NotJson, 1, ""},
    FaultCase{"{\n\"name\": \"x\"\n", NotJson, 3, ""},
    FaultCase{"{}\n\n{}", NotJson, 3, ""},
    FaultCase{"{}\n,", NotJson, 2, ""},
    FaultCase{{"{}\n\0", 4}, NotJson, 2, ""},
    FaultCase{{"{\n\"name\":\0}", 11}, NotJson, 2, ""},
    FaultCase{{"{\"name\":\"\0\"}", 12}, NotJson, 1, ""},
    FaultCase{"{\"name\":\"\n\"}", NotJson, 1, ""},
    FaultCase{"{\n\"name\":\"\xC3\x28\"}", NotJson, 2, ""},
    FaultCase{"{\"name\":\"\xC0\x80\"}", NotJson, 1, ""},     // more bytes than needed
    FaultCase{"{\"name\":\"\xED\xA0\x80\"}", NotJson, 1, ""}, // a surrogate
    FaultCase{"{\"x\":\"\xFF\"}", NotJson, 1, ""},
    FaultCase{R"({"name":"\ud800"})", NotJson, 1, ""},
    FaultCase{R"({"name":"\udc00"})", NotJson, 1, "name"},
    FaultCase{R"({"name":'x'})", NotJson, 1, ""},
    FaultCase{R"({"amount":01})", NotJson, 1, ""},
    FaultCase{R"({"amount":NaN})", NotJson, 1, ""},
    FaultCase{R"({"offers":[{},]})", NotJson, 1, ""},
    FaultCase{"\xEF\xBB\xBF", NotJson, 1, ""},
    FaultCase{QByteArray(MostBytes + 1, ' '), TooLarge, 1, ""},
    FaultCase{"\n" + Nested(33), TooDeep, 2, nullptr},
    FaultCase{QByteArray(MostBytes, '['), TooDeep, 1, nullptr},
    FaultCase{"{\"name\":\"x\",\n\"name\":\"x\"}", Duplicate, 2, "name"},
    FaultCase{R"({"rate":1,"\u0072ate":2})", Duplicate, 1, "rate"},
    FaultCase{R"({"x":[{},{"y":1,"y":1}]})", Duplicate, 1, "x[2].y"},
    FaultCase{R"({"offers":[],"offers":[]})", Duplicate, 1, "offers"},
    FaultCase{"[]", WrongType, 1, ""},
    FaultCase{"\nnull", WrongType, 2, ""},
    FaultCase{R"("name")", WrongType, 1, ""},
    FaultCase{R"({"name":5})", WrongType, 1, "name"},
    FaultCase{R"({"name":["x"]})", WrongType, 1, "name"},
    FaultCase{R"({"amount":true})", WrongType, 1, "amount"},
    FaultCase{R"({"amount":{}})", WrongType, 1, "amount"},
    FaultCase{R"({"termMonths":"360"})", WrongType, 1, "termMonths"},
    FaultCase{R"({"quendLoan":"1"})", WrongType, 1, "quendLoan"},
    FaultCase{R"({"current":[]})", WrongType, 1, "current"},
    FaultCase{R"({"current":"x"})", WrongType, 1, "current"},
    FaultCase{R"({"offers":{}})", WrongType, 1, "offers"},
    FaultCase{"{\"offers\":[{},\n1]}", WrongType, 2, "offers[2]"},
    FaultCase{R"({"offers":[[]]})", WrongType, 1, "offers[1]"},
    FaultCase{R"({"offers":[{"pointsFinanced":1}]})", WrongType, 1, "offers[1].pointsFinanced"},
    FaultCase{R"({"offers":[{"rate":"0.06"}]})", WrongType, 1, "offers[1].rate"},
    FaultCase{R"({"offers":[{"frequency":77}]})", WrongType, 1, "offers[1].frequency"},
    FaultCase{R"({"current":{"nextPayment":20261201}})", WrongType, 1, "current.nextPayment"},
    FaultCase{R"({"worksheet":5})", WrongType, 1, "worksheet"},
    FaultCase{R"({"worksheet":{},"years":"5"})", WrongType, 1, "years"},
    FaultCase{R"({"worksheet":{},"payments":true})", WrongType, 1, "payments"},
    FaultCase{"{\"amount\":\n\"5 USD\"}", NotAnAmount, 2, "amount"},
    FaultCase{R"({"offers":[{"costs":"1e5"}]})", NotAnAmount, 1, "offers[1].costs"},
    FaultCase{R"({"worksheet":{},"payments":"most"})", NotAnAmount, 1, "payments"},
    FaultCase{R"({"worksheet":{},"payments":""})", NotAnAmount, 1, "payments"},
    FaultCase{"{\"offers\":[null,\n{\"rate\":\n-0.06}]}", NotANumber, 3, "offers[2].rate"},
    FaultCase{R"({"offers":[{"rate":1e999}]})", NotANumber, 1, "offers[1].rate"},
    FaultCase{R"({"offers":[{"rate":1.8e308}]})", NotANumber, 1, "offers[1].rate"},
    FaultCase{R"({"offers":[{"points":-1e309}]})", NotANumber, 1, "offers[1].points"},
    FaultCase{R"({"name":1e999})", WrongType, 1, "name"},
    FaultCase{R"({"x":[0,1e999]})", NotANumber, 1, "x[2]"}, // the reader goes no further
    FaultCase{R"({"termMonths":-1})", NotANumber, 1, "termMonths"},
    FaultCase{R"({"termMonths":360.5})", NotANumber, 1, "termMonths"},
    FaultCase{R"({"termMonths":2147483648})", OutOfRange, 1, "termMonths"},
    FaultCase{R"({"worksheet":{},"years":2.5})", NotANumber, 1, "years"},
    FaultCase{R"({"worksheet":{},"years":0})", OutOfRange, 1, "years"},
    FaultCase{R"({"worksheet":{},"years":51})", OutOfRange, 1, "years"},
    FaultCase{"{\"annualTaxes\":\"900000000000000\",\n\"annualInsurance\":\"900000000000000\"}",
              OutOfRange, 2, "annualInsurance"},
    FaultCase{R"({"current":{"nextPayment":"2026-02-30"}})", NoSuchDate, 1, "current.nextPayment"},
    FaultCase{R"({"worksheet":{},"today":"0000-01-01"})", NoSuchDate, 1, "today"},
    FaultCase{R"({"worksheet":{},"today":"20000-01-01"})", NoSuchDate, 1, "today"},
    FaultCase{R"({"worksheet":{},"today":"2026-1-1"})", NoSuchDate, 1, "today"},
    FaultCase{R"({"worksheet":{},"today":"2026-01-011"})", NoSuchDate, 1, "today"},
    FaultCase{R"({"worksheet":{},"today":"2026/01/01"})", NoSuchDate, 1, "today"},
    FaultCase{R"({"worksheet":{},"today":"2026-+1-01"})", NoSuchDate, 1, "today"},
    FaultCase{R"({"worksheet":{},"today":"2026-13-01"})", NoSuchDate, 1, "today"},
    FaultCase{Listed(MostOffers + 1), TooManyOffers, 1, "offers[17]"},
    FaultCase{"{\"name\":\"x\",\n\"quendLoan\":2}", NewerVersion, 2, "quendLoan"},
    FaultCase{R"({"worksheet":{"quendLoan":1.5}})", NewerVersion, 1, "worksheet.quendLoan"},
    FaultCase{R"({"worksheet":{},"quendLoan":2})", NewerVersion, 1, "quendLoan"},
    FaultCase{R"({"quendLoan":1e999})", NewerVersion, 1, "quendLoan"},
    FaultCase{"{\n\"worksheet\":{\"offers\":[{\n\"rate\":-1}]}}", NotANumber, 3,
              "worksheet.offers[1].rate"},
};

TEST(WorksheetFile, AFaultNamesLineAndMember) {
    for (const FaultCase& row : FaultCases) {
        const ReadResult<ComparisonRequest> read = ReadRequest(row.json);
        const std::string shown = row.json.left(60).toStdString();
        EXPECT_FALSE(read.content) << shown;
        EXPECT_EQ(read.error.fault, row.fault) << shown;
        EXPECT_EQ(read.error.line, row.line) << shown;
        if (row.member != nullptr) {
            EXPECT_EQ(read.error.member.toStdString(), row.member) << shown;
        }
    }
}

TEST(WorksheetFile, ARequestSaysHowToCompare) {
    const Date date = Date::FromCalendar(2024, 2, 29);
    struct Case {
        const char* members;
        Date today;
        int years;
        PaymentChoice choice;
        std::int64_t monthly;
    };
    const std::array cases{
        // members beside the worksheet        today   years  choice                monthly
        Case{R"("x":1)", Date::Last(), 5, PaymentChoice::Intended, 0},
        Case{R"("today":"2024-02-29","years":50)", date, 50, PaymentChoice::Intended, 0},
        Case{R"("today":null,"years":null)", Date::Last(), 5, PaymentChoice::Intended, 0},
        Case{R"("today":"","payments":null)", Date::Last(), 5, PaymentChoice::Intended, 0},
        Case{R"("payments":"intended")", Date::Last(), 5, PaymentChoice::Intended, 0},
        Case{R"("payments":"computed")", Date::Last(), 5, PaymentChoice::Required, 0},
        Case{R"("payments":"0012.5")", Date::Last(), 5, PaymentChoice::Monthly, 125'000},
        Case{R"("payments":12.5)", Date::Last(), 5, PaymentChoice::Monthly, 125'000},
        Case{R"("payments":"-1")", Date::Last(), 5, PaymentChoice::Monthly, -10'000},
    };
    for (const Case& row : cases) {
        const ReadResult<ComparisonRequest> read =
            ReadRequest(QByteArray("{") + row.members +
                        R"(,"worksheet":{"termMonths":7,"annualTaxes":"100","annualInsurance":20,
                            "offers":[{},{"rate":0.5}]}})");
        ASSERT_TRUE(read.content) << row.members;
        const ComparisonInput input = ToInput(*read.content, Date::Last());
        EXPECT_EQ(input.today, row.today) << row.members;
        EXPECT_EQ(input.years, row.years) << row.members;
        EXPECT_EQ(input.choice, row.choice) << row.members;
        EXPECT_EQ(input.monthlyPayment, Count(row.monthly)) << row.members;
        EXPECT_EQ(input.term, Months{7});
        EXPECT_EQ(input.escrowMonthly, Count(100'000));
        ASSERT_EQ(input.offers.size(), 2U);
        EXPECT_EQ(input.offers.back().rate, Fraction(0.5));
    }
}

/// Any bits of its type, but half of them zero.
Money AnyAmount(Random& random) {
    const auto bits = static_cast<std::int64_t>(random.Whole(0, 0xFFFF'FFFF) << 32U) +
                      random.Whole(0, 0xFFFF'FFFF);
    return Count(random.OneIn(2) ? 0 : bits >> random.Int(0, 60));
}

double AnyNumber(Random& random) { return random.OneIn(3) ? 0.0 : random.OfAnySize(1e-320, 1e300); }

Months AnyTerm(Random& random) {
    return {
        static_cast<int>(random.Whole(0, std::numeric_limits<int>::max()) >> random.Int(0, 31))};
}

Date AnyDate(Random& random) {
    return random.OneIn(3) ? Date()
                           : Date::FromDays(random.Int(Date::FromCalendar(1, 1, 1).Days(),
                                                       Date::Last().Days()));
}

QString AnyText(Random& random) {
    constexpr std::array<char32_t, 12> Characters{U'a', U'"', U'\\',  U'\0',  U'\n', U'/',
                                                  0x7F, 0xE9, 0x2028, 0xFEFF, U' ',  0x1F600};
    QString text;
    for (int left = random.Int(0, 9); left > 0; --left) {
        const char32_t character = random.OneOf(Characters);
        text += QString::fromUcs4(&character, 1);
    }
    return text;
}

OfferInFile AnyOffer(Random& random) {
    if (random.OneIn(4)) {
        return {};
    }
    const double points = AnyNumber(random);
    return {.lender = AnyText(random),
            .offer = {.points = Percent::FromPercent(random.OneIn(2) ? points : -points),
                      .pointsFinanced = random.OneIn(2),
                      .costs = AnyAmount(random),
                      .rate = Fraction(AnyNumber(random)),
                      .term = AnyTerm(random),
                      .frequency = FrequencyCode(AnyText(random)),
                      .actualPayment = AnyAmount(random)}};
}

WorksheetInFile AnyWorksheet(Random& random) {
    WorksheetInFile sheet{.name = AnyText(random),
                          .loanType = AnyText(random),
                          .amount = AnyAmount(random),
                          .term = AnyTerm(random),
                          .annualTaxes = Count(AnyAmount(random).TenThousandths() / 2),
                          .annualInsurance = Count(AnyAmount(random).TenThousandths() / 2),
                          .current = {},
                          .offers = {}};
    if (random.OneIn(2)) {
        sheet.current = {.amount = AnyAmount(random),
                         .term = AnyTerm(random),
                         .rate = Fraction(AnyNumber(random)),
                         .frequency = FrequencyCode(AnyText(random)),
                         .balance = AnyAmount(random),
                         .actualPayment = AnyAmount(random),
                         .actualFrequency = FrequencyCode(AnyText(random)),
                         .nextPayment = AnyDate(random)};
    }
    for (int left = random.Int(0, MostOffers); left > 0; --left) {
        sheet.offers.push_back(AnyOffer(random));
    }
    return sheet;
}

TEST(WorksheetFileProperties, WhatIsWrittenIsReadAsTheSame) {
    ForRandomCases(1'000, [](Random& random) {
        const WorksheetInFile sheet = AnyWorksheet(random);
        const QByteArray json = WriteWorksheet(sheet);
        EXPECT_EQ(Read(json), sheet) << json.toStdString();
        EXPECT_TRUE(json.startsWith("{\n  \"quendLoan\": 1,\n") && json.endsWith("\n}\n"));
    });
}

TEST(WorksheetFile, ANumberThatJsonLacksIsWrittenAsNone) {
    WorksheetInFile sheet;
    sheet.current.rate = Fraction(std::numeric_limits<double>::quiet_NaN());
    sheet.offers.emplace_back().offer.points =
        Percent::FromPercent(-std::numeric_limits<double>::infinity());
    EXPECT_EQ(Read(WriteWorksheet(sheet)).offers, std::vector<OfferInFile>(1));
}

} // namespace
