// Transactions on the store file: atomicity and cost.
#include "FlushCount.h"
#include "QuendNames.h"
#include "StoreCheck.h"
#include "StoreFile.h"
#include "StoreFixture.h"

#include <cstdlib>
#include <optional>
#include <sys/stat.h>

namespace {

class StoreTransactionTest : public StoreFixture {
protected:
    const RegistryAPI registry{store, std::chrono::milliseconds(50)};

    std::string Text(const RegistryAPI& from, const std::string& name) const {
        return std::get<std::string>(from.GetValue(User, Base, name, RegistryType::Text, ""));
    }
};

TEST_F(StoreTransactionTest, IsKeptAsAWholeOrNotAtAll) {
    registry.CreateKey(User, Base);
    registry.SetValue(User, Base, "One", RegistryType::Text, "old");
    const auto write = [&](const RegistryAPI& step) {
        step.SetValue(User, Base, "One", RegistryType::Text, "new");
        step.CreateKey(User, Base + "\\Made");
        EXPECT_EQ(Text(step, "One"), "new");
        EXPECT_EQ(Text(registry, "One"), "old"); // others see it after the commit
    };
    EXPECT_THROW(registry.InTransaction([&](const RegistryAPI& step) {
        write(step);
        throw std::runtime_error("given up");
    }),
                 std::runtime_error);
    EXPECT_EQ(Text(registry, "One"), "old");
    EXPECT_FALSE(registry.KeyExists(User, Base + "\\Made"));
    registry.InTransaction(write);
    EXPECT_EQ(Text(registry, "One"), "new");
    EXPECT_TRUE(registry.KeyExists(User, Base + "\\Made"));
}

TEST_F(StoreTransactionTest, OfAFailedKeyIsGivenUpUnlessThatIsCaught) {
    const std::string tooLong(256, 'x');
    EXPECT_EQ(FailureOf([&] {
                  registry.InTransaction([&](const RegistryAPI& step) {
                      step.CreateKey(User, Base);
                      step.CreateKey(User, Base + '\\' + tooLong);
                  });
              }),
              NotMade);
    EXPECT_FALSE(registry.KeyExists(User, Base));
}

TEST_F(StoreTransactionTest, InAnotherBelongsToIt) {
    registry.InTransaction([&](const RegistryAPI& outer) {
        outer.InTransaction([&](const RegistryAPI& inner) { inner.CreateKey(User, Base); });
        outer.ReadInTransaction([&](const RegistryAPI& inner) {
            EXPECT_TRUE(inner.KeyExists(User, Base));
            inner.SetValue(User, Base, "One", RegistryType::Text, "1");
        });
        EXPECT_FALSE(registry.KeyExists(User, Base));
    });
    EXPECT_EQ(Text(registry, "One"), "1");
    const auto failing = [&](const RegistryAPI& outer) {
        outer.SetValue(User, Base, "One", RegistryType::Text, "2");
        EXPECT_THROW(
            outer.InTransaction([](const RegistryAPI&) { throw std::runtime_error("no"); }),
            std::runtime_error);
        outer.SetValue(User, Base, "One", RegistryType::Text, "3");
    };
    EXPECT_EQ(FailureOf([&] { registry.InTransaction(failing); }), NotMade);
    EXPECT_EQ(Text(registry, "One"), "1");
}

TEST_F(StoreTransactionTest, OfReadingWritesNothingAndSeesOneMoment) {
    registry.CreateKey(User, Base);
    registry.SetValue(User, Base, "One", RegistryType::Text, "old");
    registry.ReadInTransaction([&](const RegistryAPI& step) {
        registry.SetValue(User, Base, "One", RegistryType::Text, "new");
        EXPECT_EQ(Text(step, "One"), "old");
        step.SetValue(User, Base, "One", RegistryType::Text, "newer");
        step.DeleteValue(User, Base, "One");
        step.DeleteKey(User, Base);
        EXPECT_TRUE(step.CreateKey(User, Base));
        EXPECT_EQ(FailureOf([&] { step.CreateKey(User, Base + "\\No"); }), NotMade);
        EXPECT_EQ(FailureOf([&] { step.InTransaction([](const RegistryAPI&) {}); }), NotMade);
    });
    EXPECT_EQ(Text(registry, "One"), "new");
}

TEST_F(StoreTransactionTest, WhenOverReachesNothing) {
    const RegistryAPI* kept = nullptr;
    RegistryAPI copy = registry;
    registry.InTransaction([&](const RegistryAPI& step) {
        step.CreateKey(User, Base);
        copy = step;
    });
    kept = &copy;
    EXPECT_FALSE(kept->KeyExists(User, Base));
    kept->SetValue(User, Base, "One", RegistryType::Text, "1");
    EXPECT_EQ(Text(registry, "One"), "");
}

TEST_F(StoreTransactionTest, OnlyMakingAKeyMakesTheStore) {
    EXPECT_FALSE(registry.KeyExists(User, Base));
    EXPECT_TRUE(registry.KeyExists(User, ""));
    registry.SetValue(User, Base, "One", RegistryType::Text, "1");
    registry.DeleteValue(User, Base, "One");
    registry.DeleteKey(User, Base);
    registry.ReadInTransaction([&](const RegistryAPI& step) { EXPECT_EQ(Text(step, "One"), ""); });
    EXPECT_EQ(registry.GetSubKeys(User, ""), std::vector<std::string>{std::string(260, ' ')});
    EXPECT_FALSE(std::filesystem::exists(store.parent_path()));
    EXPECT_FALSE(registry.CreateKey(User, Base));
    EXPECT_TRUE(std::filesystem::exists(store));
}

TEST_F(StoreTransactionTest, StoreAndFoldersAreForTheUserAlone) {
    const std::filesystem::path deep = folder / "one" / "two" / "Loan.store";
    const mode_t before = umask(0);
    SaveWorksheet(RegistryAPI(deep), "A", "a");
    umask(before);
    using std::filesystem::perms;
    const auto modeOf = [](const std::filesystem::path& path) {
        return std::filesystem::status(path).permissions();
    };
    EXPECT_EQ(modeOf(folder / "one"), perms::owner_all);
    EXPECT_EQ(modeOf(folder / "one" / "two"), perms::owner_all);
    for (const auto& file : {deep, StoreFile::LogOf(deep), StoreFile::SharedOf(deep)}) {
        EXPECT_EQ(modeOf(file), perms::owner_read | perms::owner_write) << file;
    }
}

TEST_F(StoreTransactionTest, RootsAreSeparateTrees) {
    registry.CreateKey(RegistryRoot::LocalMachine, Base);
    EXPECT_FALSE(registry.KeyExists(User, Base));
    EXPECT_EQ(registry.GetSubKeys(RegistryRoot::LocalMachine, ""),
              std::vector<std::string>{"Software"});
}

TEST_F(StoreTransactionTest, UpperCaseDecidesTheOrderOfSigns) {
    for (const char* const name : {"_", "a", "[", "Z", "^", "1"}) {
        registry.CreateKey(User, Base + '\\' + name);
    }
    EXPECT_EQ(registry.GetSubKeys(User, Base),
              (std::vector<std::string>{"1", "a", "Z", "[", "^", "_"}));
}

TEST_F(StoreTransactionTest, OfASaveCostsOneFlushHoweverManyValues) {
    registry.CreateKey(User, Base);
    const auto flushesOf = [](const std::function<void()>& action) {
        const int before = FlushCount();
        action();
        return FlushCount() - before;
    };
    EXPECT_EQ(PrepareStore(store, "today").state, StoreCondition::State::Sound);
    for (int i = 0; i < 150; ++i) {
        EXPECT_EQ(flushesOf([&] { SaveWorksheet(registry, std::to_string(i % 100), "x"); }), 1)
            << i;
    }
    EXPECT_EQ(flushesOf([&] { registry.SetValue(User, Base, "One", RegistryType::Text, "1"); }), 1);
    EXPECT_EQ(flushesOf([&] { EXPECT_EQ(MarkOf(registry, "1"), "x"); }), 0);
    EXPECT_EQ(flushesOf([&] { registry.GetSubKeys(User, Base); }), 0);
    TidyStore(store);
    EXPECT_LT(std::filesystem::file_size(StoreFile::LogOf(store)), 10'000U);
    EXPECT_EQ(flushesOf([&] { PrepareStore(store, "today"); }), 0);
    EXPECT_EQ(flushesOf([&] { SaveWorksheet(registry, "after", "y"); }), 1);
    EXPECT_EQ(MarkOf(registry, "after"), "y");
}

/// Sets an environment variable during its lifetime, or unsets it when the value is null.
class Environment {
public:
    Environment(const char* name, const char* value) : m_name(name) {
        if (const char* const before = std::getenv(name)) {
            m_before = before;
        }
        Set(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { Set(m_before ? m_before->c_str() : nullptr); }

private:
    void Set(const char* value) const {
        if (value == nullptr) {
            unsetenv(m_name);
        } else {
            setenv(m_name, value, 1);
        }
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

struct PlaceCase {
    const char* data;
    const char* home;
    const char* folder;
};

TEST(UserStore, IsInTheUsersDataFolder) {
    // clang-format off
    const std::vector<PlaceCase> cases{
        // XDG_DATA_HOME  HOME          folder
        { "/srv/data",    "/home/jose", "/srv/data" },
        { nullptr,        "/home/jose", "/home/jose/.local/share" },
        { "",             "/home/jose", "/home/jose/.local/share" },
        { "data",         "/home/jose", "/home/jose/.local/share" },   // relative: ignored
        { "./data",       "/home/jose", "/home/jose/.local/share" },
    };
    // clang-format on
    for (const PlaceCase& row : cases) {
        const Environment data("XDG_DATA_HOME", row.data);
        const Environment home("HOME", row.home);
        EXPECT_EQ(RegistryAPI::UserStore(),
                  std::filesystem::path(row.folder) / "Quend Halverworks" / "Loan.store");
    }
    const Environment data("XDG_DATA_HOME", nullptr);
    const Environment noHome("HOME", nullptr);
    const std::filesystem::path ofTheSystem = RegistryAPI::UserStore();
    EXPECT_TRUE(ofTheSystem.is_absolute());
    for (const char* const none : {"", "jose", "./jose"}) {
        const Environment home("HOME", none);
        EXPECT_EQ(RegistryAPI::UserStore(), ofTheSystem) << none;
    }
}

} // namespace
