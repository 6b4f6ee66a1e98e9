#pragma once

#include "Date.h"
#include "ModelNames.h"

#include <QString>

#include <optional>
#include <vector>

namespace quend::model {

class DisplayFormats;

/// The years that can be typed. Before 1753 the Gregorian calendar was not in use everywhere.
inline constexpr int FirstTypedYear = 1753;
inline constexpr int LastTypedYear = Date::LastYear;

/// One part of a date's text: a number, or the name of a month.
struct DatePart {
    qsizetype start = 0;
    qsizetype length = 0;
    char unit = 0; ///< 'd', 'M' or 'y'; 0 if it matches no part of the format

    qsizetype End() const { return start + length; }
    /// The number of digits that completes the part.
    qsizetype FullLength() const { return unit == 'y' ? 4 : 2; }
};

/// Splits a text into its parts, in the order of the locale's short date.
std::vector<DatePart> DateParts(const QString& text, const DisplayFormats& formats);

/// Whether this character may be typed into a date: digits of any script, possible separators, and
/// letters if the locale's dates contain letters.
bool MayTypeDate(QChar key, const DisplayFormats& formats);

/// Reads a date as it is shown or as people write it: in the locale's order, with the parts
/// separated by any character that is neither letter nor digit, or without separators if day and
/// month have two digits. A first part of four digits means year, month, day in every locale. A
/// year of two digits lies between nineteen years ago and eighty years ahead. Returns nothing for
/// any other text, a day that does not exist, or a year out of range.
std::optional<Date> ReadTypedDate(const QString& text, const DisplayFormats& formats, Date today);

} // namespace quend::model
