#pragma once

#include "QuendNames.h"
#include "Worksheet.h"

#include <initializer_list>
#include <utility>

/// Stores the value of a text, in any form that the field's kind can be read from.
inline void EnterText(Worksheet& sheet, Field field, const QString& text) {
    sheet.Store(field, sheet.Texts().Read(RuleOf(field.id).kind, text));
}

/// Stores values of one offer, in this order.
inline void EnterOffer(Worksheet& sheet, Row row,
                       std::initializer_list<std::pair<FieldId, FieldValue>> values) {
    for (const auto& [field, value] : values) {
        sheet.Store({field, row}, value);
    }
}
