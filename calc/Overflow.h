#pragma once

#include <concepts>

namespace quend::calc {

/// Whether a result does not fit into its type; `result` then holds nothing useful. The one place
/// of these compiler functions: a compiler without them needs another implementation here.

template <std::integral Integer>
constexpr bool SumOverflows(Integer left, Integer right, Integer& result) {
    return __builtin_add_overflow(left, right, &result);
}

template <std::integral Integer>
constexpr bool DifferenceOverflows(Integer left, Integer right, Integer& result) {
    return __builtin_sub_overflow(left, right, &result);
}

template <std::integral Integer>
constexpr bool ProductOverflows(Integer left, Integer right, Integer& result) {
    return __builtin_mul_overflow(left, right, &result);
}

} // namespace quend::calc
