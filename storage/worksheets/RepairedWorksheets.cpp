#include "RepairedWorksheets.h"

#include "RegistryAPI.h"
#include "StoreNames.h"
#include "StoredWorksheet.h"
#include "WorksheetStore.h"
#include "WorksheetValues.h"

#include <algorithm>

namespace quend::storage {

namespace {

bool HasAll(const RegistryAPI& store, const std::string& key, const std::string& prefix,
            std::span<const KeptValue> values) {
    return std::ranges::all_of(values, [&](const KeptValue& value) {
        return value.readPlace == 0 || value.written == Written::IfEntered ||
               store.GetValueType(StoreRoot, key, prefix + value.name) == value.type;
    });
}

bool IsWhole(const RegistryAPI& store, const std::string& key) {
    if (!HasAll(store, key, "", KeptWorksheetValues()) ||
        store.GetValueType(StoreRoot, key, LoanCountName) != RegistryType::Number) {
        return false;
    }
    const auto count = std::get<std::int32_t>(
        store.GetValue(StoreRoot, key, LoanCountName, RegistryType::Number, std::int32_t{0}));
    for (int number = 1; number <= std::min(count, MostOffers); ++number) {
        if (!HasAll(store, key, OfferPrefix(number), KeptOfferValues())) {
            return false;
        }
    }
    return true;
}

std::string KeyBelow(const QString& name) {
    return std::string(BaseKey) + '\\' + name.toStdString();
}

} // namespace

RepairedWorksheets FindIncomplete(const RegistryAPI& store) {
    RepairedWorksheets found;
    const QStringList names = WorksheetStore(store).Names();
    store.ReadInTransaction([&](const RegistryAPI& reading) {
        std::ranges::copy_if(names, std::back_inserter(found.incomplete), [&](const QString& name) {
            return !IsWhole(reading, KeyBelow(name));
        });
    });
    found.whole = static_cast<int>(names.size() - found.incomplete.size());
    try {
        store.InTransaction([&](const RegistryAPI& writing) {
            for (const QString& name : found.incomplete) {
                writing.SetValue(StoreRoot, KeyBelow(name), IncompleteName, RegistryType::Number,
                                 RegistryFlag(true));
            }
        });
    } catch (const Failure&) { // NOLINT(bugprone-empty-catch)
        // The names are reported anyway.
    }
    return found;
}

} // namespace quend::storage
