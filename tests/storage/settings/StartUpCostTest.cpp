// The program starts as fast with many worksheets as with none: its queries do not depend on the
// content of the store, and it reads the file once. Counted, not timed.

#include "FileCommands.h"
#include "Language.h"
#include "LoanNameBox.h"
#include "QuendNames.h"
#include "SettingsStore.h"
#include "StoreCheck.h"
#include "StoreFolder.h"
#include "WindowFixture.h"

#include <QProcess>

#include <sqlite3.h>

#include <fstream>

namespace {

struct Asked {
    int commands = 0;
    int rows = 0;

    bool operator==(const Asked&) const = default;
};

Asked& Count() {
    static Asked asked;
    return asked;
}

int Note(unsigned what, void* /*context*/, void* /*statement*/, void* /*more*/) {
    ++(what == SQLITE_TRACE_ROW ? Count().rows : Count().commands);
    return 0;
}

int Watch(sqlite3* connection, const char** /*error*/, const sqlite3_api_routines* /*api*/) {
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT | SQLITE_TRACE_ROW, Note, nullptr);
}

/// Counts the queries to every store that is opened during its lifetime.
class Watcher {
public:
    Watcher() {
        Count() = {};
        sqlite3_auto_extension(Entry());
    }
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;
    ~Watcher() { sqlite3_cancel_auto_extension(Entry()); }

private:
    // SQLite's interface requires this cast.
    static void (*Entry())() { return reinterpret_cast<void (*)()>(Watch); } // NOLINT
};

/// The bytes that this process has read so far, from files and elsewhere.
std::uintmax_t BytesRead() {
    std::ifstream counts("/proc/self/io");
    std::string name;
    std::uintmax_t bytes = 0;
    counts >> name >> bytes;
    return name == "rchar:" ? bytes : 0;
}

class StartUpCost : public WindowTest {
protected:
    static void Keep(const StoreFolder& folder, int worksheets) {
        folder.Store().InTransaction([&](const RegistryAPI& step) {
            for (int i = 0; i < worksheets; ++i) {
                const std::string key = StoreFolder::LoanKey("Loan " + std::to_string(i));
                step.CreateKey(StoreFolder::Root, key);
                for (int value = 0; value < 130; ++value) {
                    step.SetValue(StoreFolder::Root, key, "Value " + std::to_string(value),
                                  RegistryType::Text, "123456.78");
                }
            }
        });
        TidyStore(folder.File());
    }

    /// Starts like the program, up to the window on the screen.
    Asked AskedAtStart(const StoreFolder& folder) {
        const Watcher watcher;
        const RegistryAPI store = folder.Store();
        EXPECT_EQ(PrepareStore(folder.File(), "today").state, StoreCondition::State::Sound);
        PrepareKeyAndLanguage(store, 0x0409);
        EXPECT_TRUE(LoadSettings(store).failures.empty());
        Open();
        const FileCommands files(Window(), WorksheetStore(store));
        Settle();
        EXPECT_EQ(Get<LoanNameBox>(u"cboLoanName").count(), 0); // filled when it drops down
        return Count();
    }
};

TEST_F(StartUpCost, AsksTheStoreTheSameHoweverManyWorksheets) {
    const StoreFolder none;
    const StoreFolder hundred;
    Keep(none, 0);
    Keep(hundred, 100);
    AskedAtStart(none); // excludes queries made once per process
    const Asked asked = AskedAtStart(none);
    EXPECT_GT(asked.commands, 5);
    EXPECT_LT(asked.commands, 100);
    const Asked withHundred = AskedAtStart(hundred);
    EXPECT_EQ(withHundred.commands, asked.commands);
    EXPECT_EQ(withHundred.rows, asked.rows);
    {
        const Watcher watcher;
        EXPECT_EQ(WorksheetStore(hundred.Store()).Names().size(), 100);
        EXPECT_GE(Count().rows, 100); // listing the worksheets is visible in the count
    }
}

TEST_F(StartUpCost, LooksAtTheFileOnceAndAtNothingElse) {
    const StoreFolder hundred;
    Keep(hundred, 100);
    const auto log = hundred.File().string() + "-wal";
    const std::uintmax_t size =
        std::filesystem::file_size(hundred.File()) +
        (std::filesystem::exists(log) ? std::filesystem::file_size(log) : 0);
    ASSERT_GT(size, 100'000U);
    const Watcher watcher;
    PrepareStore(hundred.File(), "today"); // excludes what is done once per process
    Count() = {};
    const std::uintmax_t before = BytesRead();
    ASSERT_GT(before, 0U);
    EXPECT_EQ(PrepareStore(hundred.File(), "today").state, StoreCondition::State::Sound);
    const std::uintmax_t read = BytesRead() - before;
    EXPECT_GE(read, size);
    EXPECT_LE(read, size + 8'192); // includes reading the counter itself
    EXPECT_EQ(Count(), Asked{});
}

/// The libraries that the operating system loads before main(), as its loader reports them.
QStringList LibrariesOfProgram() {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_TRACE_LOADED_OBJECTS"), QStringLiteral("1"));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(QUEND_PROGRAM_DIR "/Loan"), {});
    program.waitForFinished();
    return QString::fromLocal8Bit(program.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

TEST(StartUpLibraries, AreThoseOfTheFirstWindowOnly) {
    const QStringList libraries = LibrariesOfProgram();
    ASSERT_FALSE(libraries.filter(QStringLiteral("libQt6Widgets")).isEmpty());
    // The help viewer, its dependencies, and printing.
    for (const char* late : {"Qt6Help", "Qt6Sql", "Qt6Network", "Qt6PrintSupport", "libcups",
                             "gnutls", "Qt6Svg", "Qt6Test"}) {
        EXPECT_TRUE(libraries.filter(QLatin1String(late)).isEmpty()) << late;
    }
    EXPECT_LT(libraries.size(), 60) << libraries.join(u'\n').toStdString();
}

} // namespace
