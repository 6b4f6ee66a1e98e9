#include "DateWriting.h"

#include "CalendarDate.h"
#include "TypedDate.h"
#include "Worksheet.h"

namespace quend::window {

DatePicker::Writing DateWritingOf(const Worksheet& worksheet) {
    const DisplayFormats& formats = worksheet.Texts().Formats();
    return {.locale = formats.Locale(),
            .first = QDate(FirstTypedYear, 1, 1),
            .last = ToCalendar(Date::Last()),
            .write = [&](const QDate& date) { return formats.ShortDate(FromCalendar(date)); },
            .read =
                [&](const QString& text) {
                    const auto date = ReadTypedDate(text, formats, worksheet.Today());
                    return date ? ToCalendar(*date) : QDate();
                },
            .parts = [&](const QString& text) { return DateParts(text, formats); }};
}

} // namespace quend::window
