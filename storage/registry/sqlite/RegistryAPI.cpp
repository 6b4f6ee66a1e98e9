#include "RegistryAPI.h"

#include "KeyPath.h"
#include "RegistryLimits.h"
#include "StoreCheck.h"
#include "StoreTransaction.h"
#include "StoreTrouble.h"
#include "ValueBytes.h"

#include <map>

namespace quend::registry {

namespace {

/// Damage, which a recovery may repair.
class DamageMet : public StoreFailure {
public:
    DamageMet() : StoreFailure(StoreTrouble::Unknown) {}
};

std::int64_t KeyOf(RegistryRoot root) { return KeyTree::RootKey(static_cast<std::uint32_t>(root)); }

/// The bytes of a value before conversion to a type.
std::string ReadBytes(const KeyTree::Value& value) {
    const bool text = value.type == RegistryType::Text && !value.bytes.empty();
    return text ? value.bytes + '\0' : value.bytes;
}

/// Calls `action` with the number of the key if the key exists.
template <typename Action>
std::function<void(KeyTree&)> OnKey(RegistryRoot root, const std::vector<std::string>& path,
                                    const Action& action) {
    return [root, &path, &action](KeyTree& keys) {
        if (const std::optional<std::int64_t> key = keys.Find(KeyOf(root), path)) {
            action(keys, *key);
        }
    };
}

std::shared_ptr<StoreTransaction> StartStep(const std::filesystem::path& store,
                                            std::chrono::milliseconds wait) {
    try {
        return std::make_shared<StoreTransaction>(
            OpenStore::ToWrite(store, wait, OpenStore::Missing::IsMade),
            StoreTransaction::Kind::Writes);
    } catch (const StoreError& error) {
        if (error.IsDamage()) {
            throw DamageMet();
        }
        throw StoreFailure(TroubleOf(error, store));
    }
}

std::shared_ptr<StoreTransaction> StartReading(const std::filesystem::path& store,
                                               std::chrono::milliseconds wait) {
    try {
        return std::make_shared<StoreTransaction>(OpenStore::ToRead(store, wait),
                                                  StoreTransaction::Kind::Reads);
    } catch (const StoreError& error) {
        return std::make_shared<StoreTransaction>(error, StoreTransaction::Kind::Reads);
    }
}

/// Also covers a transaction that was used after its end.
StoreTrouble ErrorOfTransaction(const StoreTransaction& step, const std::filesystem::path& store) {
    return step.Error() ? TroubleOf(*step.Error(), store) : StoreTrouble::Unknown;
}

bool IsMissing(const std::filesystem::path& store) {
    std::error_code error;
    return std::filesystem::status(store, error).type() == std::filesystem::file_type::not_found;
}

} // namespace

RegistryAPI::RegistryAPI(std::filesystem::path store, std::chrono::milliseconds wait,
                         RepairInterface repair)
    : m_store(std::move(store)), m_wait(wait), m_repair(std::move(repair)) {}

/// A store that cannot be read gives defaults.
void RegistryAPI::Read(const std::function<void(KeyTree&)>& reading) const {
    const std::shared_ptr<StoreTransaction> step = m_step ? m_step : StartReading(m_store, m_wait);
    step->Run(reading);
}

StoreTrouble RegistryAPI::Write(const std::function<void(KeyTree&)>& writing,
                                bool makesStore) const {
    if (m_step) {
        return m_step->Writes() && m_step->Run(writing) ? StoreTrouble::None
                                                        : ErrorOfTransaction(*m_step, m_store);
    }
    using Missing = OpenStore::Missing;
    try {
        const auto store =
            OpenStore::ToWrite(m_store, m_wait, makesStore ? Missing::IsMade : Missing::Fails);
        writing(store->Keys());
        store->Keep();
        return StoreTrouble::None;
    } catch (const StoreError& error) {
        return TroubleOf(error, m_store);
    }
}

bool RegistryAPI::KeyExists(RegistryRoot keyRoot, const std::string& keyName) const {
    const auto path = PathElements(keyName);
    bool exists = path && path->empty(); // a root exists even without a store
    if (path && !exists) {
        Read(OnKey(keyRoot, *path, [&exists](KeyTree&, std::int64_t) { exists = true; }));
    }
    return exists;
}

bool RegistryAPI::CreateKey(RegistryRoot keyRoot, const std::string& keyName) const {
    const auto path = PathElements(keyName);
    if (!path) {
        throw StoreFailure(StoreTrouble::Unknown);
    }
    if (KeyExists(keyRoot, keyName)) {
        return true;
    }
    bool existed = false;
    const auto create = [&](KeyTree& keys) {
        existed = keys.Find(KeyOf(keyRoot), *path)
                      .has_value(); // another program may just have created it
        keys.Create(KeyOf(keyRoot), *path);
    };
    const StoreTrouble trouble = Write(create, true);
    if (trouble != StoreTrouble::None) {
        throw StoreFailure(trouble);
    }
    return existed;
}

void RegistryAPI::DeleteKey(RegistryRoot keyRoot, const std::string& keyName) const {
    if (const auto path = PathElements(keyName)) {
        Write(OnKey(keyRoot, *path, [](KeyTree& keys, std::int64_t key) { keys.Delete(key); }));
    }
}

RegistryValue RegistryAPI::GetValue(RegistryRoot keyRoot, const std::string& keyName,
                                    const std::string& valueName, std::int16_t type,
                                    const RegistryValue& defaultValue) const {
    const auto path = PathElements(keyName);
    const auto name = ValueNameOf(valueName);
    if (!IsKnownType(type) && KeyExists(keyRoot, keyName)) {
        throw Failure(1001, "", "Unsupported value type");
    }
    std::optional<KeyTree::Value> stored;
    if (path && name) {
        Read(OnKey(keyRoot, *path,
                   [&](KeyTree& keys, std::int64_t key) { stored = keys.Get(key, *name); }));
    }
    return stored ? ValueOfBytes(type, ReadBytes(*stored)).value_or(defaultValue) : defaultValue;
}

std::int64_t RegistryAPI::GetValueType(RegistryRoot keyRoot, const std::string& keyName,
                                       const std::string& valueName) const {
    const auto path = PathElements(keyName);
    const auto name = ValueNameOf(valueName);
    std::int64_t type = 0;
    if (path && name) {
        Read(OnKey(keyRoot, *path, [&](KeyTree& keys, std::int64_t key) {
            if (const std::optional<KeyTree::Value> stored = keys.Get(key, *name)) {
                type = stored->type;
            }
        }));
    }
    return type;
}

void RegistryAPI::SetValue(RegistryRoot keyRoot, const std::string& keyName,
                           const std::string& valueName, std::int16_t type,
                           const RegistryValue& value) const {
    const auto path = PathElements(keyName);
    const auto name = ValueNameOf(valueName);
    const auto bytes = BytesOfValue(type, value);
    if (path && name && bytes) {
        Write(OnKey(keyRoot, *path, [&](KeyTree& keys, std::int64_t key) {
            keys.Set(key, *name, {type, *bytes});
        }));
    }
}

void RegistryAPI::DeleteValue(RegistryRoot keyRoot, const std::string& keyName,
                              const std::string& valueName) const {
    const auto path = PathElements(keyName);
    const auto name = ValueNameOf(valueName);
    if (path && name) {
        Write(OnKey(keyRoot, *path,
                    [&](KeyTree& keys, std::int64_t key) { keys.Remove(key, *name); }));
    }
}

std::vector<NamedValue> RegistryAPI::GetValues(RegistryRoot keyRoot,
                                               const std::string& keyName) const {
    const auto path = PathElements(keyName);
    std::map<std::string, KeyTree::Value> stored;
    if (path) {
        Read(OnKey(keyRoot, *path,
                   [&](KeyTree& keys, std::int64_t key) { stored = keys.Values(key); }));
    }
    std::vector<NamedValue> values;
    for (const auto& [name, value] : stored) {
        const auto type = static_cast<std::int16_t>(value.type);
        if (const auto read =
                IsKnownType(type) ? ValueOfBytes(type, ReadBytes(value)) : std::nullopt) {
            values.push_back({name, type, *read});
        }
    }
    return values;
}

std::vector<std::string> RegistryAPI::GetSubKeys(RegistryRoot keyRoot,
                                                 const std::string& keyName) const {
    const auto path = PathElements(keyName);
    if (!path) {
        return {};
    }
    bool opened = path->empty();
    std::vector<std::string> names;
    Read(OnKey(keyRoot, *path, [&](KeyTree& keys, std::int64_t key) {
        opened = true;
        names = keys.Subkeys(key);
    }));
    if (opened && names.empty()) {
        names.emplace_back(NoSubkeysLength, ' ');
    }
    return names;
}

void RegistryAPI::InTransaction(const std::function<void(const RegistryAPI&)>& steps) const {
    try {
        return TryStep(steps);
    } catch (const DamageMet&) {
        if (m_step || !Repair()) {
            throw;
        }
    }
    TryStep(steps);
}

bool RegistryAPI::Repair() const {
    if (!m_repair.today) {
        return false;
    }
    const StoreCondition condition = RepairStore(m_store, m_repair.today(), m_repair.named);
    const bool repaired = condition.state == StoreCondition::State::Repaired;
    if (repaired && m_repair.repaired) {
        m_repair.repaired(condition.keptAs);
    }
    return repaired;
}

void RegistryAPI::TryStep(const std::function<void(const RegistryAPI&)>& steps) const {
    const bool inner = m_step != nullptr;
    RegistryAPI bound(*this);
    if (!inner) {
        bound.m_step = StartStep(m_store, m_wait);
    }
    StoreTransaction& step = *bound.m_step;
    try {
        steps(bound);
        if (!step.Writes() || !(inner ? step.IsWhole() : step.Keep())) {
            throw StoreFailure(ErrorOfTransaction(step, m_store));
        }
    } catch (...) {
        step.Break(); // a failed nested call also aborts the outer transaction
        if (step.MetDamage()) {
            throw DamageMet();
        }
        throw;
    }
}

StoreTrouble
RegistryAPI::ReadInTransaction(const std::function<void(const RegistryAPI&)>& steps) const {
    RegistryAPI bound(*this);
    if (!m_step) {
        bound.m_step = StartReading(m_store, m_wait);
    }
    steps(bound);
    if (!bound.m_step->Error() || IsMissing(m_store)) {
        return StoreTrouble::None;
    }
    return ErrorOfTransaction(*bound.m_step, m_store);
}

} // namespace quend::registry
