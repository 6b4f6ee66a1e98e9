#include "Shorten.h"

#include <algorithm>

Trail Shorten(Trail trail, const std::function<bool(const Trail&)>& fails, int tries) {
    for (std::size_t part = trail.size() / 2; part > 0; part /= 2) {
        for (std::size_t at = 0; at < trail.size() && tries > 0;) {
            Trail rest = trail;
            const auto begin = rest.begin() + static_cast<std::ptrdiff_t>(at);
            const auto end =
                rest.begin() + static_cast<std::ptrdiff_t>(std::min(at + part, trail.size()));
            rest.erase(begin, end);
            --tries;
            if (fails(rest)) {
                trail = rest;
            } else {
                at += part;
            }
        }
    }
    return trail;
}
