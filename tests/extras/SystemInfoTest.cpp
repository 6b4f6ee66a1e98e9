#include "SystemInfo.h"
#include "QuendNames.h"
#include "StoreFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr RegistryRoot Machine = RegistryRoot::LocalMachine;
const std::string ToolKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
const std::string FolderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";

class SystemInfo : public testing::Test {
protected:
    void Put(const std::string& key, const std::string& name, std::int16_t type,
             const RegistryValue& value) {
        m_store.CreateKey(Machine, key);
        m_store.SetValue(Machine, key, name, type, value);
    }
    void PutText(const std::string& key, const std::string& name, const std::string& text) {
        Put(key, name, RegistryType::Text, text);
    }
    bool Start() {
        return StartSysInfo(m_store, {.installed = [this] { return m_installed; },
                                      .start =
                                          [this](const QString& path) {
                                              m_started = path;
                                              return m_starts;
                                          }});
    }
    std::optional<QString> Value(const std::string& name) const {
        return GetKeyValue(m_store, Machine, "Key", name);
    }

    StoreFolder m_folder;
    RegistryAPI m_store = m_folder.Store();
    std::optional<QString> m_installed;
    std::optional<QString> m_started;
    bool m_starts = true;
};

TEST_F(SystemInfo, ValuesAreTextsByTheirType) {
    struct Case {
        const char* name;
        std::int16_t type;
        RegistryValue value;
        std::optional<QString> text;
    };
    const std::vector<Case> cases{
        {"text", RegistryType::Text, std::string("C:\\Tools"), QStringLiteral("C:\\Tools")},
        {"accents", RegistryType::Text, std::string("Información"), QStringLiteral("Información")},
        {"none", RegistryType::Text, std::string(), QString()},
        {"longest", RegistryType::Text, std::string(1'023, 'x'), QString(1'023, u'x')},
        {"too long", RegistryType::Text, std::string(1'024, 'x'), std::nullopt},
        {"zero", RegistryType::Number, 0, QStringLiteral("0")},
        {"one", RegistryType::Number, 1, QStringLiteral("1")},
        {"bytes apart", RegistryType::Number, 0x12'00'01'0A, QStringLiteral("301990154")},
        {"minus", RegistryType::Number, -1, QStringLiteral("-1")},
        {"binary", RegistryType::Binary,
         std::vector<std::byte>{std::byte{0x41}, std::byte{0x42}, std::byte{0xE9}},
         QStringLiteral("ABé")},
    };
    for (const Case& tested : cases) {
        SCOPED_TRACE(tested.name);
        Put("Key", tested.name, tested.type, tested.value);
        EXPECT_EQ(Value(tested.name), tested.text);
    }
    EXPECT_EQ(Value("missing"), std::nullopt);
    EXPECT_EQ(GetKeyValue(m_store, Machine, "No key", "text"), std::nullopt);
}

TEST_F(SystemInfo, TypesAreAsWritten) {
    Put("Key", "text", RegistryType::Text, std::string("1"));
    Put("Key", "number", RegistryType::Number, 1);
    EXPECT_EQ(m_store.GetValueType(Machine, "Key", "TEXT"), RegistryType::Text);
    EXPECT_EQ(m_store.GetValueType(Machine, "Key", "number"), RegistryType::Number);
    EXPECT_EQ(m_store.GetValueType(Machine, "Key", "missing"), 0);
    EXPECT_EQ(m_store.GetValueType(Machine, "No key", "text"), 0);
}

TEST_F(SystemInfo, ThePathOfTheToolComesFirst) {
    PutText(ToolKey, "PATH", R"(C:\Info\Tool.exe)");
    PutText(FolderKey, "MSINFO", R"(C:\Shared)");
    m_installed = QStringLiteral("/usr/bin/tool");
    EXPECT_TRUE(Start());
    EXPECT_EQ(m_started, QStringLiteral(R"(C:\Info\Tool.exe)"));
}

TEST_F(SystemInfo, ThenTheFolderOfTheSharedTools) {
    PutText(FolderKey, "MSINFO", R"(C:\Shared)");
    EXPECT_TRUE(Start());
    EXPECT_EQ(m_started, QStringLiteral(R"(C:\Shared\MSINFO32.EXE)"));
}

TEST_F(SystemInfo, ThenWhatIsInstalled) {
    m_installed = QStringLiteral("/usr/bin/tool");
    EXPECT_TRUE(Start());
    EXPECT_EQ(m_started, QStringLiteral("/usr/bin/tool"));
}

TEST_F(SystemInfo, IsUnavailableWithoutAToolOrWhenItDoesNotStart) {
    EXPECT_FALSE(Start());
    EXPECT_EQ(m_started, std::nullopt);
    m_installed = QStringLiteral("/usr/bin/tool");
    m_starts = false;
    EXPECT_FALSE(Start());
}

} // namespace
