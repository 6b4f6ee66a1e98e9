#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace quend::printing {

/// The width of one line, in the unit of the widths below.
using MeasureText = std::function<double(const QString&)>;

/// As much of the text's start as fits into the width together with "…"; may be empty.
QString CutToWidth(const QString& text, double width, const MeasureText& measure);

/// The text in lines not wider than the width; breaks of any kind stay.
QStringList LinesOfText(const QString& text, double width, const MeasureText& measure);

} // namespace quend::printing
