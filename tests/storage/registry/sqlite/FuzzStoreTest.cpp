// Random damage, as much as fits into the time: nothing may crash, hang or trust its input.
#include "QuendNames.h"
#include "StoreCheck.h"

#include "Fuzzing.h"
#include "Sqlite.h"
#include "StoreFile.h"
#include "StoreFixture.h"
#include "StoreSnapshot.h"
#include "StoreSoundness.h"

#include <algorithm>
#include <random>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using State = StoreCondition::State;

/// A store's file and its log.
struct Input {
    std::string file;
    std::string log;
};

class FuzzStore : public StoreFixture {
protected:
    /// In memory if possible, because disk flushes would take most of the time.
    const fs::path fuzzed =
        (access("/dev/shm", W_OK) == 0 ? fs::path("/dev/shm") / folder.filename()
                                       : folder / "fuzz") /
        "Loan.store";

    FuzzStore() { fs::create_directories(fuzzed.parent_path()); }
    ~FuzzStore() override { fs::remove_all(fuzzed.parent_path()); }

    void Lay(const Input& input) const {
        for (const auto& entry : fs::directory_iterator(fuzzed.parent_path())) {
            fs::remove(entry.path());
        }
        WriteBytes(fuzzed, input.file);
        if (!input.log.empty()) {
            WriteBytes(StoreFile::LogOf(fuzzed), input.log);
        }
    }

    /// Everything that a program can do with an existing store.
    void Try(const Input& input) const;
    RegistryAPI Registry() const;
    void UseUnprepared() const;
};

/// SQLite's own finding about the file: "ok" or the error.
std::string SqliteFinding(const fs::path& store) {
    try {
        const Connection connection(store, std::chrono::milliseconds(0));
        Statement check(connection.Handle(), "PRAGMA integrity_check(1)");
        return check.Next() ? check.Bytes(0) : "nothing";
    } catch (const StoreError& error) {
        return error.what();
    }
}

RegistryAPI FuzzStore::Registry() const {
    return RegistryAPI(fuzzed, std::chrono::milliseconds(0),
                       {.today = [] { return std::string("today"); }, .repaired = {}});
}

void FuzzStore::UseUnprepared() const {
    const RegistryAPI registry = Registry();
    for (const std::string& name : registry.GetSubKeys(User, Base)) {
        MarkOf(registry, name);
    }
    FailureOf([&] { SaveWorksheet(registry, "Fuzz", "fuzz"); });
    registry.DeleteKey(User, Base + "\\0");
}

void FuzzStore::Try(const Input& input) const {
    Lay(input);
    const bool sound = IsSound(StoreSnapshot(fuzzed));
    if (sound) {
        EXPECT_EQ(SqliteFinding(fuzzed), "ok"); // only our check may be the stricter one
    }
    UseUnprepared();
    Lay(input);
    const StoreCondition condition = PrepareStore(fuzzed, "today", {User, Base, "InterestRate0"});
    EXPECT_EQ(condition.state == State::Sound || condition.state == State::Newer,
              sound || condition.state == State::Newer);
    if (condition.state == State::Newer) {
        return;
    }
    ASSERT_NE(condition.state, State::Unusable);
    const RegistryAPI registry = Registry();
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "Fuzz", "fuzz"); }), "");
    EXPECT_EQ(MarkOf(registry, "Fuzz"), "fuzz");
    EXPECT_EQ(SqliteFinding(fuzzed), "ok");
}

class Mutation {
public:
    explicit Mutation(unsigned seed) : m_random(seed) {}

    void Apply(Input& input) {
        const std::size_t count = 1 + Below(6);
        for (std::size_t i = 0; i < count; ++i) {
            std::string& bytes = Below(5) == 0 ? input.log : input.file;
            if (!bytes.empty()) {
                ApplyOne(bytes);
            }
        }
    }

private:
    std::size_t Below(std::size_t end) { return m_random() % end; }

    /// Mostly the start of a page, because its header leads to everything else.
    std::size_t Position(const std::string& bytes) {
        const std::size_t anywhere = Below(bytes.size());
        const std::size_t page = anywhere / 4'096 * 4'096;
        return Below(3) == 0 ? anywhere : std::min(page + Below(120), bytes.size() - 1);
    }

    void ApplyOne(std::string& bytes) {
        const std::size_t position = Position(bytes);
        const std::size_t length = std::min(1 + Below(64), bytes.size() - position);
        constexpr char Extremes[]{'\0', '\1', '\x7F', '\x80', '\xFF'};
        switch (Below(6)) {
        case 0:
            bytes[position] = static_cast<char>(bytes[position] ^ (1 << Below(8)));
            break;
        case 1:
            bytes[position] = Extremes[Below(std::size(Extremes))];
            break;
        case 2:
            std::generate_n(bytes.begin() + static_cast<std::ptrdiff_t>(position), length,
                            [this] { return static_cast<char>(m_random() & 0xFF); });
            break;
        case 3:
            bytes.replace(position, length, bytes.substr(Below(bytes.size()), length));
            break;
        case 4:
            bytes[position] = static_cast<char>(Below(12)); // a small number: a page, a kind
            break;
        default:
            if (Below(10) == 0) {
                bytes.resize(position);
            }
        }
    }

    std::mt19937 m_random;
};

/// A small store with all features: inner pages, long texts, free pages, a log.
Input ValidInput(const fs::path& store) {
    const RegistryAPI registry(store);
    SaveWorksheets(registry, 4);
    registry.SetValue(User, Base, "Long", RegistryType::Text, std::string(9'000, 'x'));
    registry.DeleteKey(User, Base + "\\2");
    MakeOneFile(store);
    Input input{BytesOf(store), ""};
    SaveWorksheet(registry, "0", "log");
    input.log = BytesOf(StoreFile::LogOf(store));
    return input;
}

TEST_F(FuzzStore, SurvivesWhatIsKeptInTheCorpus) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(QUEND_TEST_DATA) / "store-corpus")) {
        SCOPED_TRACE(entry.path());
        if (entry.path().extension() == ".store") {
            Try({BytesOf(entry.path()), BytesOf(StoreFile::LogOf(entry.path()))});
            ++count;
        }
    }
    EXPECT_GE(count, 10);
    // The damaged stores are made from this one.
    EXPECT_TRUE(IsSound(StoreSnapshot(fs::path(QUEND_TEST_DATA) / "store-corpus" / "whole.store")));
}

TEST_F(FuzzStore, SurvivesDamageAtRandom) {
    const Input valid = ValidInput(store);
    Lay(valid);
    ASSERT_TRUE(IsSound(StoreSnapshot(fuzzed)));
    const auto end = std::chrono::steady_clock::now() +
                     std::chrono::seconds(FuzzTarget::FromEnvironment("QUEND_FUZZ_SECONDS", 5));
    auto seed = static_cast<unsigned>(FuzzTarget::FromEnvironment("QUEND_FUZZ_SEED", 1));
    for (; std::chrono::steady_clock::now() < end && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "QUEND_FUZZ_SEED=" << seed);
        alarm(20); // ends a test that hangs
        Input input = valid;
        Mutation(seed).Apply(input);
        Try(input);
    }
    alarm(0);
    RecordProperty("stores", static_cast<int>(seed));
}

} // namespace
