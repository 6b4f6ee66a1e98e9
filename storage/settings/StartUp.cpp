#include "StartUp.h"

#include "Language.h"
#include "RegistryAPI.h"
#include "StoreNames.h"

namespace quend::storage {

namespace {

/// 0 or less when none was ever set; below 0 means that the language was only detected.
int ChosenLanguage(const RegistryAPI& store) {
    if (!store.KeyExists(StoreRoot, BaseKey)) {
        store.CreateKey(StoreRoot, BaseKey);
        return 0;
    }
    return std::get<std::int32_t>(store.GetValue(StoreRoot, BaseKey, "CurrentLanguage",
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

} // namespace quend::storage
