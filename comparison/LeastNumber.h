#pragma once

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <optional>

namespace quend::comparison {

/// The least whole number above `low`, up to `most`, that suffices; none if none does. Above a
/// number that does, every one does. Searches outwards from the guess, which is above `low`, in
/// doubling steps: two calls confirm a guess that is right.
template <typename Suffices>
std::optional<std::int64_t> LeastNumber(std::int64_t low, std::int64_t most, std::int64_t guess,
                                        Suffices suffices) {
    std::int64_t high = guess;
    std::int64_t step = 1;
    if (suffices(high)) {
        for (; high - low > step && suffices(high - step); step *= 2) {
            high -= step;
        }
        low = std::max(low, high - step);
    } else {
        do {
            if (high == most) {
                return std::nullopt;
            }
            low = high;
            high = low + std::min(step, most - low);
            step *= 2;
        } while (!suffices(high));
    }
    while (high - low > 1) {
        const std::int64_t middle = std::midpoint(low, high);
        (suffices(middle) ? high : low) = middle;
    }
    return high;
}

} // namespace quend::comparison
