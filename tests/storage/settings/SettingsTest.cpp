// The settings in the store: reading, rejected values, writing.

#include "Language.h"
#include "QuendNames.h"
#include "RegistryAPI.h"
#include "SettingsStore.h"
#include "StoreNames.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr auto Root = RegistryRoot::CurrentUser;
constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t Absent = 4711;

class SettingsInTheStore : public ::testing::Test {
protected:
    SettingsInTheStore() { m_store.CreateKey(Root, BaseKey); }

    void Put(const char* name, std::int32_t number) {
        m_store.SetValue(Root, BaseKey, name, RegistryType::Number, number);
    }
    void Put(const char* name, const std::string& text) {
        m_store.SetValue(Root, BaseKey, name, RegistryType::Text, text);
    }
    std::int32_t Number(const char* name) const {
        return std::get<std::int32_t>(
            m_store.GetValue(Root, BaseKey, name, RegistryType::Number, Absent));
    }
    std::string Text(const char* name) const {
        return std::get<std::string>(
            m_store.GetValue(Root, BaseKey, name, RegistryType::Text, std::string("(absent)")));
    }
    /// The failure numbers; every failure must be of this value.
    static std::vector<int> Failures(const StoredSettings& loaded, const char* name) {
        std::vector<int> numbers;
        for (const Failure& failure : loaded.failures) {
            EXPECT_EQ(failure.Source(), name);
            numbers.push_back(failure.Number());
        }
        return numbers;
    }

    QTemporaryDir m_folder;
    RegistryAPI m_store{m_folder.filePath(QStringLiteral("Loan.store")).toStdString()};
};

TEST_F(SettingsInTheStore, AreTheDefaultsInAFreshStore) {
    const StoredSettings loaded = LoadSettings(m_store);
    EXPECT_EQ(loaded.settings.loansDisplayed, 5);
    EXPECT_FALSE(loaded.settings.termInMonths);
    EXPECT_TRUE(loaded.settings.wallpaper.isEmpty());
    EXPECT_TRUE(loaded.settings.wallpaperDirectory.isEmpty());
    EXPECT_TRUE(loaded.failures.empty());
}

TEST_F(SettingsInTheStore, NumberOfOffers) {
    struct Case {
        std::int32_t stored;
        int lastRow;
        std::vector<int> failures;
    };
    const std::vector<Case> cases = {
        // stored    last row  failures
        {1, 0, {}},   {6, 5, {}},   {15, 14, {}},        {0, 5, {}}, // missing
        {16, 5, {6}}, {-1, 5, {6}}, {1'000'000, 5, {6}}, {Lowest, 5, {6}}, {Highest, 5, {6}},
    };
    for (const Case& tested : cases) {
        Put("LoansDisplayed", tested.stored);
        const StoredSettings loaded = LoadSettings(m_store);
        EXPECT_EQ(loaded.settings.loansDisplayed, tested.lastRow) << tested.stored;
        EXPECT_EQ(Failures(loaded, "LoansDisplayed"), tested.failures) << tested.stored;
    }
}

TEST_F(SettingsInTheStore, OfTheComparison) {
    using enum PaymentChoice;
    struct Case {
        const char* name;
        RegistryValue stored;
        int years;
        PaymentChoice payments;
        std::int64_t monthly; ///< in ten-thousandths
        std::vector<int> failures;
    };
    const auto text = [](const char* stored) { return RegistryValue(std::string(stored)); };
    const std::vector<Case> cases = {
        {"CompareYears", 0, 5, Intended, 0, {}},
        {"CompareYears", 1, 1, Intended, 0, {}},
        {"CompareYears", 50, 50, Intended, 0, {}},
        {"CompareYears", 51, 5, Intended, 0, {6}},
        {"CompareYears", Lowest, 5, Intended, 0, {6}},
        {"ComparePayments", 1, 5, Required, 0, {}},
        {"ComparePayments", 2, 5, Monthly, 0, {}},
        {"ComparePayments", 3, 5, Intended, 0, {6}},
        {"ComparePayments", -1, 5, Intended, 0, {6}},
        {"CompareMonthly", text("1580.17"), 5, Intended, 15'801'700, {}},
        {"CompareMonthly", text("1580,1"), 5, Intended, 15'801'000, {}},
        {"CompareMonthly", text("much"), 5, Intended, 0, {13}},
        {"CompareMonthly", text("922337203685478"), 5, Intended, 0, {6}},
    };
    for (const Case& tested : cases) {
        const bool isText = std::holds_alternative<std::string>(tested.stored);
        m_store.SetValue(Root, BaseKey, tested.name,
                         isText ? RegistryType::Text : RegistryType::Number, tested.stored);
        const StoredSettings loaded = LoadSettings(m_store);
        EXPECT_EQ(loaded.settings.compareYears, tested.years);
        EXPECT_EQ(loaded.settings.comparePayments, tested.payments);
        EXPECT_EQ(loaded.settings.compareMonthly.TenThousandths(), tested.monthly);
        EXPECT_EQ(Failures(loaded, tested.name), tested.failures) << tested.name;
        SaveSettings(m_store, loaded.settings);
        const StoredSettings again = LoadSettings(m_store);
        EXPECT_TRUE(again.failures.empty());
        EXPECT_EQ(again.settings.compareYears, tested.years);
        EXPECT_EQ(again.settings.comparePayments, tested.payments);
        EXPECT_EQ(again.settings.compareMonthly, loaded.settings.compareMonthly);
        SaveSettings(m_store, {});
        for (const char* name : {"CompareYears", "ComparePayments", "CompareMonthly"}) {
            EXPECT_EQ(m_store.GetValueType(Root, BaseKey, name), 0) << name;
        }
    }
}

TEST_F(SettingsInTheStore, UnitOfTerms) {
    for (const auto& [stored, months] : std::vector<std::pair<std::int32_t, bool>>{
             {0, false}, {-1, true}, {1, true}, {2, true}, {Lowest, true}, {Highest, true}}) {
        Put("TermInMonths", stored);
        const StoredSettings loaded = LoadSettings(m_store);
        EXPECT_EQ(loaded.settings.termInMonths, months) << stored;
        EXPECT_TRUE(loaded.failures.empty()) << stored;
    }
}

TEST_F(SettingsInTheStore, Texts) {
    struct Case {
        std::string stored;
        std::string loaded;
        std::vector<int> failures;
    };
    const std::string longest = '/' + std::string(1022, 'a');
    const std::vector<Case> cases = {
        {"", "", {}},
        {"/home/ana/casa.bmp", "/home/ana/casa.bmp", {}},
        {"/home/ana/Imágenes/🏠 1.bmp", "/home/ana/Imágenes/🏠 1.bmp", {}},
        {"no such file", "no such file", {}},
        {longest, longest, {}},
        {longest + 'a', "", {}}, // too long for the store
        {"/home/\n.bmp", "", {13}},
        {"/home/\x01.bmp", "", {13}},
    };
    for (const char* name : {"Wallpaper", "WallpaperDirectory"}) {
        const bool isPicture = name == std::string("Wallpaper");
        for (const Case& tested : cases) {
            Put(name, tested.stored);
            const StoredSettings loaded = LoadSettings(m_store);
            const Settings& settings = loaded.settings;
            const QString& text = isPicture ? settings.wallpaper : settings.wallpaperDirectory;
            const QString& other = isPicture ? settings.wallpaperDirectory : settings.wallpaper;
            EXPECT_EQ(text.toStdString(), tested.loaded) << name;
            EXPECT_EQ(Failures(loaded, name), tested.failures) << name << ' ' << tested.stored;
            EXPECT_TRUE(other.isEmpty());
        }
        m_store.DeleteValue(Root, BaseKey, name);
    }
}

TEST_F(SettingsInTheStore, OfAnotherKindAreRefusedOneByOne) {
    Put("LoansDisplayed", std::string("abc")); // four bytes, which form a number
    Put("TermInMonths", -1);
    Put("Wallpaper", 6); // bytes that are not a text
    Put("WallpaperDirectory", std::string("/home/ana/"));
    const StoredSettings loaded = LoadSettings(m_store);
    EXPECT_EQ(loaded.settings.loansDisplayed, 5);
    EXPECT_TRUE(loaded.settings.termInMonths);
    EXPECT_EQ(loaded.settings.wallpaper.toStdString(), "");
    EXPECT_EQ(loaded.settings.wallpaperDirectory.toStdString(), "/home/ana/");
}

TEST_F(SettingsInTheStore, ComeBackAsTheyWereKept) {
    Language::Instance().SetCurrentLanguage(2);
    struct Case {
        int lastRow;
        bool months;
        const char* picture;
        const char* folder;
        std::int32_t offersStored;
        std::int32_t monthsStored;
        const char* pictureStored;
        const char* folderStored;
    };
    const std::vector<Case> cases = {
        // last row  months  picture        folder    stored:  picture        folder
        {0, true, "/a/ñ.bmp", "/a/", 1, -1, "/a/ñ.bmp", "/a/"},
        {14, false, "/a/ñ.bmp", "", 15, 0, "/a/ñ.bmp", "(absent)"},
        {5, false, "", "/a b/", 6, 0, "(absent)", "/a b/"},
        {5, true, "", "", 6, -1, "(absent)", "(absent)"},
    };
    for (const Case& tested : cases) {
        SaveSettings(m_store, {tested.lastRow, tested.months, QString::fromUtf8(tested.picture),
                               QString::fromUtf8(tested.folder)});
        EXPECT_EQ(Number("LoansDisplayed"), tested.offersStored);
        EXPECT_EQ(Number("CurrentLanguage"), 2);
        EXPECT_EQ(Number("TermInMonths"), tested.monthsStored);
        EXPECT_EQ(Text("Wallpaper"), tested.pictureStored);
        EXPECT_EQ(Text("WallpaperDirectory"), tested.folderStored);
        const StoredSettings loaded = LoadSettings(m_store);
        EXPECT_TRUE(loaded.failures.empty());
        EXPECT_EQ(loaded.settings.loansDisplayed, tested.lastRow);
        EXPECT_EQ(loaded.settings.termInMonths, tested.months);
        EXPECT_EQ(loaded.settings.wallpaper.toStdString(), tested.picture);
        EXPECT_EQ(loaded.settings.wallpaperDirectory.toStdString(), tested.folder);
    }
}

TEST_F(SettingsInTheStore, ReplaceWhatWasRefused) {
    Put("LoansDisplayed", 99);
    Put("Wallpaper", std::string("/a\n"));
    SaveSettings(m_store, LoadSettings(m_store).settings);
    EXPECT_EQ(Number("LoansDisplayed"), 6);
    EXPECT_EQ(Text("Wallpaper"), "(absent)");
    EXPECT_TRUE(LoadSettings(m_store).failures.empty());
}

TEST_F(SettingsInTheStore, AreBesideTheWorksheets) {
    const std::string worksheet = std::string(BaseKey) + "\\House";
    m_store.CreateKey(Root, worksheet);
    SaveSettings(m_store, {});
    EXPECT_EQ(m_store.GetSubKeys(Root, BaseKey), std::vector<std::string>{"House"});
}

TEST(SettingsWithoutAStore, AreTheDefaultsAndAreNotKeptInSilence) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("file"));
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    const RegistryAPI inNoFolder(file.toStdString() + "/Loan.store");
    SaveSettings(inNoFolder, {2, false, {}, {}});
    const StoredSettings loaded = LoadSettings(inNoFolder);
    EXPECT_EQ(loaded.settings.loansDisplayed, 5);
    EXPECT_TRUE(loaded.failures.empty());
}

} // namespace
