#pragma once

#include "Date.h"

#include <QString>

#include <optional>
#include <vector>

class DisplayFormats;

/// The years that can be typed: those of the calendar in use everywhere today.
inline constexpr int FirstTypedYear = 1753;
inline constexpr int LastTypedYear = 9999;

/// One part of a date's text: a number, or the name of a month.
struct DatePart {
    qsizetype start = 0;
    qsizetype length = 0;
    char unit = 0; ///< 'd', 'M' or 'y'; 0 for what no part of the format stands for

    qsizetype End() const { return start + length; }
    /// How many digits fill it.
    qsizetype FullLength() const { return unit == 'y' ? 4 : 2; }
};

/// The parts of a text, in the order of a locale's short dates.
std::vector<DatePart> DateParts(const QString& text, const DisplayFormats& formats);

/// Whether a key of this character may type a date: digits of any script, whatever may separate
/// them, and letters where the locale's dates have some.
bool MayTypeDate(QChar key, const DisplayFormats& formats);

/// A date as it is shown or as people write it: in the locale's order, the parts separated by
/// whatever is neither letter nor digit, or not at all where day and month have two digits. A year
/// of four digits first means year, month, day in every locale. Two digits mean the year from
/// nineteen back to eighty ahead. Nothing for any other text, a day that no calendar has, or a year
/// out of range.
std::optional<Date> ReadTypedDate(const QString& text, const DisplayFormats& formats, Date today);
