#include "SettingsStore.h"

#include "Language.h"
#include "RegistryAPI.h"
#include "StoreNames.h"

#include <QString>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <variant>

namespace quend::storage {

namespace {

constexpr const char* CurrentLanguageName = "CurrentLanguage";

/// One value of the base key. Number 0 and the empty text mean that the value is missing.
struct StoredValue {
    const char* name;
    std::int16_t type;
    RegistryValue (*of)(const Settings& settings);
    /// Null for a value that is read elsewhere. Throws Failure for an invalid value.
    void (*take)(Settings& settings, const RegistryValue& value, const char* name);
};

RegistryValue OffersOf(const Settings& settings) { return settings.loansDisplayed + 1; }

void TakeOffers(Settings& settings, const RegistryValue& value, const char* name) {
    const std::int32_t offers = std::get<std::int32_t>(value);
    if (offers == 0) {
        return;
    }
    if (offers < FewestOffersDisplayed || offers > MostOffersDisplayed) {
        throw OverflowFailure(name);
    }
    settings.loansDisplayed = offers - 1;
}

RegistryValue LanguageInUse(const Settings& /*settings*/) {
    return std::int32_t{Language::Instance().CurrentLanguage()};
}

RegistryValue TermUnitOf(const Settings& settings) { return RegistryFlag(settings.termInMonths); }

void TakeTermUnit(Settings& settings, const RegistryValue& value, const char* /*name*/) {
    settings.termInMonths = std::get<std::int32_t>(value) != 0;
}

template <QString Settings::*Member>
RegistryValue TextOf(const Settings& settings) {
    return (settings.*Member).toStdString();
}

/// A path with control characters or invalid UTF-8 counts as the wrong type.
template <QString Settings::*Member>
void TakeText(Settings& settings, const RegistryValue& value, const char* name) {
    const auto& bytes = std::get<std::string>(value);
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
    const auto isControl = [](QChar character) {
        return character.category() == QChar::Other_Control;
    };
    if (decode.hasError() || std::ranges::any_of(text, isControl)) {
        throw ConversionFailure(name);
    }
    settings.*Member = text;
}

/// In writing order; they are read in the same order.
constexpr std::array StoredValues{
    StoredValue{"LoansDisplayed", RegistryType::Number, OffersOf, TakeOffers},
    StoredValue{CurrentLanguageName, RegistryType::Number, LanguageInUse, nullptr},
    StoredValue{"TermInMonths", RegistryType::Number, TermUnitOf, TakeTermUnit},
    StoredValue{"Wallpaper", RegistryType::Text, TextOf<&Settings::wallpaper>,
                TakeText<&Settings::wallpaper>},
    StoredValue{"WallpaperDirectory", RegistryType::Text, TextOf<&Settings::wallpaperDirectory>,
                TakeText<&Settings::wallpaperDirectory>},
};

RegistryValue NoValue(std::int16_t type) {
    return type == RegistryType::Number ? RegistryValue(std::int32_t{0})
                                        : RegistryValue(std::string());
}

void Write(const RegistryAPI& store, const StoredValue& stored, const Settings& settings) {
    const RegistryValue value = stored.of(settings);
    if (value == RegistryValue(std::string())) {
        store.DeleteValue(StoreRoot, BaseKey, stored.name);
    } else {
        store.SetValue(StoreRoot, BaseKey, stored.name, stored.type, value);
    }
}

/// 0 or less when none was ever set; below 0 means that the language was only detected.
int ChosenLanguage(const RegistryAPI& store) {
    if (!store.KeyExists(StoreRoot, BaseKey)) {
        store.CreateKey(StoreRoot, BaseKey);
        return 0;
    }
    return std::get<std::int32_t>(store.GetValue(StoreRoot, BaseKey, CurrentLanguageName,
                                                 RegistryType::Number, std::int32_t{0}));
}

} // namespace

void PrepareKeyAndLanguage(const RegistryAPI& store, std::uint16_t languageIdentifier) {
    Language& language = Language::Instance();
    language.SetCurrentLanguage(ChosenLanguage(store));
    if (language.CurrentLanguage() < 1) {
        language.DetectLanguage(languageIdentifier);
    }
}

StoredSettings LoadSettings(const RegistryAPI& store) {
    StoredSettings loaded;
    store.ReadInTransaction([&](const RegistryAPI& reading) {
        for (const StoredValue& stored : StoredValues) {
            if (stored.take == nullptr) {
                continue;
            }
            try {
                stored.take(loaded.settings,
                            reading.GetValue(StoreRoot, BaseKey, stored.name, stored.type,
                                             NoValue(stored.type)),
                            stored.name);
            } catch (const Failure& failure) { // reported together, once the window is open
                loaded.failures.push_back(failure);
            }
        }
    });
    return loaded;
}

void SaveSettings(const RegistryAPI& store, const Settings& settings) {
    try {
        store.InTransaction([&](const RegistryAPI& writing) {
            for (const StoredValue& stored : StoredValues) {
                Write(writing, stored, settings);
            }
        });
    } catch (const Failure&) { // NOLINT(bugprone-empty-catch)
        // Settings that were not saved can be set again; they must not block closing the program.
    }
}

} // namespace quend::storage
