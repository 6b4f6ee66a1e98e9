// The functions on the platform's own registry. Its calls take texts in the program's code
// page, which the program's manifest sets to UTF-8.
#include "RegistryAPI.h"

#include "KeyPath.h"
#include "RegistryLimits.h"
#include "Utf8.h"
#include "ValueBytes.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <type_traits>

namespace quend::registry {

namespace {

constexpr std::size_t MostBytesOfCharacter = 3; // for each UTF-16 unit
constexpr DWORD MostSubkeys = 1'000'000;

HKEY HandleOf(RegistryRoot root) {
    // The predefined handles are negative 32-bit numbers.
    const auto number = static_cast<std::int32_t>(static_cast<std::uint32_t>(root));
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(number));
}

StoreFailure NotMade(LSTATUS status = ERROR_SUCCESS) {
    return StoreFailure(status == ERROR_ACCESS_DENIED ? StoreTrouble::NotAllowed
                                                      : StoreTrouble::Unknown);
}

struct CloseKey {
    void operator()(HKEY key) const { RegCloseKey(key); }
};

/// An open key, or none. Predefined keys are never closed, so none of these.
using OpenKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseKey>;

/// A path split into parts of one or more elements each, because a call takes no more than the
/// length of one name. A usual path is one part. No value for an invalid path.
std::optional<std::vector<std::string>> PartsOf(const std::string& keyName) {
    const auto elements = PathElements(keyName);
    if (!elements) {
        return std::nullopt;
    }
    std::vector<std::string> parts;
    for (const std::string& element : *elements) {
        if (!parts.empty() &&
            Utf16Length(parts.back()) + 1 + Utf16Length(element) <= LongestKeyName) {
            parts.back().append(1, '\\').append(element);
        } else {
            parts.push_back(element);
        }
    }
    return parts;
}

/// Opens the parts one below the other; only the last one with `rights`. No parts: the root. No key
/// when one of them is missing or cannot be opened with these rights.
OpenKey Open(RegistryRoot root, const std::vector<std::string>& parts, REGSAM rights) {
    OpenKey key;
    HKEY parent = HandleOf(root);
    for (std::size_t i = 0; i < std::max<std::size_t>(parts.size(), 1); ++i) {
        const REGSAM wanted = i + 1 < parts.size() ? KEY_READ : rights;
        const char* const part = parts.empty() ? "" : parts[i].c_str();
        HKEY opened = nullptr;
        if (RegOpenKeyExA(parent, part, 0, wanted, &opened) != ERROR_SUCCESS) {
            return {};
        }
        key.reset(opened);
        parent = opened;
    }
    return key;
}

OpenKey Open(RegistryRoot root, const std::string& keyName, REGSAM rights) {
    const auto parts = PartsOf(keyName);
    return parts ? Open(root, *parts, rights) : OpenKey();
}

BYTE* BytesIn(std::string& buffer) { return reinterpret_cast<BYTE*>(buffer.data()); }

/// All bytes of a value, however many; no value when it does not exist.
std::optional<std::string> Query(HKEY key, const std::string& name) {
    std::string buffer(LongestBinary, ' ');
    for (;;) {
        auto size = static_cast<DWORD>(buffer.size());
        const LSTATUS status =
            RegQueryValueExA(key, name.c_str(), nullptr, nullptr, BytesIn(buffer), &size);
        if (status == ERROR_SUCCESS) {
            buffer.resize(size);
            return buffer;
        }
        if (status != ERROR_MORE_DATA) {
            return std::nullopt;
        }
        buffer.resize(std::max<std::size_t>(size, 2 * buffer.size()));
    }
}

/// The names of the subkeys of an open key.
std::vector<std::string> NamesBelow(HKEY key) {
    std::vector<std::string> names;
    std::array<char, LongestKeyName * MostBytesOfCharacter + 1> buffer{};
    for (DWORD index = 0; index < MostSubkeys; ++index) {
        if (RegEnumKeyA(key, index, buffer.data(), static_cast<DWORD>(buffer.size())) != 0) {
            break;
        }
        names.emplace_back(buffer.data());
    }
    return names;
}

/// The names of the values of an open key, sorted.
std::vector<std::string> ValueNamesOf(HKEY key) {
    std::vector<std::string> names;
    std::vector<char> buffer(LongestValueName * MostBytesOfCharacter + 1);
    for (DWORD index = 0; index < MostSubkeys; ++index) {
        auto size = static_cast<DWORD>(buffer.size());
        if (RegEnumValueA(key, index, buffer.data(), &size, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            break;
        }
        names.emplace_back(buffer.data(), size);
    }
    std::ranges::sort(names);
    return names;
}

} // namespace

RegistryAPI::RegistryAPI(std::filesystem::path store, std::chrono::milliseconds wait,
                         RepairInterface repair)
    : m_store(std::move(store)), m_wait(wait), m_repair(std::move(repair)) {}

std::filesystem::path RegistryAPI::UserStore() { return {}; }

bool RegistryAPI::KeyExists(RegistryRoot keyRoot, const std::string& keyName) const {
    return static_cast<bool>(Open(keyRoot, keyName, KEY_READ));
}

bool RegistryAPI::CreateKey(RegistryRoot keyRoot, const std::string& keyName) const {
    const auto parts = PartsOf(keyName);
    if (!parts) {
        throw NotMade();
    }
    OpenKey key;
    HKEY parent = HandleOf(keyRoot);
    DWORD disposition = REG_OPENED_EXISTING_KEY; // the root always exists
    for (std::size_t i = 0; i < parts->size(); ++i) {
        // The last key needs no rights, because it is closed at once.
        const REGSAM rights = i + 1 < parts->size() ? KEY_CREATE_SUB_KEY : 0;
        HKEY opened = nullptr;
        const LSTATUS status = RegCreateKeyExA(parent, (*parts)[i].c_str(), 0, nullptr, 0, rights,
                                               nullptr, &opened, &disposition);
        if (status != ERROR_SUCCESS) {
            throw NotMade(status);
        }
        key.reset(opened);
        parent = opened;
    }
    return disposition == REG_OPENED_EXISTING_KEY;
}

void RegistryAPI::DeleteKey(RegistryRoot keyRoot, const std::string& keyName) const {
    auto parts = PartsOf(keyName);
    if (!parts || parts->empty()) {
        return;
    }
    const std::string last = parts->back();
    parts->pop_back();
    const OpenKey key = parts->empty() ? OpenKey() : Open(keyRoot, *parts, KEY_READ);
    if (key || parts->empty()) {
        RegDeleteKeyA(key ? key.get() : HandleOf(keyRoot), last.c_str());
    }
}

RegistryValue RegistryAPI::GetValue(RegistryRoot keyRoot, const std::string& keyName,
                                    const std::string& valueName, std::int16_t type,
                                    const RegistryValue& defaultValue) const {
    const OpenKey key = Open(keyRoot, keyName, KEY_READ);
    const auto name = ValueNameOf(valueName);
    if (!key) {
        return defaultValue;
    }
    if (!IsKnownType(type)) {
        throw Failure(1001, "", "Unsupported value type");
    }
    const auto bytes = name ? Query(key.get(), *name) : std::nullopt;
    return bytes ? ValueOfBytes(type, *bytes).value_or(defaultValue) : defaultValue;
}

std::int64_t RegistryAPI::GetValueType(RegistryRoot keyRoot, const std::string& keyName,
                                       const std::string& valueName) const {
    const OpenKey key = Open(keyRoot, keyName, KEY_READ);
    const auto name = ValueNameOf(valueName);
    DWORD type = 0;
    const bool found = key && name &&
                       RegQueryValueExA(key.get(), name->c_str(), nullptr, &type, nullptr,
                                        nullptr) == ERROR_SUCCESS;
    return found ? static_cast<std::int64_t>(type) : 0;
}

void RegistryAPI::SetValue(RegistryRoot keyRoot, const std::string& keyName,
                           const std::string& valueName, std::int16_t type,
                           const RegistryValue& value) const {
    const OpenKey key = Open(keyRoot, keyName, KEY_WRITE);
    const auto name = ValueNameOf(valueName);
    auto bytes = BytesOfValue(type, value);
    if (!key || !name || !bytes) {
        return;
    }
    if (type == RegistryType::Text && bytes->ends_with('\0')) {
        *bytes += '\0'; // the platform treats the last NUL as the terminator
    }
    RegSetValueExA(key.get(), name->c_str(), 0, static_cast<DWORD>(type), BytesIn(*bytes),
                   static_cast<DWORD>(bytes->size()));
}

void RegistryAPI::DeleteValue(RegistryRoot keyRoot, const std::string& keyName,
                              const std::string& valueName) const {
    const OpenKey key = Open(keyRoot, keyName, KEY_WRITE);
    const auto name = ValueNameOf(valueName);
    if (key && name) {
        RegDeleteValueA(key.get(), name->c_str());
    }
}

std::vector<NamedValue> RegistryAPI::GetValues(RegistryRoot keyRoot,
                                               const std::string& keyName) const {
    const OpenKey key = Open(keyRoot, keyName, KEY_READ);
    std::vector<NamedValue> values;
    for (const std::string& name : key ? ValueNamesOf(key.get()) : std::vector<std::string>()) {
        const auto type = static_cast<std::int16_t>(GetValueType(keyRoot, keyName, name));
        const auto bytes = IsKnownType(type) ? Query(key.get(), name) : std::nullopt;
        if (const auto read = bytes ? ValueOfBytes(type, *bytes) : std::nullopt) {
            values.push_back({name, type, *read});
        }
    }
    return values;
}

std::vector<std::string> RegistryAPI::GetSubKeys(RegistryRoot keyRoot,
                                                 const std::string& keyName) const {
    std::vector<std::string> names;
    if (keyName.empty()) {
        names = NamesBelow(HandleOf(keyRoot));
    } else {
        const OpenKey key = Open(keyRoot, keyName, KEY_READ);
        if (!key) {
            return {};
        }
        names = NamesBelow(key.get());
    }
    if (names.empty()) {
        names.emplace_back(NoSubkeysLength, ' ');
    }
    return names;
}

void RegistryAPI::InTransaction(const std::function<void(const RegistryAPI&)>& steps) const {
    steps(*this);
}

StoreTrouble
RegistryAPI::ReadInTransaction(const std::function<void(const RegistryAPI&)>& steps) const {
    steps(*this);
    return StoreTrouble::None;
}

} // namespace quend::registry
