#pragma once

#include "CompareNames.h"

#include <QString>
#include <QWidget>

namespace quend::compare {

/// From now on screen readers find charts as such, with what is read as their value.
void MakeChartsAccessible();

/// Makes a sentence the description of a chart and lets screen readers say it if it is new.
void AnnounceReading(QWidget& chart, const QString& sentence);

} // namespace quend::compare
