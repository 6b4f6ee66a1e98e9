// Names and files at the limits of the store file.
#include "QuendNames.h"
#include "StoreCheck.h"

#include "Sqlite.h"
#include "StoreFile.h"
#include "StoreFixture.h"
#include "StoreSnapshot.h"
#include "StoreSoundness.h"

namespace {

namespace fs = std::filesystem;
using State = StoreCondition::State;

class StoreLimitsTest : public StoreFixture {
protected:
    const RegistryAPI registry{store};
};

/// Bytes that are not UTF-8: overlong form, character too large, lone surrogate, lone continuation
/// byte.
const std::vector<std::string> NoTexts{"\xC0\x80",     "\xE0\x80\xAF", "\xF4\x90\x80\x80",
                                       "\xED\xA0\x80", "\x80",         "A\xFF"};

TEST_F(StoreLimitsTest, NamesThatCannotBeHoldNothing) {
    registry.CreateKey(User, Base);
    std::vector<std::string> names = NoTexts;
    names.emplace_back(16'384, 'n');
    for (const std::string& name : names) {
        SCOPED_TRACE(name.substr(0, 10));
        registry.SetValue(User, Base, name, RegistryType::Text, "kept");
        EXPECT_EQ(registry.GetValue(User, Base, name, RegistryType::Text, "none"),
                  RegistryValue("none"));
        EXPECT_EQ(registry.GetValueType(User, Base, name), 0);
        registry.DeleteValue(User, Base, name);
        if (name.size() < 255) {
            const std::string key = std::string(Base).append("\\").append(name);
            EXPECT_EQ(FailureOf([&] { registry.CreateKey(User, key); }), NotMade);
        }
    }
    // One element of blanks means that there are none.
    EXPECT_EQ(registry.GetSubKeys(User, Base), std::vector<std::string>{std::string(260, ' ')});
}

TEST_F(StoreLimitsTest, KeysThatCannotBeHoldNothing) {
    for (const std::string& key : {std::string("\\Base"), Base + '\\' + std::string(256, 'k')}) {
        SCOPED_TRACE(key.substr(0, 10));
        registry.SetValue(User, key, "Value", RegistryType::Text, "kept");
        EXPECT_EQ(registry.GetValue(User, key, "Value", RegistryType::Text, "none"),
                  RegistryValue("none"));
        EXPECT_EQ(registry.GetValueType(User, key, "Value"), 0);
        registry.DeleteValue(User, key, "Value");
        EXPECT_FALSE(registry.KeyExists(User, key));
    }
}

/// The last key found is cached within a transaction, for its own root only.
TEST_F(StoreLimitsTest, EachRootHasSeparateKeys) {
    registry.InTransaction([](const RegistryAPI& step) {
        step.SetValue(User, Base, "None", RegistryType::Text, "lost"); // the key does not exist yet
        step.CreateKey(User, Base);
        step.SetValue(User, Base, "Root", RegistryType::Text, "user");
        EXPECT_FALSE(step.KeyExists(RegistryRoot::LocalMachine, Base));
        step.CreateKey(RegistryRoot::LocalMachine, Base);
        step.SetValue(RegistryRoot::LocalMachine, Base, "Root", RegistryType::Text, "machine");
        EXPECT_EQ(step.GetValue(User, Base, "Root", RegistryType::Text, ""), RegistryValue("user"));
    });
    EXPECT_EQ(registry.GetValue(RegistryRoot::LocalMachine, Base, "Root", RegistryType::Text, ""),
              RegistryValue("machine"));
}

TEST_F(StoreLimitsTest, ARootIsNeverDeleted) {
    registry.DeleteKey(User, "");
    registry.CreateKey(User, Base);
    registry.SetValue(User, "", "Root", RegistryType::Text, "user");
    registry.DeleteKey(User, Base);
    registry.DeleteKey(User, "Software\\Quend Halverworks");
    registry.DeleteKey(User, "Software");
    registry.DeleteKey(User, ""); // nothing is below it any more
    EXPECT_EQ(registry.GetValue(User, "", "Root", RegistryType::Text, ""), RegistryValue("user"));
}

TEST_F(StoreLimitsTest, TheTypeOfAValueIsReported) {
    registry.CreateKey(User, Base);
    registry.SetValue(User, Base, "Text", RegistryType::Text, "1");
    registry.SetValue(User, Base, "Number", RegistryType::Number, 1);
    EXPECT_EQ(registry.GetValueType(User, Base, "text"), RegistryType::Text);
    EXPECT_EQ(registry.GetValueType(User, Base, "Number"), RegistryType::Number);
    EXPECT_EQ(registry.GetValueType(User, Base, "Absent"), 0);
    EXPECT_EQ(RegistryFlag(true), -1);
    EXPECT_EQ(RegistryFlag(false), 0);
}

/// The page size of a log is checked before its checksums are calculated.
TEST_F(StoreLimitsTest, ALogOfImpossiblePagesIsNone) {
    SaveWorksheet(registry, "0", "0");
    MakeOneFile(store);
    SaveWorksheet(registry, "0", "last"); // in the log
    const std::string log = BytesOf(StoreFile::LogOf(store));
    const std::string file = BytesOf(store);
    ASSERT_NE(StoreSnapshot(store).Bytes(), file);
    for (const std::string& size : {std::string("\0\0\1\0", 4), std::string("\0\2\0\0", 4),
                                    std::string("\0\0\x10\1", 4), std::string(4, '\0')}) {
        std::string damaged = log;
        WriteBytes(StoreFile::LogOf(store), damaged.replace(8, 4, size));
        EXPECT_EQ(StoreSnapshot(store).Bytes(), file);
    }
}

TEST_F(StoreLimitsTest, AFileWithoutALogIsSoundToo) {
    SaveWorksheet(registry, "0", "0");
    MakeOneFile(store);
    WriteBytes(store, StoreSnapshot(store).AsPlainFile());
    ASSERT_EQ(BytesOf(store).substr(18, 2), "\1\1");
    EXPECT_TRUE(IsSound(StoreSnapshot(store)));
    EXPECT_EQ(MarkOf(registry, "0"), "0");
}

TEST_F(StoreLimitsTest, AFolderInItsPlaceCannotBeUsed) {
    fs::create_directories(store);
    EXPECT_EQ(PrepareStore(store, "2026-11-21").state, State::Unusable);
    EXPECT_NE(RepairStore(store, "2026-11-21").state, State::Repaired);
    TidyStore(store);
    EXPECT_TRUE(fs::is_directory(store));
}

TEST_F(StoreLimitsTest, AnEmptyFolderHasNothingToTidy) {
    fs::create_directories(store.parent_path());
    EXPECT_EQ(PrepareStore(store, "2026-11-21").state, State::Missing);
    TidyStore(store);
    EXPECT_FALSE(fs::exists(store));
}

} // namespace
