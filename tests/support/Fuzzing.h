#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

// Random input for one external interface, as much as the time allows. Inputs worth keeping are
// separate files in tests/data/<name>-corpus and are tried first; random inputs are derived from
// them.
//
// QUEND_FUZZ_SECONDS is the duration (default: a second or two), QUEND_FUZZ_SEED the first seed
// (1). If QUEND_FUZZ_KEEP names a folder, each input is written there as <name>.last before it is
// tried, so that it survives a crash (scripts/fuzz).

/// An endless sequence of numbers, the same for the same seed on every system.
class FuzzRandom {
public:
    explicit FuzzRandom(std::uint64_t seed) : m_random(seed) {}

    std::size_t Below(std::size_t end) { return m_random() % end; }
    /// True once in this many times on average.
    bool OneIn(std::size_t times) { return Below(times) == 0; }
    char Byte() { return static_cast<char>(m_random() & 0xFFU); }
    template <class Values>
    const auto& AnyOf(const Values& values) {
        return *std::next(std::begin(values), static_cast<std::ptrdiff_t>(Below(values.size())));
    }

private:
    std::mt19937_64 m_random;
};

/// An external interface: its name, its corpus, and one try, which fails or throws if an input
/// breaks the contract. A try that hangs ends the program.
class FuzzTarget {
public:
    using Try = std::function<void(const std::string& input)>;
    using Make = std::function<std::string(FuzzRandom& random)>;

    FuzzTarget(std::string name, Try tryOne) : m_name(std::move(name)), m_try(std::move(tryOne)) {
        const std::filesystem::path folder(QUEND_TEST_DATA "/" + m_name + "-corpus");
        std::vector<std::filesystem::path> files;
        if (std::filesystem::exists(folder)) {
            std::copy(std::filesystem::directory_iterator(folder), {}, std::back_inserter(files));
        }
        std::sort(files.begin(), files.end());
        for (const auto& file : files) {
            std::ifstream in(file, std::ios::binary);
            m_corpus.emplace_back(std::istreambuf_iterator<char>(in),
                                  std::istreambuf_iterator<char>());
        }
    }

    const std::vector<std::string>& Corpus() const { return m_corpus; }

    void TryCorpus() const {
        EXPECT_FALSE(m_corpus.empty());
        for (const std::string& input : m_corpus) {
            TryOne(input);
        }
        alarm(0);
    }
    void TryAtRandom(const Make& make, int usualSeconds = 1) const {
        const auto end = std::chrono::steady_clock::now() +
                         std::chrono::seconds(FromEnvironment("QUEND_FUZZ_SECONDS", usualSeconds));
        auto seed = static_cast<std::uint64_t>(FromEnvironment("QUEND_FUZZ_SEED", 1));
        int tried = 0;
        for (; std::chrono::steady_clock::now() < end && !testing::Test::HasFailure(); ++seed) {
            SCOPED_TRACE(testing::Message() << "QUEND_FUZZ_SEED=" << seed);
            FuzzRandom random(seed);
            TryOne(make(random));
            ++tried;
        }
        alarm(0);
        EXPECT_GT(tried, 0);
        testing::Test::RecordProperty("tried", tried);
    }

    static int FromEnvironment(const char* name, int usual) {
        const char* const text = std::getenv(name);
        return text != nullptr ? std::atoi(text) : usual;
    }

private:
    void TryOne(const std::string& input) const {
        if (const char* const keep = std::getenv("QUEND_FUZZ_KEEP")) {
            std::ofstream(std::filesystem::path(keep) / (m_name + ".last"), std::ios::binary)
                << input;
        }
        SCOPED_TRACE(testing::Message() << m_name << ": " << testing::PrintToString(input));
        alarm(m_patience);
        m_try(input);
    }

    std::string m_name;
    Try m_try;
    /// Seconds, far more than any input takes; 0 for no limit.
    unsigned m_patience = static_cast<unsigned>(FromEnvironment("QUEND_FUZZ_PATIENCE", 60));
    std::vector<std::string> m_corpus;
};

/// One to six changes to valid bytes, as from damage or an attacker.
inline std::string Damaged(FuzzRandom& random, std::string bytes) {
    constexpr std::string_view extremes("\0\1\x7F\x80\xFF", 5);
    for (std::size_t changes = 1 + random.Below(6); !bytes.empty() && changes > 0; --changes) {
        // Often near the beginning of a file: its header determines how the rest is read.
        const std::size_t at =
            random.Below(random.OneIn(2) ? bytes.size() : std::min<std::size_t>(bytes.size(), 200));
        const std::size_t length = std::min(1 + random.Below(16), bytes.size() - at);
        switch (random.Below(6)) {
        case 0:
            bytes[at] =
                static_cast<char>(static_cast<unsigned char>(bytes[at]) ^ (1U << random.Below(8)));
            break;
        case 1:
            bytes.replace(at, length, std::string(length, random.AnyOf(extremes)));
            break;
        case 2:
            bytes[at] = random.Byte();
            break;
        case 3:
            bytes.insert(at, bytes.substr(random.Below(bytes.size()), length));
            break;
        case 4:
            bytes.erase(at, length);
            break;
        default:
            bytes.resize(random.OneIn(4) ? at : bytes.size());
        }
    }
    return bytes;
}

/// A text of one or more pieces, sometimes with arbitrary bytes.
inline std::string Patched(FuzzRandom& random, std::span<const char* const> pieces) {
    std::string text;
    for (std::size_t count = random.OneIn(3) ? 1 + random.Below(9) : 1; count > 0; --count) {
        text += random.OneIn(20) ? std::string(1, random.Byte()) : random.AnyOf(pieces);
    }
    return random.OneIn(200) ? std::string(1 + random.Below(2'000), text.empty() ? 'x' : text[0])
                             : text;
}
