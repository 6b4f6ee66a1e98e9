#pragma once

#include "ComparedWorksheet.h"
#include "Comparison.h"
#include "DisplayFormats.h"
#include "Language.h"
#include "QuendNames.h"

#include <QLocale>
#include <QString>

#include <vector>

/// Three offers and a loan held today.
ComparisonInput SampleInput();

/// With the lenders First, Second and Third.
quend::compare::ComparedWorksheet Compared(const ComparisonInput& input);

enum class Texts { English, Spanish };

/// Switches the language; the formats of a locale such as "es_ES".
DisplayFormats Switch(Texts language, const char* locale);

/// Without the blanks that do not break, which some locales write.
QString Plain(QString text);

Money Units(std::int64_t count);
