#pragma once

#include "Comparison.h"

#include <QJsonObject>

/// The input of one line of the reference table. Does not check it.
quend::comparison::ComparisonInput ReadComparison(const QJsonObject& line);
