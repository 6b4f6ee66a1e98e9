#include "UnsavedWorksheets.h"

#include "RegistryLimits.h"
#include "StoreNames.h"

namespace quend::storage {

namespace {

std::string KeyOf(const std::string& slot) { return std::string(UnsavedKey) + '\\' + slot; }

std::string FreeSlot(const RegistryAPI& store) {
    int number = 1;
    while (store.KeyExists(StoreRoot, KeyOf(std::to_string(number)))) {
        ++number;
    }
    return std::to_string(number);
}

} // namespace

std::string UnsavedWorksheets::Keep(const Worksheet& worksheet, const std::string& slot) const {
    const AllValues values = WorksheetStore::ValuesOf(worksheet);
    std::string used;
    m_store.InTransaction([&](const RegistryAPI& store) {
        used = slot.empty() ? FreeSlot(store) : slot;
        store.DeleteKey(StoreRoot, KeyOf(used));
        store.CreateKey(StoreRoot, KeyOf(used));
        for (const NamedValue& value : values) {
            store.SetValue(StoreRoot, KeyOf(used), value.name, value.type, value.value);
        }
    });
    return used;
}

std::optional<UnsavedWorksheets::Found> UnsavedWorksheets::First() const {
    const std::vector<std::string> slots = m_store.GetSubKeys(StoreRoot, UnsavedKey);
    if (slots.empty() || slots.front().size() == NoSubkeysLength) {
        return std::nullopt;
    }
    const auto name = std::get<std::string>(m_store.GetValue(
        StoreRoot, KeyOf(slots.front()), LoanNameName, RegistryType::Text, std::string()));
    return Found{slots.front(), QString::fromStdString(name)};
}

AllValues UnsavedWorksheets::Take(const std::string& slot) const {
    AllValues values;
    m_store.InTransaction([&](const RegistryAPI& store) {
        values = store.GetValues(StoreRoot, KeyOf(slot));
        store.DeleteKey(StoreRoot, KeyOf(slot));
    });
    return values;
}

} // namespace quend::storage
