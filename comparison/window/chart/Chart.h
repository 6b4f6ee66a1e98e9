#pragma once

#include "ChartLayout.h"
#include "ChartLook.h"
#include "ChartReading.h"
#include "CompareNames.h"

#include <QPainter>
#include <QRectF>

namespace quend::compare {

/// Paints on a screen, a printer, a PDF or a QPicture, whatever the painter's units are. Changes no
/// pixel outside the layout's place.
void PaintChart(QPainter& painter, const ChartLayout& layout, const ChartLook& look);

/// What is read, over a painted chart.
void PaintReading(QPainter& painter, const ChartLayout& layout, const ChartReading& reading,
                  const ChartLook& look);

/// Lays out and paints a chart.
void PaintChart(QPainter& painter, const QRectF& place, const ChartData& data,
                const DisplayFormats& formats, const ChartLook& look);

} // namespace quend::compare
