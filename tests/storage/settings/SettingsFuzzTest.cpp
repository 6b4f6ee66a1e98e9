// Arbitrary saved settings and window geometry: invalid values are reported or left out, and the
// window is on the screen.

#include "Fuzzing.h"
#include "HostileTexts.h"
#include "QuendNames.h"
#include "QuietQt.h"
#include "SettingsStore.h"
#include "StoreFolder.h"
#include "WindowPlace.h"

#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

class SettingsFuzz : public testing::Test {
protected:
    void TryPlace(const std::string& bytes) {
        const QuietQt quiet;
        const QString path = m_folder.filePath(QStringLiteral("window.place"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        file.close();
        QWidget window;
        window.setMinimumSize(300, 200);
        RestoreGeometry(window, path);
        window.show();
        EXPECT_GE(window.width(), 300);
        EXPECT_LE(window.width(), 20'000);
        EXPECT_TRUE(window.frameGeometry().intersects(window.screen()->virtualGeometry()));
        SaveGeometry(window, path);
    }
    void TryValues(const std::string& input) {
        const RegistryAPI store = m_store.Store();
        const auto number = static_cast<std::int32_t>(std::hash<std::string>()(input));
        for (const char* const name : {"LoansDisplayed", "TermInMonths", "CurrentLanguage",
                                       "CompareYears", "ComparePayments"}) {
            if (input.size() % 3 == 0) {
                store.SetValue(StoreFolder::Root, BaseKey, name, RegistryType::Text, input);
            } else {
                store.SetValue(StoreFolder::Root, BaseKey, name, RegistryType::Number,
                               input.size() % 2 == 0 ? number : number % 20);
            }
        }
        store.SetValue(StoreFolder::Root, BaseKey, "Wallpaper", RegistryType::Text, input);
        store.SetValue(StoreFolder::Root, BaseKey, "WallpaperDirectory", RegistryType::Text, input);
        store.SetValue(StoreFolder::Root, BaseKey, "CompareMonthly", RegistryType::Text, input);
        const auto [settings, failures] = LoadSettings(store);
        EXPECT_GE(settings.loansDisplayed, 0);
        EXPECT_LT(settings.loansDisplayed, 15);
        EXPECT_GE(settings.compareYears, 1);
        EXPECT_LE(settings.compareYears, 50);
        SaveSettings(store, settings);
        const auto [again, refused] = LoadSettings(store);
        EXPECT_TRUE(refused.empty()); // what was saved is valid
        EXPECT_EQ(again.loansDisplayed, settings.loansDisplayed);
        EXPECT_EQ(again.termInMonths, settings.termInMonths);
        EXPECT_EQ(again.compareYears, settings.compareYears);
        EXPECT_EQ(again.comparePayments, settings.comparePayments);
        EXPECT_EQ(again.compareMonthly, settings.compareMonthly);
        EXPECT_EQ(again.wallpaper, settings.wallpaper);
        EXPECT_EQ(again.wallpaperDirectory, settings.wallpaperDirectory);
    }

private:
    QTemporaryDir m_folder;
    StoreFolder m_store;
};

TEST_F(SettingsFuzz, ThePlaceOfTheWindowIsOnTheScreenWhateverWasKept) {
    const FuzzTarget target("place", [this](const std::string& input) { TryPlace(input); });
    target.TryCorpus();
    target.TryAtRandom(
        [&](FuzzRandom& random) { return Damaged(random, random.AnyOf(target.Corpus())); });
}

TEST_F(SettingsFuzz, AnyValuesGiveSettingsThatCanBeKept) {
    const FuzzTarget target("text", [this](const std::string& input) { TryValues(input); });
    target.TryCorpus();
    target.TryAtRandom([&](FuzzRandom& random) { return Patched(random, HostilePieces); });
}

} // namespace
