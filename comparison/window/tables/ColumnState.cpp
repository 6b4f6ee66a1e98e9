#include "ColumnState.h"

#include <QByteArrayView>
#include <QList>

#include <algorithm>

namespace quend::compare {

namespace {

// "1 0:0 4:120 2:0h": the version, then columns with their widths; "h" is hidden.
constexpr QByteArrayView Version = "1";
constexpr int LeastWidth = 16;
constexpr int MostWidth = 4000;

std::optional<int> ReadNumber(QByteArrayView text) {
    const bool isPlain = !text.isEmpty() && text.size() <= 4 &&
                         std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    return isPlain ? std::optional(text.toInt()) : std::nullopt;
}

std::optional<ColumnState> ReadColumn(QByteArrayView text, int count) {
    const bool hidden = text.endsWith('h');
    const QByteArrayView numbers = text.chopped(hidden ? 1 : 0);
    const qsizetype colon = numbers.indexOf(':');
    if (colon < 0) {
        return std::nullopt;
    }
    const auto column = ReadNumber(numbers.first(colon));
    const auto width = ReadNumber(numbers.sliced(colon + 1));
    const bool isColumn = column && *column < count;
    const bool isWidth = width && (*width == 0 || (*width >= LeastWidth && *width <= MostWidth));
    return isColumn && isWidth
               ? std::optional(ColumnState{.column = *column, .width = *width, .hidden = hidden})
               : std::nullopt;
}

} // namespace

QByteArray WriteColumns(const std::vector<ColumnState>& columns) {
    QByteArray text = Version.toByteArray();
    for (const ColumnState& state : columns) {
        const int width = state.width == 0 ? 0 : std::clamp(state.width, LeastWidth, MostWidth);
        text += ' ' + QByteArray::number(state.column) + ':' + QByteArray::number(width);
        text += state.hidden ? "h" : "";
    }
    return text;
}

std::optional<std::vector<ColumnState>> ReadColumns(const QByteArray& bytes, int count) {
    constexpr qsizetype mostPerColumn = 12; // characters
    if (bytes.size() > Version.size() + count * mostPerColumn) {
        return std::nullopt;
    }
    const QList<QByteArray> words = bytes.split(' ');
    if (words.front() != Version || words.size() - 1 > count) {
        return std::nullopt;
    }
    std::vector<ColumnState> columns;
    for (const QByteArray& word : words.sliced(1)) {
        const auto column = ReadColumn(word, count);
        if (!column ||
            std::ranges::find(columns, column->column, &ColumnState::column) != columns.end()) {
            return std::nullopt;
        }
        columns.push_back(*column);
    }
    return columns;
}

} // namespace quend::compare
