#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>

/// Random values that a seed repeats on every system. They avoid the distributions of the standard
/// library, because they differ between libraries.
class Random {
public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    /// From low to high, inclusive.
    std::int64_t Whole(std::int64_t low, std::int64_t high) {
        const auto span = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<std::int64_t>(m_engine() % span);
    }
    int Int(int low, int high) { return static_cast<int>(Whole(low, high)); }
    /// From 0 up to 1, exclusive.
    double Fraction() { return static_cast<double>(m_engine() >> 11U) * 0x1p-53; }
    double Between(double low, double high) { return low + Fraction() * (high - low); }
    /// Each order of magnitude is equally likely: 0.01 to 0.1, 0.1 to 1 and so on.
    double OfAnySize(double low, double high) {
        return std::exp(Between(std::log(low), std::log(high)));
    }
    bool OneIn(int count) { return Int(1, count) == 1; }
    template <class Values>
    auto OneOf(const Values& values) {
        return values[static_cast<std::size_t>(Whole(0, std::ssize(values) - 1))];
    }

private:
    std::mt19937_64 m_engine;
};

/// Tries a property on QUEND_PROPERTY_CASES random cases (default `usual`), until one fails. A
/// failure reports its seed; QUEND_PROPERTY_SEED starts with that case.
template <class Property>
void ForRandomCases(int usual, Property property) {
    const auto setting = [](const char* name, int otherwise) {
        const char* const text = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
        return text == nullptr ? otherwise : std::atoi(text);
    };
    const int cases = setting("QUEND_PROPERTY_CASES", usual);
    ASSERT_GT(cases, 0);
    auto seed = static_cast<unsigned>(setting("QUEND_PROPERTY_SEED", 1));
    for (int tried = 0; tried < cases && !testing::Test::HasFailure(); ++tried, ++seed) {
        SCOPED_TRACE(testing::Message() << "QUEND_PROPERTY_SEED=" << seed);
        Random random(seed);
        property(random);
    }
}
