#pragma once

#include <cstdint>

namespace quend::registry {

class StoreSnapshot;

/// The type of the file, according to its first page.
enum class StoreKind {
    NoStore, ///< not a store of this program, or the page is damaged
    Older,
    Current,
    Newer,
};

StoreKind KindOf(const StoreSnapshot& image);

/// Whether a store of this version is intact: every page is used exactly once, every row has its
/// format and its order. Damage inside a text or number that keeps its length is not detected.
/// Takes some microseconds per worksheet. The check is strict: a store that passes is intact.
bool IsSound(const StoreSnapshot& image);

} // namespace quend::registry
