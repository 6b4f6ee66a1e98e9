#include "SampleComparison.h"

#include <array>

using quend::compare::ComparedWorksheet;
using namespace Qt::StringLiterals;

ComparisonInput SampleInput() {
    const auto code = [](char16_t letter) { return FrequencyCode(QString(letter)); };
    return {
        .today = Date::FromCalendar(2026, 11, 22),
        .amount = Units(250'000),
        .term = {360},
        .escrowMonthly = Units(400),
        .current = {.rate = Rate::FromFraction(0.0725),
                    .balance = Units(198'450),
                    .actualPayment = Units(2'050),
                    .actualFrequency = code(u'M'),
                    .nextPayment = Date::FromCalendar(2026, 12, 1)},
        .offers = {{.points = Percent::FromPercent(1.5),
                    .costs = Units(950),
                    .rate = Rate::FromFraction(0.0625),
                    .term = {360},
                    .frequency = code(u'M')},
                   {.points = Percent::FromPercent(2),
                    .pointsFinanced = true,
                    .rate = Rate::FromFraction(0.0575),
                    .term = {180},
                    .frequency = code(u'B'),
                    .actualPayment = Units(2'000)},
                   {.rate = Rate::FromFraction(0.06875), .frequency = code(u'W')}},
    };
}

ComparedWorksheet Compared(const ComparisonInput& input) {
    ComparedWorksheet worksheet{
        .name = {}, .input = input, .result = Compare(input), .lenders = {}, .rows = {}};
    const std::array lenders{u"First"_s, u"Second"_s, u"Third"_s};
    for (std::size_t i = 0; i < input.offers.size(); ++i) {
        worksheet.lenders.push_back(i < lenders.size() ? lenders[i] : QString());
        worksheet.rows.push_back(static_cast<int>(i) + 1);
    }
    return worksheet;
}

DisplayFormats Switch(Texts language, const char* locale) {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), u"Loan"_s);
    Language::Instance().LoadLanguage(language == Texts::English ? 1 : 2);
    return DisplayFormats(QLocale(QString::fromLatin1(locale)));
}

QString Plain(QString text) { return text.replace(u'\u00a0', u' ').replace(u'\u202f', u' '); }

Money Units(std::int64_t count) { return Money::FromTenThousandths(count * 10'000); }
