#pragma once

#include "PrintedForm.h"

class Loan;

/// What the window shows, sheet and layout, whatever rows are scrolled out of sight. A window wider
/// than `widest` pixels is laid out at that width for the moment of reading, and is as before
/// afterwards. The field being edited is read as it looks once it is left.
PrintedForm ReadForm(Loan& window, double widest);

/// Pixels of the window's screen per point, and the size of the type of the window's labels.
double PixelsPerPoint(const Loan& window);
double LabelPoints(const Loan& window);

/// A caption as it is shown: "&Loan" reads "Loan", "P && I" reads "P & I".
QString ShownCaption(const QString& caption);
