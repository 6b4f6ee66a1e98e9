// Migration of a store with data from an earlier schema through all versions to a later one.
#include "QuendNames.h"
#include "Sqlite.h"
#include "StoreFile.h"
#include "StoreFixture.h"
#include "StoreSchema.h"

#include <array>

namespace {

using Steps = std::vector<const char*>;

constexpr std::chrono::milliseconds NoWait{0};

/// Two possible later schemas: values get a time, and the names of keys get a separate table.
constexpr const char* AddTime =
    "ALTER TABLE KeyValues ADD COLUMN written INTEGER NOT NULL DEFAULT 0";
constexpr const char* NamesApart =
    "CREATE TABLE Names(key INTEGER PRIMARY KEY, name TEXT NOT NULL) STRICT;"
    "INSERT INTO Names SELECT id, name FROM Keys; ALTER TABLE Keys DROP COLUMN name;";

class MigrationTest : public StoreFixture {
protected:
    static Steps Chain(std::initializer_list<const char*> later) {
        Steps steps(StoreSchema::Steps.begin(), StoreSchema::Steps.end());
        steps.insert(steps.end(), later);
        return steps;
    }

    /// Three worksheets in the current schema.
    void Build() const {
        SaveWorksheets(RegistryAPI(store), 3);
        MakeOneFile(store);
    }

    void MigrateTo(const Steps& steps) const {
        const Connection connection(store, NoWait);
        Transaction step(connection, Transaction::Kind::Write);
        StoreSchema::Migrate(connection, steps);
        step.Keep();
    }

    std::string FirstText(const char* command) const {
        const Connection connection(store, NoWait);
        Statement statement(connection.Handle(), command);
        return statement.Next() ? statement.Bytes(0) : "(none)";
    }
    std::int64_t Number(const char* command) const {
        return Connection(store, NoWait).Ask(command);
    }
};

TEST_F(MigrationTest, KeepsEverythingThroughAllTheSteps) {
    Build();
    MigrateTo(Chain({AddTime, NamesApart}));
    EXPECT_EQ(Number("PRAGMA user_version"), 3);
    EXPECT_EQ(Number("PRAGMA application_id"), StoreSchema::ApplicationId);
    EXPECT_EQ(Number("SELECT count(*) FROM Names"), 6); // three keys above the worksheets
    EXPECT_EQ(Number("SELECT count(*) FROM KeyValues WHERE written=0"), 3 * ValuesOfWorksheet);
    EXPECT_EQ(FirstText("SELECT name FROM Names ORDER BY key DESC"), "2");
    EXPECT_EQ(Number("SELECT count(*) FROM KeyValues JOIN Names USING(key) "
                     "WHERE CAST(data AS TEXT)=Names.name"),
              3 * ValuesOfWorksheet); // each worksheet still has its own mark
    EXPECT_EQ(FirstText("PRAGMA integrity_check"), "ok");
}

TEST_F(MigrationTest, BeginsAtTheVersionOfTheFile) {
    Build();
    MigrateTo(Chain({AddTime}));
    EXPECT_EQ(Number("PRAGMA user_version"), 2);
    MigrateTo(Chain({AddTime, NamesApart})); // a column cannot be added twice
    EXPECT_EQ(Number("PRAGMA user_version"), 3);
    MigrateTo(Chain({AddTime, NamesApart}));
    EXPECT_EQ(Number("SELECT count(*) FROM KeyValues"), 3 * ValuesOfWorksheet);
}

TEST_F(MigrationTest, ThatFailsInTheMiddleLeavesTheOldStore) {
    Build();
    const std::string whole = BytesOf(store);
    // clang-format off
    const std::array<Steps, 3> failing{
        Chain({"no command at all"}),
        Chain({AddTime, NamesApart, "SELECT name FROM Keys"}),             // dropped by then
        Chain({AddTime, "DROP TABLE KeyValues; INSERT INTO Nowhere VALUES(1)"}),
    };
    // clang-format on
    for (const Steps& steps : failing) {
        SCOPED_TRACE(steps.back());
        EXPECT_THROW(MigrateTo(steps), StoreError);
        EXPECT_EQ(Number("PRAGMA user_version"), 1);
        const RegistryAPI registry(store, NoWait);
        for (const char* const name : {"0", "1", "2"}) {
            EXPECT_EQ(MarkOf(registry, name), name);
        }
        EXPECT_EQ(BytesOf(store), whole);
    }
    EXPECT_EQ(FailureOf([&] { SaveWorksheet(RegistryAPI(store), "3", "3"); }), "");
}

} // namespace
