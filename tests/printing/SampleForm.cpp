#include "SampleForm.h"

#include <array>

namespace {

constexpr double Points = 10;

FormLabel Label(const QString& name, double left, double top, double width) {
    return {.caption = name,
            .place = QRectF(left, top, width, 20),
            .side = Side::Left,
            .points = Points,
            .bold = false};
}

/// Two columns of entries: labels 100 wide, fields 150 wide.
std::vector<FormEntry> Entries(const QString& name, int count, double top) {
    std::vector<FormEntry> entries;
    for (int entry = 0; entry < count; ++entry) {
        const double left = entry % 2 * 300;
        const double y = top + entry / 2 * 30;
        entries.push_back({.label = Label(name + QString::number(entry), left, y, 100),
                           .field = QRectF(left + 100, y, 150, 20),
                           .text = name + QStringLiteral("Text") + QString::number(entry),
                           .side = entry < 2 ? Side::Left : Side::Right});
    }
    return entries;
}

} // namespace

FormRow SampleRow(int row) {
    FormRow texts(SampleColumns);
    for (std::size_t column = 1; column < SampleColumns; ++column) {
        texts.at(column) = QStringLiteral("%1.%2").arg(row).arg(column);
    }
    texts.front() = row % 2 == 1 ? QStringLiteral("x") : QString();
    return texts;
}

ReportInput SampleForm(int rows) {
    ReportInput form;
    form.width = SampleWidth;
    form.pixelsPerPoint = 1;
    form.fontFamily = QStringLiteral("Sans");
    form.fontHeight = Points;
    form.header = Entries(QStringLiteral("Header"), 7, 10);
    form.header.at(1).label.place.moveTop(40);
    form.current = Label(QStringLiteral("Current"), 400, 130, 200);
    form.current.side = Side::Centre;
    form.current.bold = true;
    form.lines = {QLineF(0, 140, 390, 140), QLineF(610, 140, 1000, 140), QLineF(0, 280, 1000, 280),
                  QLineF(0, 320, 1000, 320)};
    form.currentFirstHalf = Entries(QStringLiteral("First"), 6, 150);
    form.currentSecondHalf = Entries(QStringLiteral("Second"), 6, 150);
    for (int heading = 0; heading < 10; ++heading) {
        form.headings.push_back(
            Label(QStringLiteral("H%1").arg(heading), 10 + heading * 90, 290, 80));
    }
    form.offersLeft = 10;
    form.offersTop = 330;
    for (std::size_t column = 0; column < SampleColumns; ++column) {
        const bool isText = column == 0 || column == 4 || column == 8 || column == 10;
        form.columns.push_back({.left = static_cast<double>(column) * 85,
                                .width = 80,
                                .side = isText ? Side::Left : Side::Right});
    }
    form.scrollBarWidth = 16;
    form.fieldHeight = 20;
    for (int row = 0; row < rows; ++row) {
        form.rows.push_back(SampleRow(row));
    }
    form.legalNotice = QStringLiteral("Legal");
    return form;
}
