#include "StoreRows.h"

#include <algorithm>
#include <initializer_list>

namespace quend::registry {

namespace {

using Kind = RecordField::Kind;

bool Are(const std::vector<RecordField>& fields, std::initializer_list<Kind> kinds) {
    return std::equal(fields.begin(), fields.end(), kinds.begin(), kinds.end(),
                      [](const RecordField& field, Kind kind) { return field.kind == kind; });
}

} // namespace

std::optional<KeyRow> AsKeyRow(std::int64_t row, const std::vector<RecordField>& fields) {
    if (!Are(fields, {Kind::Null, Kind::Number, Kind::Blob, Kind::Text}) || row <= 0) {
        return std::nullopt;
    }
    return KeyRow{row, fields[1].number, fields[2].bytes, fields[3].bytes};
}

std::optional<KeyRow> AsKeyIndexRow(const std::vector<RecordField>& fields) {
    if (!Are(fields, {Kind::Number, Kind::Blob, Kind::Number}) || fields[2].number <= 0) {
        return std::nullopt;
    }
    return KeyRow{fields[2].number, fields[0].number, fields[1].bytes, {}};
}

std::optional<ValueRow> AsValueRow(const std::vector<RecordField>& fields) {
    if (!Are(fields, {Kind::Number, Kind::Blob, Kind::Text, Kind::Number, Kind::Blob})) {
        return std::nullopt;
    }
    return ValueRow{fields[0].number, fields[1].bytes, fields[2].bytes, fields[3].number,
                    fields[4].bytes};
}

std::optional<SchemaRow> AsSchemaRow(const std::vector<RecordField>& fields) {
    if (!Are(fields, {Kind::Text, Kind::Text, Kind::Text, Kind::Number, Kind::Text})) {
        return std::nullopt;
    }
    return SchemaRow{fields[0].bytes, fields[1].bytes, fields[2].bytes, fields[3].number,
                     fields[4].bytes};
}

} // namespace quend::registry
