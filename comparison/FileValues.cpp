#include "FileValues.h"

#include "Failure.h"
#include "Overflow.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <utility>

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

/// Year, month and day at their fixed places; a date outside the calendar raises OverflowFailure.
Date DateFromText(QByteArrayView text) {
    const auto number = [text](qsizetype first, qsizetype digits) {
        const QByteArrayView part = text.sliced(first, digits);
        return AreDigits(part) ? part.toInt() : 0;
    };
    constexpr QByteArrayView Form("yyyy-mm-dd");
    if (text.size() != Form.size() || text[4] != '-' || text[7] != '-') {
        throw OverflowFailure("Date");
    }
    return Date::FromCalendar(number(0, 4), number(5, 2), number(8, 2));
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

Fault ReadValue(const JsonScalar& value, QString& text) {
    if (value.type != JsonScalar::Type::Text) {
        return FileFault::WrongType;
    }
    std::optional<QString> read = value.Text();
    if (!read) {
        return FileFault::NotJson;
    }
    text = *std::move(read);
    return {};
}

Fault ReadValue(const JsonScalar& value, bool& flag) {
    if (value.type != JsonScalar::Type::Flag) {
        return FileFault::WrongType;
    }
    flag = value.flag;
    return {};
}

Fault ReadValue(const JsonScalar& value, Money& amount) {
    std::optional<Money> read;
    if (value.type == JsonScalar::Type::Text) {
        read = AmountFromText(value.bytes);
    } else if (value.type != JsonScalar::Type::Number) {
        return FileFault::WrongType;
    } else if (const std::optional<double> number = value.Number()) {
        try {
            read = Money::FromDouble(*number);
        } catch (const OverflowFailure&) {
            return FileFault::NotAnAmount;
        }
    }
    if (!read) {
        return FileFault::NotAnAmount;
    }
    amount = *read;
    return {};
}

Fault ReadValue(const JsonScalar& value, Percent& points) {
    if (value.type != JsonScalar::Type::Number) {
        return FileFault::WrongType;
    }
    const std::optional<double> number = value.Number();
    if (!number) {
        return FileFault::NotANumber;
    }
    points = Percent::FromPercent(*number);
    return {};
}

Fault ReadValue(const JsonScalar& value, Rate& rate) {
    if (value.type != JsonScalar::Type::Number) {
        return FileFault::WrongType;
    }
    const std::optional<double> number = value.Number();
    if (!number || *number < 0.0) {
        return FileFault::NotANumber;
    }
    rate = Rate::FromFraction(*number);
    return {};
}

Fault ReadValue(const JsonScalar& value, Months& term) {
    return ReadWhole(value, 0, std::numeric_limits<int>::max(), term.count);
}

Fault ReadValue(const JsonScalar& value, FrequencyCode& code) {
    QString text;
    const Fault fault = ReadValue(value, text);
    if (!fault) {
        code = FrequencyCode(std::move(text));
    }
    return fault;
}

Fault ReadValue(const JsonScalar& value, Date& date) {
    if (value.type != JsonScalar::Type::Text) {
        return FileFault::WrongType;
    }
    try {
        date = value.bytes.isEmpty() ? Date() : DateFromText(value.bytes);
        return {};
    } catch (const OverflowFailure&) {
        return FileFault::NoSuchDate;
    }
}

Fault ReadWhole(const JsonScalar& value, int least, int most, int& number) {
    if (value.type != JsonScalar::Type::Number) {
        return FileFault::WrongType;
    }
    const std::optional<double> read = value.Number();
    if (!read || *read < 0.0 || *read != std::floor(*read)) {
        return FileFault::NotANumber;
    }
    if (*read < least || *read > most) {
        return FileFault::OutOfRange;
    }
    number = static_cast<int>(*read);
    return {};
}

} // namespace quend::comparison
