#include "SettingsStore.h"

#include "Comparison.h"
#include "DisplayFormats.h"
#include "Failure.h"
#include "Language.h"
#include "RegistryAPI.h"
#include "StoreNames.h"
#include "StoredTexts.h"

#include <QLocale>
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
    const char* name = nullptr;
    std::int16_t type = RegistryType::Number;
    RegistryValue (*of)(const Settings& settings) = nullptr;
    /// Null for a value that is read elsewhere. Throws Failure for an invalid value.
    void (*take)(Settings& settings, const RegistryValue& value) = nullptr;
    bool omitsZero = false; ///< number 0 is not written, as an empty text never is
};

RegistryValue OffersOf(const Settings& settings) { return settings.loansDisplayed + 1; }

void TakeOffers(Settings& settings, const RegistryValue& value) {
    const std::int32_t offers = std::get<std::int32_t>(value);
    if (offers == 0) {
        return;
    }
    if (offers < FewestOffersDisplayed || offers > MostOffersDisplayed) {
        throw OverflowFailure(ProgramSource);
    }
    settings.loansDisplayed = offers - 1;
}

RegistryValue LanguageInUse(const Settings& /*settings*/) {
    return std::int32_t{Language::Instance().CurrentLanguage()};
}

RegistryValue TermUnitOf(const Settings& settings) { return RegistryFlag(settings.termInMonths); }

void TakeTermUnit(Settings& settings, const RegistryValue& value) {
    settings.termInMonths = std::get<std::int32_t>(value) != 0;
}

template <QString Settings::*Member>
RegistryValue TextOf(const Settings& settings) {
    return (settings.*Member).toStdString();
}

/// A path with control characters or invalid UTF-8 counts as the wrong type.
template <QString Settings::*Member>
void TakeText(Settings& settings, const RegistryValue& value) {
    const auto& bytes = std::get<std::string>(value);
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
    const auto isControl = [](QChar character) {
        return character.category() == QChar::Other_Control;
    };
    if (decode.hasError() || std::ranges::any_of(text, isControl)) {
        throw ConversionFailure(ProgramSource);
    }
    settings.*Member = text;
}

/// 0 for the default, so that the store of a user who compares nothing stays as it is.
RegistryValue YearsOf(const Settings& settings) {
    return settings.compareYears == Settings().compareYears ? 0 : settings.compareYears;
}

void TakeYears(Settings& settings, const RegistryValue& value) {
    constexpr std::int32_t most = 50;
    const std::int32_t years = std::get<std::int32_t>(value);
    if (years < 0 || years > most) {
        throw OverflowFailure(ProgramSource);
    }
    if (years != 0) {
        settings.compareYears = years;
    }
}

RegistryValue PaymentsOf(const Settings& settings) {
    return static_cast<std::int32_t>(settings.comparePayments);
}

void TakePayments(Settings& settings, const RegistryValue& value) {
    const std::int32_t payments = std::get<std::int32_t>(value);
    if (payments < 0 || payments > static_cast<std::int32_t>(comparison::PaymentChoice::Monthly)) {
        throw OverflowFailure(ProgramSource);
    }
    settings.comparePayments = static_cast<comparison::PaymentChoice>(payments);
}

/// The same in every locale.
StoredTexts PlainTexts() { return StoredTexts(DisplayFormats(QLocale::c())); }

RegistryValue MonthlyOf(const Settings& settings) {
    return settings.compareMonthly.IsZero() ? RegistryValue(std::string())
                                            : PlainTexts().Write(settings.compareMonthly);
}

void TakeMonthly(Settings& settings, const RegistryValue& value) {
    if (const auto& text = std::get<std::string>(value); !text.empty()) {
        settings.compareMonthly = PlainTexts().ReadAmount(text);
    }
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
    StoredValue{"CompareYears", RegistryType::Number, YearsOf, TakeYears, true},
    StoredValue{"ComparePayments", RegistryType::Number, PaymentsOf, TakePayments, true},
    StoredValue{"CompareMonthly", RegistryType::Text, MonthlyOf, TakeMonthly},
};

RegistryValue NoValue(std::int16_t type) {
    return type == RegistryType::Number ? RegistryValue(std::int32_t{0})
                                        : RegistryValue(std::string());
}

void Write(const RegistryAPI& store, const StoredValue& stored, const Settings& settings) {
    const RegistryValue value = stored.of(settings);
    const bool omitsNone = stored.type == RegistryType::Text || stored.omitsZero;
    if (omitsNone && value == NoValue(stored.type)) {
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
                stored.take(loaded.settings, reading.GetValue(StoreRoot, BaseKey, stored.name,
                                                              stored.type, NoValue(stored.type)));
            } catch (const Failure& failure) { // reported together, once the window is open
                loaded.failures.emplace_back(failure.Number(), stored.name, failure.Description());
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
