#pragma once

#include "PrintedPage.h"
#include "QuendNames.h"

#include <QStringList>

#include <algorithm>
#include <stdexcept>
#include <vector>

/// All items of one kind on a page, in drawing order.
template <class Kind>
std::vector<Kind> ItemsOf(const PrintedPage& page) {
    std::vector<Kind> found;
    for (const PrintedItem& item : page.items) {
        if (const auto* drawn = std::get_if<Kind>(&item)) {
            found.push_back(*drawn);
        }
    }
    return found;
}

inline QStringList TextsOf(const PrintedPage& page) {
    QStringList texts;
    for (const PrintedText& drawn : ItemsOf<PrintedText>(page)) {
        texts.append(drawn.text);
    }
    return texts;
}

/// The first of these texts on the page.
inline PrintedText TextNamed(const PrintedPage& page, const QString& text) {
    const auto texts = ItemsOf<PrintedText>(page);
    const auto found = std::ranges::find(texts, text, &PrintedText::text);
    if (found == texts.end()) {
        throw std::runtime_error("not on the page: " + text.toStdString());
    }
    return *found;
}
