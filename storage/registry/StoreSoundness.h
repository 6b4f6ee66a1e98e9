#pragma once

#include <cstdint>

class StoreImage;

/// What the first page says that the file is.
enum class StoreKind {
    NoStore, ///< no store of this program, or the page is damaged
    Older,
    Current,
    Newer,
};

StoreKind KindOf(const StoreImage& image);

/// Whether a store of this version is whole: every page has its one place, every row its form and
/// its order. Damage inside a text or a number that leaves its length as it was cannot be seen.
/// Takes some microseconds for each worksheet. It is strict: what it finds sound is.
bool IsSound(const StoreImage& image);
