// A store that is damaged, foreign or from a later version, as the program finds it at the start.
#include "StoreCheck.h"
#include "QuendNames.h"

#include "ChildProcess.h"
#include "Sqlite.h"
#include "StoreFile.h"
#include "StoreFixture.h"
#include "StoreSnapshot.h"
#include "StoreSoundness.h"

#include <algorithm>
#include <random>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using State = StoreCondition::State;

constexpr const char* Today = "2026-11-21";
constexpr std::size_t PageSize = 4'096;
constexpr int Worksheets = 12;
/// "Software", the company, the program, and its worksheets.
constexpr std::size_t AllKeys = 3 + Worksheets;
constexpr std::size_t AllValues = std::size_t{Worksheets} * ValuesOfWorksheet;

class StoreCheckTest : public StoreFixture {
protected:
    std::vector<fs::path> told; ///< the damaged files of recoveries during a transaction
    const RegistryAPI registry{
        store,
        RegistryAPI::UsualWait,
        {.today = [] { return std::string(Today); },
         .repaired = [this](const fs::path& keptAs) { told.push_back(keptAs); }}};

    /// A store of twelve worksheets, "0" to "11", in one file.
    std::string Build() {
        fs::remove_all(store.parent_path());
        SaveWorksheets(registry, Worksheets);
        MakeOneFile(store);
        return BytesOf(store);
    }

    int CountWhole() const {
        int whole = 0;
        for (int i = 0; i < Worksheets; ++i) {
            whole += MarkOf(registry, std::to_string(i)) == std::to_string(i) ? 1 : 0;
        }
        return whole;
    }

    /// What holds after every recovery: the damaged file is kept, the new store works.
    void ExpectRepaired(const StoreCondition& condition, const std::string& damaged) const {
        ASSERT_EQ(condition.state, State::Repaired);
        EXPECT_EQ(BytesOf(condition.keptAs), damaged);
        EXPECT_TRUE(IsSound(StoreSnapshot(store)));
        EXPECT_EQ(PrepareStore(store, Today).state, State::Sound);
        EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "New", "new"); }), "");
        EXPECT_EQ(MarkOf(registry, "New"), "new");
        EXPECT_FALSE(fs::exists(store.parent_path() / "Loan.store.new"));
    }
};

std::string Noise(std::size_t size, unsigned seed) {
    std::mt19937 random(seed);
    std::string noise(size, '\0');
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random() & 0xFF); });
    return noise;
}

struct DamageCase {
    const char* what;
    std::function<std::string(std::string)> damage;
    std::size_t keys;   ///< at least
    std::size_t values; ///< at least
};

std::function<std::string(std::string)> Cut(double share) {
    return [share](const std::string& bytes) {
        return bytes.substr(0, static_cast<std::size_t>(static_cast<double>(bytes.size()) * share));
    };
}

std::function<std::string(std::string)> Over(std::size_t position, std::size_t size) {
    return [=](std::string bytes) {
        return bytes.replace(position, size, Noise(size, static_cast<unsigned>(position)));
    };
}

TEST_F(StoreCheckTest, ADamagedStoreIsKeptAndWhatCanBeReadIsRecovered) {
    const std::string whole = Build();
    // clang-format off
    const std::vector<DamageCase> cases{
        // what                        damage                                      keys     values
        { "cut in half",               Cut(0.5),                                   AllKeys, AllValues / 3 },
        { "cut within the first page", Cut(0.01),                                  0,       0 },
        { "cut to nothing",            Cut(0),                                     0,       0 },
        { "a page too short",          [](std::string bytes) { bytes.resize(bytes.size() - PageSize); return bytes; }, AllKeys, AllValues / 2 },
        { "a byte too short",          [](std::string bytes) { bytes.pop_back(); return bytes; }, AllKeys, AllValues / 2 },
        { "a tail too many",           [](const std::string& bytes) { return bytes + "tail"; }, AllKeys, AllValues },
        { "a page too many",           [](const std::string& bytes) { return bytes + Noise(PageSize, 1); }, AllKeys, AllValues },
        { "noise over the header",     Over(0, 100),                               AllKeys, AllValues },
        { "noise over the first page", Over(0, PageSize),                          AllKeys, AllValues },
        { "noise in the page size",    Over(16, 2),                                AllKeys, AllValues },
        { "noise in the version",      Over(60, 4),                                AllKeys, AllValues },
        { "noise in the mark",         Over(68, 4),                                AllKeys, AllValues },
        { "nothing but zeros",         [](const std::string& bytes) { return std::string(bytes.size(), '\0'); }, 0, 0 },
        { "nothing but noise",         [](const std::string& bytes) { return Noise(bytes.size(), 7); }, 0, 0 },
        { "a text",                    [](const std::string&) { return "Dear José, here are the figures.\n"; }, 0, 0 },
        { "one byte",                  [](const std::string&) { return "S"; },     0,       0 },
    };
    // clang-format on
    for (const DamageCase& row : cases) {
        SCOPED_TRACE(row.what);
        fs::remove_all(store.parent_path());
        fs::create_directory(store.parent_path());
        const std::string damaged = row.damage(whole);
        WriteBytes(store, damaged);
        const StoreCondition condition = PrepareStore(store, Today);
        ExpectRepaired(condition, damaged);
        EXPECT_EQ(condition.keptAs, store.parent_path() / "Loan.store.damaged-2026-11-21");
        EXPECT_GE(condition.keys, row.keys);
        EXPECT_GE(condition.values, row.values);
        EXPECT_LE(condition.keys, AllKeys);
        EXPECT_LE(condition.values, AllValues);
        EXPECT_GE(CountWhole(), row.values == AllValues ? Worksheets : 0);
    }
}

TEST_F(StoreCheckTest, NoiseOverAnyPageCostsThatPageOnly) {
    const std::string whole = Build();
    const std::size_t pages = whole.size() / PageSize;
    ASSERT_GT(pages, 10U);
    int keysLost = 0;
    for (std::size_t page = 0; page < pages; ++page) {
        SCOPED_TRACE(page);
        fs::remove_all(store.parent_path());
        fs::create_directory(store.parent_path());
        const std::string damaged = Over(page * PageSize, PageSize)(whole);
        WriteBytes(store, damaged);
        const StoreCondition condition = PrepareStore(store, Today);
        ExpectRepaired(condition, damaged);
        keysLost += condition.keys < AllKeys ? 1 : 0;
        EXPECT_GE(condition.values + 120, AllValues); // the most values on one page
    }
    EXPECT_EQ(keysLost, 0); // their names are on two pages
}

TEST_F(StoreCheckTest, DamageWhileTheProgramRunsIsRepairedByTheNextSave) {
    const std::string whole = Build();
    std::size_t repaired = 0;
    for (std::size_t page = 0; page < whole.size() / PageSize; ++page) {
        SCOPED_TRACE(page);
        fs::remove_all(store.parent_path());
        fs::create_directory(store.parent_path());
        const std::string damaged = Over(page * PageSize, PageSize)(whole);
        WriteBytes(store, damaged);
        int runs = 0;
        told.clear();
        registry.InTransaction([&](const RegistryAPI& step) {
            ++runs;
            SaveWorksheet(step, "3", "new");
            step.DeleteKey(User, Base + "\\No such key");
        });
        EXPECT_EQ(MarkOf(registry, "3"), "new");
        EXPECT_TRUE(runs == 1 || told.size() == 1U);
        if (!told.empty()) {
            ++repaired;
            EXPECT_TRUE(IsSound(StoreSnapshot(store)));
            EXPECT_EQ(registry.GetSubKeys(User, Base).size(), std::size_t{Worksheets});
            ASSERT_EQ(told.size(), 1U);
            EXPECT_EQ(told.front().filename(), "Loan.store.damaged-2026-11-21");
            EXPECT_EQ(BytesOf(told.front()), damaged);
        }
    }
    EXPECT_GE(repaired, 4U); // the first page, and the roots of the three trees
}

TEST_F(StoreCheckTest, WithoutRepairInterfaceATransactionRepairsNothing) {
    const std::string damaged = Over(0, PageSize)(Build());
    WriteBytes(store, damaged);
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(RegistryAPI(store), "3", "new"); }), NotMade);
    EXPECT_EQ(BytesOf(store), damaged);
}

TEST_F(StoreCheckTest, ALostPageOfKeysLeavesTheirNamesInUpperCase) {
    registry.CreateKey(User, Base + "\\Préstamo");
    registry.SetValue(User, Base + "\\Préstamo", "Rate", RegistryType::Text, "6.5");
    MakeOneFile(store);
    std::string bytes = BytesOf(store);
    const std::size_t name = bytes.find("Préstamo");
    ASSERT_NE(name, std::string::npos);
    const std::size_t page = name / PageSize * PageSize;
    WriteBytes(store, bytes.replace(page, PageSize, PageSize, 'x'));
    EXPECT_EQ(PrepareStore(store, Today).keys, 4U);
    EXPECT_EQ(registry.GetSubKeys(User, Base), std::vector<std::string>{"PRÉSTAMO"});
    EXPECT_EQ(registry.GetValue(User, Base + "\\Préstamo", "rate", RegistryType::Text, ""),
              RegistryValue("6.5"));
}

const NamedKeys Named{User, Base, "Name"};

TEST_F(StoreCheckTest, AValueThatRepeatsTheNameGivesBackItsLetters) {
    for (const char* const name : {"Préstamo", "Another"}) {
        registry.CreateKey(User, Base + "\\Préstamo");
        registry.SetValue(User, Base + "\\Préstamo", "Name", RegistryType::Text, name);
        MakeOneFile(store);
        std::string bytes = BytesOf(store);
        const std::size_t page = bytes.find("Préstamo") / PageSize * PageSize;
        WriteBytes(store, bytes.replace(page, PageSize, PageSize, 'x'));
        EXPECT_EQ(PrepareStore(store, Today, Named).state, State::Repaired);
        const bool same = std::string(name) == "Préstamo";
        EXPECT_EQ(registry.GetSubKeys(User, Base),
                  std::vector<std::string>{same ? "Préstamo" : "PRÉSTAMO"});
        registry.DeleteKey(User, Base + "\\Préstamo");
    }
}

struct LostKeyCase {
    const char* what;
    const char* name; ///< as repeated in the values of the lost key, as SQL
    std::vector<std::string> listed;
};

TEST_F(StoreCheckTest, ValuesWhoseKeyIsLostComeBackUnderTheNameTheyRepeat) {
    // clang-format off
    const std::vector<LostKeyCase> cases{
        // what                  name               listed
        { "its own",             "'Lost'",          {"Kept", "Lost"} },
        { "accents and blanks",  "'  Ñandú 1'",     {"  Ñandú 1", "Kept"} },
        { "one that is taken",   "'kEPT'",          {"Kept"} },
        { "none",                "''",              {"Kept"} },
        { "with a backslash",    "'a\\b'",          {"Kept"} },
        { "no text",             "CAST(x'FF' AS TEXT)", {"Kept"} },
        { "too long",            "printf('%300c', 'x')", {"Kept"} },
    };
    // clang-format on
    for (const LostKeyCase& row : cases) {
        SCOPED_TRACE(row.what);
        fs::remove_all(store.parent_path());
        SaveWorksheet(registry, "Kept", "kept");
        SaveWorksheet(registry, "Lost", "lost");
        registry.SetValue(User, Base + "\\Lost", "Name", RegistryType::Text, "?");
        const Connection connection(store, std::chrono::milliseconds(0));
        const std::string rename = std::string("UPDATE KeyValues SET data=CAST(") + row.name +
                                   " AS BLOB) WHERE name='Name'";
        connection.Execute(rename.c_str());
        connection.Execute("DELETE FROM Keys WHERE name='Lost'");
        MakeOneFile(store);
        WriteBytes(store, Over(60, 4)(BytesOf(store)));
        EXPECT_EQ(PrepareStore(store, Today, Named).state, State::Repaired);
        EXPECT_EQ(registry.GetSubKeys(User, Base), row.listed);
        EXPECT_EQ(MarkOf(registry, "Kept"), "kept");
        for (const std::string& name : row.listed) {
            EXPECT_TRUE(name == "Kept" || MarkOf(registry, name) == "lost") << name;
        }
        EXPECT_TRUE(IsSound(StoreSnapshot(store)));
    }
}

/// No key row is left, not even those above the worksheets.
TEST_F(StoreCheckTest, OfAFileCutInHalfTheWorksheetsComeBackWhoseNamesAreThere) {
    constexpr int Many = 300;
    registry.InTransaction([](const RegistryAPI& step) {
        for (int i = 0; i < Many; ++i) {
            const std::string key = Base + "\\Worksheet " + std::to_string(i);
            step.CreateKey(User, key);
            step.SetValue(User, key, "Name", RegistryType::Text, "Worksheet " + std::to_string(i));
            for (int value = 0; value < 20; ++value) {
                step.SetValue(User, key, "Value" + std::to_string(value), RegistryType::Text,
                              "250000.00");
            }
        }
    });
    Connection(store, std::chrono::milliseconds(0)).Execute("DELETE FROM Keys");
    MakeOneFile(store);
    WriteBytes(store, Cut(0.5)(BytesOf(store)));
    const StoreCondition condition = PrepareStore(store, Today, Named);
    ASSERT_EQ(condition.state, State::Repaired);
    const std::vector<std::string> names = registry.GetSubKeys(User, Base);
    EXPECT_GT(names.size(), std::size_t{Many} / 4);
    for (const std::string& name : names) {
        EXPECT_TRUE(name.starts_with("Worksheet ")) << name;
    }
}

TEST_F(StoreCheckTest, WhatIsOnlyInTheLogIsRecoveredToo) {
    Build();
    SaveWorksheet(registry, "0", "last"); // in the log
    ASSERT_GT(fs::file_size(StoreFile::LogOf(store)), PageSize);
    const std::string log = BytesOf(StoreFile::LogOf(store));
    const std::string damaged = Cut(0.3)(BytesOf(store));
    WriteBytes(store, damaged);
    const StoreCondition condition = PrepareStore(store, Today);
    EXPECT_EQ(MarkOf(registry, "0"), "last");
    EXPECT_EQ(BytesOf(StoreFile::LogOf(condition.keptAs)), log);
    ExpectRepaired(condition, damaged);
}

TEST_F(StoreCheckTest, ADamagedLogGivesTheStateBeforeIt) {
    Build();
    SaveWorksheet(registry, "0", "last");
    const std::string log = BytesOf(StoreFile::LogOf(store));
    for (const std::string& damaged :
         {log.substr(0, log.size() / 2), Over(0, 32)(log), Over(60, 500)(log), Noise(9'000, 3),
          std::string("x"), std::string(log.size(), '\0')}) {
        WriteBytes(StoreFile::LogOf(store), damaged);
        EXPECT_EQ(PrepareStore(store, Today).state, State::Sound);
        EXPECT_EQ(CountWhole(), Worksheets);
        EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "New", "new"); }), "");
        EXPECT_EQ(PrepareStore(store, Today).state, State::Sound);
    }
}

TEST_F(StoreCheckTest, DamagedFilesAreNumberedWhereTheNameIsTaken) {
    const std::string whole = Build();
    const std::string damaged = Cut(0.5)(whole);
    for (const char* const ending : {"", "-2", "-3"}) {
        WriteBytes(store, damaged);
        fs::remove(StoreFile::LogOf(store));
        fs::path expected = store;
        expected += std::string(".damaged-") + Today + ending;
        EXPECT_EQ(PrepareStore(store, Today).keptAs, expected);
    }
}

TEST_F(StoreCheckTest, AnotherProgramsDatabaseIsKeptAside) {
    fs::create_directory(store.parent_path());
    WriteBytes(store, "");
    Connection(store, std::chrono::milliseconds(0)).Execute("CREATE TABLE Other(a, b)");
    EXPECT_FALSE(registry.KeyExists(User, Base));
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "A", "a"); }), NotMade);
    const std::string bytes = BytesOf(store);
    ExpectRepaired(PrepareStore(store, Today), bytes);
}

TEST_F(StoreCheckTest, AStoreFromALaterVersionIsLeftUntouched) {
    for (const bool inLog : {false, true}) {
        SCOPED_TRACE(inLog);
        Build();
        Connection(store, std::chrono::milliseconds(0))
            .Execute("BEGIN; CREATE TABLE Later(a); PRAGMA user_version=2; COMMIT");
        if (!inLog) {
            MakeOneFile(store);
        }
        const std::string bytes = BytesOf(store);
        const std::string log = BytesOf(StoreFile::LogOf(store));
        EXPECT_EQ(PrepareStore(store, Today).state, State::Newer);
        EXPECT_NE(RepairStore(store, Today).state, State::Repaired);
        EXPECT_FALSE(registry.KeyExists(User, Base));
        EXPECT_EQ(MarkOf(registry, "0"), "");
        EXPECT_EQ(FailureOf([&] { registry.CreateKey(User, Base); }), NotMade);
        EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "0", "new"); }), NotMade);
        registry.SetValue(User, Base, "Value", RegistryType::Text, "new");
        registry.DeleteKey(User, Base + "\\0");
        TidyStore(store);
        EXPECT_EQ(PrepareStore(store, Today).state, State::Newer);
        EXPECT_EQ(BytesOf(store), bytes);
        EXPECT_EQ(BytesOf(StoreFile::LogOf(store)), log);
    }
}

TEST_F(StoreCheckTest, ADamagedStoreThatCannotBeRepairedThereIsLeft) {
    const std::string damaged = Cut(0.5)(Build());
    WriteBytes(store, damaged);
    fs::permissions(folder, fs::perms(0755));
    fs::permissions(store, fs::perms(0444));
    fs::permissions(store.parent_path(), fs::perms(0555));
    EXPECT_TRUE(
        HoldsForAnotherUser([&] { EXPECT_EQ(PrepareStore(store, Today).state, State::Unusable); }));
    EXPECT_EQ(BytesOf(store), damaged);
    fs::permissions(store.parent_path(), fs::perms::owner_all);
    EXPECT_EQ(std::distance(fs::directory_iterator(store.parent_path()), {}), 1);
}

TEST_F(StoreCheckTest, OfTwoProgramsThatStartAtOnceOneRepairs) {
    const std::string whole = Build();
    for (int round = 0; round < 10; ++round) {
        fs::remove_all(store.parent_path());
        fs::create_directory(store.parent_path());
        WriteBytes(store, Over(0, PageSize)(whole));
        const pid_t child = fork();
        const State state = PrepareStore(store, Today).state;
        if (child == 0) {
            _exit(state == State::Repaired ? 1 : state == State::Sound ? 0 : 2);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_LT(WEXITSTATUS(status), 2);
        EXPECT_EQ(WEXITSTATUS(status) + (state == State::Repaired ? 1 : 0), 1);
        EXPECT_EQ(CountWhole(), Worksheets);
    }
}

TEST_F(StoreCheckTest, AStoreInUseIsSound) {
    SaveWorksheet(registry, "0", "0");
    const pid_t child = fork();
    if (child == 0) {
        for (int i = 0; i < 100; ++i) {
            SaveWorksheet(registry, std::to_string(i % 7), "x");
            TidyStore(store);
        }
        _exit(0);
    }
    int status = 0;
    int looks = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        ASSERT_EQ(PrepareStore(store, Today).state, State::Sound);
        ++looks;
    }
    EXPECT_EQ(status, 0);
    EXPECT_GT(looks, 10);
}

TEST_F(StoreCheckTest, LongTextsAndDeletedKeysAreSoundAndComeBack) {
    Build();
    const std::string longText(20'000, 'x');
    registry.SetValue(User, Base, "Long", RegistryType::Text, longText);
    for (int i = 0; i < Worksheets; i += 2) {
        registry.DeleteKey(User, Base + '\\' + std::to_string(i));
    }
    EXPECT_TRUE(IsSound(StoreSnapshot(store)));
    MakeOneFile(store);
    std::string bytes = BytesOf(store);
    WriteBytes(store, bytes.replace(100, 8, 8, 'x')); // the first page's tree
    const StoreCondition condition = PrepareStore(store, Today);
    EXPECT_EQ(condition.state, State::Repaired);
    EXPECT_EQ(condition.keys, AllKeys - Worksheets / 2); // deleted keys stay deleted
    EXPECT_EQ(condition.values, AllValues / 2 + 1);
    EXPECT_TRUE(IsSound(StoreSnapshot(store)));
}

} // namespace
