#pragma once

#include "StorePages.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// What the rows of a store look like, so that they are known wherever they are found.

/// The name of a key, from the table of keys or, without its case, from their index.
struct KeyRow {
    std::int64_t id;
    std::int64_t parent;
    std::string_view folded;
    std::string_view name; ///< empty from the index
};

struct ValueRow {
    std::int64_t key;
    std::string_view folded;
    std::string_view name;
    std::int64_t type;
    std::string_view data;
};

/// An object of the store: a table or an index of one, the page of its root and the command that
/// made it.
struct SchemaRow {
    std::string_view kind;
    std::string_view name;
    std::string_view table;
    std::int64_t root;
    std::string_view command;
};

/// The row that the columns are, or no value when they are none of its kind.
std::optional<KeyRow> AsKeyRow(std::int64_t row, const std::vector<Field>& fields);
std::optional<KeyRow> AsKeyIndexRow(const std::vector<Field>& fields);
std::optional<ValueRow> AsValueRow(const std::vector<Field>& fields);
std::optional<SchemaRow> AsSchemaRow(const std::vector<Field>& fields);
