#include "ChartLabels.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace quend::compare {

namespace {

/// Neighbours that touch. Its value is the mean of their places, each without the labels above it.
struct LabelBlock {
    double sum;
    std::size_t count;

    double Mean() const { return sum / static_cast<double>(count); }
};

/// The nearest values that do not descend.
std::vector<double> Ascending(const std::vector<double>& values) {
    std::vector<LabelBlock> blocks;
    for (const double value : values) {
        blocks.push_back({value, 1});
        while (blocks.size() > 1 && blocks[blocks.size() - 2].Mean() > blocks.back().Mean()) {
            const LabelBlock last = blocks.back();
            blocks.pop_back();
            blocks.back().sum += last.sum;
            blocks.back().count += last.count;
        }
    }
    std::vector<double> ascending;
    for (const LabelBlock& block : blocks) {
        ascending.insert(ascending.end(), block.count, block.Mean());
    }
    return ascending;
}

} // namespace

std::vector<double> SpreadLabels(const std::vector<double>& middles, double height, double top,
                                 double bottom) {
    std::vector<std::size_t> order(middles.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::stable_sort(order, {}, [&](std::size_t label) { return middles[label]; });
    std::vector<double> free; // where each would be without the labels above it
    for (std::size_t i = 0; i < order.size(); ++i) {
        free.push_back(middles[order[i]] - static_cast<double>(i) * height);
    }
    const double first = top + height / 2;
    const double last =
        std::max(first, bottom + height / 2 - static_cast<double>(order.size()) * height);
    const std::vector<double> spread = Ascending(free);
    std::vector<double> placed(middles.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        placed[order[i]] = std::clamp(spread[i], first, last) + static_cast<double>(i) * height;
    }
    return placed;
}

} // namespace quend::compare
