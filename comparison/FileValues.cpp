#include "FileValues.h"

#include "Failure.h"

#include <limits>
#include <utility>

namespace quend::comparison {

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
    const std::optional<Date> read = value.bytes.isEmpty() ? Date() : DateFromText(value.bytes);
    if (!read) {
        return FileFault::NoSuchDate;
    }
    date = *read;
    return {};
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
