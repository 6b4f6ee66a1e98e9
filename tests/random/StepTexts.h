#pragma once

#include "Field.h"

#include <QChar>
#include <QString>

/// What the user types: mostly what the field is for, at times anything. The same text for the same
/// number.
QString TextFor(FieldId field, unsigned number, QChar point);

/// Names that worksheets are given, few enough that they meet again; some cannot be kept.
QString NameText(unsigned number);

/// Anything at all, from another program.
QString AnyText(unsigned number, QChar point);
