#include "LanguageIdentifier.h"
#include "QuendNames.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

namespace {

TEST(LanguageIdentifier, OfALocaleName) {
    struct Case {
        const char* locale;
        std::uint16_t identifier;
    };
    const std::vector<Case> cases{
        {"es_MX", 0x080A},
        {"es_MX.UTF-8", 0x080A},
        {"es_ES", 0x0C0A},
        {"es_ES@euro", 0x0C0A},
        {"es_ES.ISO-8859-15@euro", 0x0C0A},
        {"es_US.UTF-8", 0x540A},
        {"es", 0x000A},
        {"en_US", 0x0409},
        {"en_US.UTF-8", 0x0409},
        {"en_GB", 0x0809},
        {"de_DE", 0x0407},
        {"de_AT.UTF-8", 0x0C07},
        {"C", 0},
        {"C.UTF-8", 0},
        {"POSIX", 0},
        {"", 0},
        {".UTF-8", 0},
        {"@euro", 0},
        {"xx_YY", 0},
        {"no such locale", 0},
        {"español", 0},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(row.identifier, LanguageIdentifierOf(QString::fromUtf8(row.locale)))
            << row.locale;
    }
}

/// Sets the variables that name the user's locale; the destructor restores them.
class UserLocale {
public:
    UserLocale(const char* all, const char* messages, const char* lang) {
        Set(0, all);
        Set(1, messages);
        Set(2, lang);
    }
    Q_DISABLE_COPY_MOVE(UserLocale)
    ~UserLocale() {
        for (std::size_t i = 0; i < Names.size(); ++i) {
            Put(i, m_before.at(i));
        }
    }

private:
    static constexpr std::array Names{"LC_ALL", "LC_MESSAGES", "LANG"};

    static void Put(std::size_t i, const QByteArray& value) {
        value.isNull() ? qunsetenv(Names.at(i)) : qputenv(Names.at(i), value);
    }
    void Set(std::size_t i, const char* value) {
        m_before.at(i) = qgetenv(Names.at(i));
        Put(i, value);
    }

    std::array<QByteArray, 3> m_before;
};

TEST(LanguageIdentifier, OfTheUser) {
    struct Case {
        const char* all; // nullptr: not set
        const char* messages;
        const char* lang;
        std::uint16_t identifier;
    };
    const std::vector<Case> cases{
        {nullptr, nullptr, nullptr, 0},
        {nullptr, nullptr, "es_MX.UTF-8", 0x080A},
        {nullptr, "es_ES@euro", "en_US.UTF-8", 0x0C0A},
        {"en_US.UTF-8", "es_ES.UTF-8", "es_MX.UTF-8", 0x0409},
        {"C", "es_ES.UTF-8", "es_MX.UTF-8", 0},
        {"", "", "es_MX.UTF-8", 0x080A},
        {"", "C.UTF-8", "es_MX.UTF-8", 0},
    };
    for (const Case& row : cases) {
        const UserLocale locale(row.all, row.messages, row.lang);
        EXPECT_EQ(row.identifier, UserDefaultLanguageIdentifier())
            << testing::PrintToString(row.all) << testing::PrintToString(row.messages)
            << testing::PrintToString(row.lang);
    }
}

} // namespace
