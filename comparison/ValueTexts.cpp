#include "ValueTexts.h"

#include "Failure.h"
#include "Overflow.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace quend::comparison {

namespace {

constexpr int Decimals = 4;

bool AreDigits(QByteArrayView text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Appends the digits; false outside the range. Counts below zero, where the range is larger.
bool Append(std::int64_t& negative, QByteArrayView digits) {
    constexpr std::int64_t Base = 10;
    return std::none_of(digits.begin(), digits.end(), [&negative](char digit) {
        return ProductOverflows(negative, Base, negative) ||
               DifferenceOverflows(negative, static_cast<std::int64_t>(digit - '0'), negative);
    });
}

} // namespace

QByteArray AmountText(Money amount) {
    constexpr std::int64_t Unit = 10'000;
    const std::int64_t count = amount.TenThousandths();
    const QByteArray decimals = QByteArray::number(std::abs(count % Unit));
    return QByteArray(count < 0 ? "-" : "") + QByteArray::number(std::abs(count / Unit)) + '.' +
           decimals.rightJustified(Decimals, '0');
}

std::optional<Money> AmountFromText(QByteArrayView text) {
    const bool isNegative = text.startsWith('-');
    text = text.sliced(isNegative ? 1 : 0);
    const qsizetype point = text.indexOf('.');
    const QByteArrayView whole = point < 0 ? text : text.first(point);
    const QByteArrayView decimals = point < 0 ? QByteArrayView("0") : text.sliced(point + 1);
    if (whole.isEmpty() || decimals.isEmpty() || decimals.size() > Decimals || !AreDigits(whole) ||
        !AreDigits(decimals)) {
        return std::nullopt;
    }
    std::int64_t count = 0;
    if (!Append(count, whole) ||
        !Append(count, decimals.toByteArray().leftJustified(Decimals, '0')) ||
        (!isNegative && DifferenceOverflows(std::int64_t{0}, count, count))) {
        return std::nullopt;
    }
    return Money::FromTenThousandths(count);
}

QByteArray DateText(Date date) {
    const std::chrono::year_month_day calendar = date.Calendar();
    const auto digits = [](unsigned number, qsizetype count) {
        return QByteArray::number(number).rightJustified(count, '0');
    };
    return digits(static_cast<unsigned>(static_cast<int>(calendar.year())), 4) + '-' +
           digits(static_cast<unsigned>(calendar.month()), 2) + '-' +
           digits(static_cast<unsigned>(calendar.day()), 2);
}

std::optional<Date> DateFromText(QByteArrayView text) {
    // Year, month and day at their fixed places.
    const auto number = [text](qsizetype first, qsizetype digits) {
        const QByteArrayView part = text.sliced(first, digits);
        return AreDigits(part) ? part.toInt() : 0;
    };
    constexpr QByteArrayView Form("yyyy-mm-dd");
    if (text.size() != Form.size() || text[4] != '-' || text[7] != '-') {
        return std::nullopt;
    }
    try {
        return Date::FromCalendar(number(0, 4), number(5, 2), number(8, 2));
    } catch (const OverflowFailure&) {
        return std::nullopt;
    }
}

} // namespace quend::comparison
