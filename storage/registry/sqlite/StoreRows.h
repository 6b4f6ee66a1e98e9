#pragma once

#include "StorePages.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quend::registry {

/// The formats of the rows of a store, so that they are recognized wherever they are found.

/// The name of a key, from the table of keys or, in upper case only, from its index.
struct KeyRow {
    std::int64_t id;
    std::int64_t parent;
    std::string_view folded;
    std::string_view name; ///< empty when read from the index
};

struct ValueRow {
    std::int64_t key;
    std::string_view folded;
    std::string_view name;
    std::int64_t type;
    std::string_view data;
};

/// An object of the schema: a table or an index, its root page and the command that created it.
struct SchemaRow {
    std::string_view kind;
    std::string_view name;
    std::string_view table;
    std::int64_t root;
    std::string_view command;
};

/// The row that the columns form; no value when they do not match its format.
std::optional<KeyRow> AsKeyRow(std::int64_t row, const std::vector<RecordField>& fields);
std::optional<KeyRow> AsKeyIndexRow(const std::vector<RecordField>& fields);
std::optional<ValueRow> AsValueRow(const std::vector<RecordField>& fields);
std::optional<SchemaRow> AsSchemaRow(const std::vector<RecordField>& fields);

} // namespace quend::registry
