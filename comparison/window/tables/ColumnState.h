#pragma once

#include "CompareNames.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace quend::compare {

/// How a column is shown.
struct ColumnState {
    int column = 0;
    int width = 0; ///< in pixels; 0: as wide as its content
    bool hidden = false;

    friend bool operator==(const ColumnState&, const ColumnState&) = default;
};

/// The columns in the order in which they are shown, as a short text for the settings.
QByteArray WriteColumns(const std::vector<ColumnState>& columns);

/// None unless the bytes are such a text, each column is one of the first `count` and named once,
/// and widths are possible. Columns may be missing.
std::optional<std::vector<ColumnState>> ReadColumns(const QByteArray& bytes, int count);

} // namespace quend::compare
