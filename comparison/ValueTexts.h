#pragma once

#include "ComparisonNames.h"
#include "Date.h"
#include "Money.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace quend::comparison {

// Amounts and dates as files and command lines have them, whatever the locale.

/// With four decimals.
QByteArray AmountText(Money amount);
/// An optional minus, digits, and optionally a point with one to four digits; exact. None for any
/// other text, and beyond the range of money.
std::optional<Money> AmountFromText(QByteArrayView text);

/// As an ISO date.
QByteArray DateText(Date date);
/// An ISO date, such as 2026-12-31. None for any other text, and where there is no such day.
std::optional<Date> DateFromText(QByteArrayView text);

} // namespace quend::comparison
