// Real faults: killed processes, full disks, locked folders, held locks.
#include "ChildProcess.h"
#include "QuendNames.h"
#include "StoreCheck.h"
#include "StoreFile.h"
#include "StoreFixture.h"

#include <array>
#include <csignal>
#include <ctime>
#include <random>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using State = StoreCondition::State;

class StoreFaultTest : public StoreFixture {
protected:
    const RegistryAPI registry{store};

    std::string Text(const std::string& name) const {
        return std::get<std::string>(registry.GetValue(User, Base, name, RegistryType::Text, ""));
    }
};

/// A pipe: one process waits until the other signals or has ended.
class Signal {
public:
    Signal() { EXPECT_EQ(pipe(m_ends.data()), 0); }
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;
    ~Signal() {
        close(m_ends[0]);
        Drop();
    }

    void Give() const { EXPECT_EQ(write(m_ends[1], "x", 1), 1); }
    void Drop() {
        if (m_ends[1] >= 0) {
            close(m_ends[1]);
        }
        m_ends[1] = -1;
    }
    void Wait() const {
        char byte = 0;
        EXPECT_GE(read(m_ends[0], &byte, 1), 0);
    }

private:
    std::array<int, 2> m_ends{-1, -1};
};

/// Kills this process after that time, without warning.
void KillAfter(std::chrono::microseconds time) {
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    timer_t timer{};
    itimerspec when{};
    when.it_value.tv_nsec = time.count() * 1'000;
    if (timer_create(CLOCK_MONOTONIC, &event, &timer) != 0 ||
        timer_settime(timer, 0, &when, nullptr) != 0) {
        _exit(1);
    }
}

/// On a slow machine the time may end before anything is saved. In every fourth round it therefore
/// starts after the first save.
constexpr int RoundsWithoutHaste = 4;

[[noreturn]] void SaveUntilKilled(const RegistryAPI& registry, int round,
                                  std::chrono::microseconds time) {
    const bool haste = round % RoundsWithoutHaste != 0;
    for (int save = 0;; ++save) {
        if (save == (haste ? 0 : 1)) {
            KillAfter(time);
        }
        SaveWorksheet(registry, "A", std::to_string(round) + '.' + std::to_string(save));
    }
}

TEST_F(StoreFaultTest, AProcessKilledWhileSavingLeavesTheOldWorksheetOrTheNewOne) {
    SaveWorksheet(registry, "A", "0");
    SaveWorksheet(registry, "Other", "other");
    std::mt19937 random(2026);
    std::uniform_int_distribution<int> microseconds(1, 12'000);
    int changed = 0;
    std::string before = "0";
    constexpr int Rounds = 200;
    for (int round = 0; round < Rounds; ++round) {
        const std::chrono::microseconds time(microseconds(random));
        const pid_t child = fork();
        if (child == 0) {
            SaveUntilKilled(registry, round, time);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        const std::string mark = MarkOf(registry, "A");
        ASSERT_TRUE(mark == before || mark.starts_with(std::to_string(round) + '.'))
            << round << ": " << mark;
        changed += mark == before ? 0 : 1;
        before = mark;
    }
    EXPECT_GE(changed, Rounds / RoundsWithoutHaste); // the test has saved at all
    EXPECT_EQ(MarkOf(registry, "Other"), "other");
    EXPECT_EQ(PrepareStore(store, "today").state, State::Sound);
}

/// On a slow machine the other program may win the lock until this one times out; the user would
/// try again.
bool Insist(const std::function<void()>& action) {
    constexpr int tries = 20;
    for (int i = 0; i < tries; ++i) {
        if (FailureOf(action).empty()) {
            return true;
        }
    }
    return false;
}

TEST_F(StoreFaultTest, TwoProgramsSavingAtOnceBothLandWhole) {
    registry.CreateKey(User, Base);
    constexpr int Saves = 40;
    Signal start;
    const auto save = [&](const std::string& name) {
        const pid_t child = fork();
        if (child != 0) {
            return child;
        }
        start.Drop();
        start.Wait();
        bool saved = true;
        for (int i = 0; saved && i <= Saves; ++i) {
            saved = Insist([&] { SaveWorksheet(registry, name, std::to_string(i)); }) &&
                    Insist([&] { SaveWorksheet(registry, "Both", name); });
        }
        _exit(saved ? 0 : 1);
    };
    const pid_t children[]{save("A"), save("B")};
    start.Drop();
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(MarkOf(registry, "A"), std::to_string(Saves));
    EXPECT_EQ(MarkOf(registry, "B"), std::to_string(Saves));
    EXPECT_TRUE(MarkOf(registry, "Both") == "A" || MarkOf(registry, "Both") == "B");
    EXPECT_EQ(PrepareStore(store, "today").state, State::Sound);
}

/// However early a first start ends, the next one finds a complete store or none, and no damage.
TEST_F(StoreFaultTest, AProcessKilledWhileMakingTheStoreLeavesItWholeOrNone) {
    std::mt19937 random(2027);
    std::uniform_int_distribution<int> microseconds(1, 6'000);
    int none = 0;
    for (int round = 0; round < 60; ++round) {
        fs::remove_all(store.parent_path());
        const std::chrono::microseconds time(microseconds(random));
        const pid_t child = fork();
        if (child == 0) {
            KillAfter(time);
            registry.CreateKey(User, Base);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        const State state = PrepareStore(store, "today").state;
        ASSERT_TRUE(state == State::Missing || state == State::Sound) << time.count();
        none += state == State::Missing ? 1 : 0;
        EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "A", "a"); }), "");
        EXPECT_EQ(MarkOf(registry, "A"), "a");
        EXPECT_FALSE(fs::exists(StoreFile::NewOf(store)));
    }
    EXPECT_GT(none, 0); // the test has killed at all
}

TEST_F(StoreFaultTest, AStoreThatCannotBeMadeLeavesNothing) {
    for (const rlim_t most : {0U, 100U, 4'096U, 8'192U, 20'000U}) {
        SCOPED_TRACE(most);
        EXPECT_TRUE(HoldsInChild([&] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{most, most};
            ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
            EXPECT_EQ(TroubleOf([&] { registry.CreateKey(User, Base); }), StoreTrouble::DiskFull);
        }));
        EXPECT_TRUE(fs::is_empty(store.parent_path()));
        EXPECT_EQ(PrepareStore(store, "today").state, State::Missing);
    }
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "A", "a"); }), "");
}

TEST_F(StoreFaultTest, AnEmptyFileIsDamage) {
    fs::create_directory(store.parent_path());
    WriteBytes(store, "");
    EXPECT_EQ(FailureOf([&] { registry.CreateKey(User, Base); }), NotMade);
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "A", "a"); }), NotMade);
    EXPECT_TRUE(fs::is_empty(store));
    EXPECT_EQ(PrepareStore(store, "today").state, State::Repaired);
}

TEST_F(StoreFaultTest, TwoProgramsMakingTheStoreAtOnceBothLandWhole) {
    for (int round = 0; round < 20; ++round) {
        const RegistryAPI made(folder / std::to_string(round) / "Loan.store");
        const pid_t child = fork();
        if (child == 0) {
            _exit(FailureOf([&] { SaveWorksheet(made, "A", "a"); }).empty() ? 0 : 1);
        }
        EXPECT_EQ(FailureOf([&] { SaveWorksheet(made, "B", "b"); }), "");
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(MarkOf(made, "A") + MarkOf(made, "B"), "ab");
    }
}

TEST_F(StoreFaultTest, AProgramThatWritesTooLongMakesTheOtherGiveUp) {
    SaveWorksheet(registry, "A", "old");
    Signal holding;
    Signal release;
    const pid_t child = fork();
    if (child == 0) {
        release.Drop();
        registry.InTransaction([&](const RegistryAPI& step) {
            step.SetValue(User, Base + "\\A", "InterestRate0", RegistryType::Text, "held");
            holding.Give();
            release.Wait();
            _exit(0); // without committing
        });
    }
    holding.Wait();
    const RegistryAPI impatient(store, std::chrono::milliseconds(60));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(impatient, "A", "new"); }), NotMade);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(50));
    EXPECT_EQ(FailureOf([&] { impatient.CreateKey(User, Base + "\\B"); }), NotMade);
    EXPECT_EQ(TroubleOf([&] { SaveWorksheet(impatient, "A", "new"); }), StoreTrouble::InUse);
    EXPECT_EQ(TroubleOf([&] { impatient.CreateKey(User, Base + "\\B"); }), StoreTrouble::InUse);
    impatient.SetValue(User, Base + "\\A", "InterestRate0", RegistryType::Text, "new");
    EXPECT_TRUE(impatient.CreateKey(User, Base + "\\A"));
    EXPECT_EQ(MarkOf(impatient, "A"), "old"); // reading does not wait
    EXPECT_EQ(PrepareStore(store, "today").state, State::Sound);
    release.Drop();
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(impatient, "A", "new"); }), "");
    EXPECT_EQ(MarkOf(registry, "A"), "new");
}

/// Saves until the disk is full; everything saved before must still exist.
void FillDisk(const fs::path& store) {
    const RegistryAPI registry(store);
    std::string failure;
    int saved = 0;
    while (failure.empty() && saved < 1'000) {
        failure = FailureOf([&] { SaveWorksheet(registry, std::to_string(saved), "kept"); });
        saved += failure.empty() ? 1 : 0;
    }
    EXPECT_EQ(failure, NotMade);
    EXPECT_GT(saved, 3);
    registry.SetValue(User, Base, "Long", RegistryType::Text, std::string(500'000, 'x'));
    EXPECT_EQ(registry.GetValue(User, Base, "Long", RegistryType::Text, "none"),
              RegistryValue("none"));
    EXPECT_FALSE(registry.KeyExists(User, Base + '\\' + std::to_string(saved)));
    for (int i = 0; i < saved; ++i) {
        EXPECT_EQ(MarkOf(registry, std::to_string(i)), "kept") << i;
    }
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "0", std::string(5'000, 'x')); }), NotMade);
    EXPECT_EQ(MarkOf(registry, "0"), "kept");
    EXPECT_EQ(PrepareStore(store, "today").state, State::Sound);
}

class SmallDisk : public StoreFaultTest {
protected:
    void SetUp() override {
        if (!HoldsInChild([&] { _exit(MountSmallDisk(folder) ? 0 : 1); })) {
            GTEST_SKIP() << "this machine lets this user mount no small disk";
        }
    }
    bool Holds(const std::function<void()>& expectations) const {
        return HoldsInChild([&] {
            ASSERT_TRUE(MountSmallDisk(folder));
            expectations();
            umount(folder.c_str());
        });
    }
};

TEST_F(SmallDisk, WhenFullMakesTheSaveFailAndNothingElse) {
    EXPECT_TRUE(Holds([&] {
        FillDisk(store);
        EXPECT_EQ(TroubleOf([&] { SaveWorksheet(registry, "0", std::string(5'000, 'x')); }),
                  StoreTrouble::DiskFull);
    }));
}

TEST_F(SmallDisk, WhenReadOnlyIsSaidAndRead) {
    EXPECT_TRUE(Holds([&] {
        SaveWorksheet(registry, "A", "kept");
        ASSERT_EQ(mount("", folder.c_str(), "", MS_REMOUNT | MS_RDONLY, ""), 0);
        EXPECT_EQ(TroubleOf([&] { SaveWorksheet(registry, "A", "new"); }), StoreTrouble::ReadOnly);
        EXPECT_EQ(registry.ReadInTransaction([](const RegistryAPI&) {}), StoreTrouble::None);
        EXPECT_EQ(MarkOf(registry, "A"), "kept");
        const RegistryAPI other(folder / "new" / "Loan.store");
        EXPECT_EQ(TroubleOf([&] { other.CreateKey(User, Base); }), StoreTrouble::ReadOnly);
    }));
}

TEST_F(StoreFaultTest, AFullQuotaMakesTheSaveFailAndNothingElse) {
    EXPECT_TRUE(HoldsInChild([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{300'000, 300'000};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        FillDisk(store);
    }));
}

struct ClosedCase {
    const char* what;
    mode_t folderMode;
    mode_t fileMode;
    bool hasLog;
    bool hasShared;
    bool isRead;
};

void Close(const fs::path& store, const ClosedCase& row) {
    if (!row.hasLog) {
        MakeOneFile(store);
    }
    if (!row.hasShared) {
        fs::remove(StoreFile::SharedOf(store));
    }
    for (const fs::path& file : {store, StoreFile::LogOf(store), StoreFile::SharedOf(store)}) {
        chmod(file.c_str(), row.fileMode);
    }
    chmod(store.parent_path().c_str(), row.folderMode);
}

TEST_F(StoreFaultTest, WhatCannotBeWrittenIsReadIfItCanBe) {
    // clang-format off
    const std::vector<ClosedCase> cases{
        // what                       folder file   hasLog hasShared isRead
        { "all files as they were",   0555,  0444,  true,  true,     true },
        { "the log with a save",      0555,  0444,  true,  false,    true },
        { "one file alone",           0555,  0444,  false, false,    true },
        { "folder open, files not",   0777,  0444,  true,  true,     true },
        { "the same, without shared", 0777,  0444,  true,  false,    true },
        { "the file alone, not open", 0777,  0444,  false, false,    true },
        { "not even to be read",      0777,  0000,  true,  true,     false },
        { "a folder out of reach",    0000,  0444,  true,  true,     false },
    };
    // clang-format on
    chmod(folder.c_str(), 0755);
    for (const ClosedCase& row : cases) {
        SCOPED_TRACE(row.what);
        chmod(store.parent_path().c_str(), 0755);
        fs::remove_all(store.parent_path());
        SaveWorksheet(registry, "A", "first");
        SaveWorksheet(registry, "A", "last");
        Close(store, row);
        EXPECT_TRUE(HoldsForAnotherUser([&] {
            const RegistryAPI closed(store, std::chrono::milliseconds(50));
            EXPECT_EQ(MarkOf(closed, "A"), row.isRead ? "last" : "");
            EXPECT_EQ(closed.KeyExists(User, Base + "\\A"), row.isRead);
            EXPECT_EQ(FailureOf([&] { SaveWorksheet(closed, "A", "new"); }), NotMade);
            EXPECT_EQ(TroubleOf([&] { SaveWorksheet(closed, "A", "new"); }),
                      StoreTrouble::NotAllowed);
            EXPECT_EQ(closed.ReadInTransaction(
                          [&](const RegistryAPI& step) { step.KeyExists(User, Base); }),
                      row.isRead ? StoreTrouble::None : StoreTrouble::NotAllowed);
            EXPECT_EQ(FailureOf([&] { closed.CreateKey(User, Base + "\\B"); }), NotMade);
            closed.SetValue(User, Base + "\\A", "InterestRate0", RegistryType::Text, "new");
            closed.DeleteKey(User, Base + "\\A");
            EXPECT_EQ(MarkOf(closed, "A"), row.isRead ? "last" : "");
            const State state = PrepareStore(store, "today").state;
            EXPECT_EQ(state, row.isRead ? State::Sound : State::Unusable);
            TidyStore(store);
        }));
    }
}

TEST_F(StoreFaultTest, AMissingFolderIsMadeAndOneThatCannotBeIsSaid) {
    SaveWorksheet(registry, "A", "first");
    fs::remove_all(store.parent_path());
    EXPECT_EQ(MarkOf(registry, "A"), "");
    EXPECT_EQ(registry.ReadInTransaction([](const RegistryAPI&) {}), StoreTrouble::None);
    EXPECT_EQ(PrepareStore(store, "today").state, State::Missing);
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(registry, "A", "second"); }), "");
    EXPECT_EQ(MarkOf(registry, "A"), "second");

    WriteBytes(folder / "file", "no folder");
    for (const fs::path& place :
         {folder / "file" / "Loan.store", fs::path("/proc/none/Loan.store"), folder, fs::path()}) {
        SCOPED_TRACE(place);
        const RegistryAPI nowhere(place);
        EXPECT_EQ(FailureOf([&] { SaveWorksheet(nowhere, "A", "a"); }), NotMade);
        EXPECT_EQ(FailureOf([&] { nowhere.CreateKey(User, Base); }), NotMade);
        EXPECT_EQ(MarkOf(nowhere, "A"), "");
        EXPECT_FALSE(nowhere.KeyExists(User, Base));
    }
    EXPECT_EQ(PrepareStore(folder, "today").state, State::Unusable);
}

} // namespace
