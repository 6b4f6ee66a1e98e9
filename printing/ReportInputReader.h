#pragma once

#include "PrintingNames.h"
#include "ReportInput.h"

namespace quend::window {
class Loan;
}

namespace quend::printing {

/// Reads what the window shows, sheet and layout, including rows that are scrolled out of view. A
/// window wider than `widest` pixels is laid out at that width while it is read and then restored.
/// The field being edited is read as it looks after it is left.
ReportInput ReadForm(Loan& window, double widest);

/// Screen pixels of the window per point, and the font of the window's labels, its size in points.
double PixelsPerPoint(const Loan& window);
double LabelPoints(const Loan& window);
QString LabelFamily(const Loan& window);

} // namespace quend::printing
