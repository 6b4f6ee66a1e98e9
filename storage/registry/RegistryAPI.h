#pragma once

#include "Failure.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace quend::registry {

/// The root of a tree of keys; the values are the platform's own handles.
enum class RegistryRoot : std::uint32_t {
    CurrentUser = 0x80000001,
    LocalMachine = 0x80000002,
};

/// The type codes of the store. Other codes can be requested, and are rejected or ignored.
namespace RegistryType {
inline constexpr std::int16_t Text = 1;
inline constexpr std::int16_t Binary = 3;
inline constexpr std::int16_t Number = 4; ///< 32 bits, signed; true is -1
} // namespace RegistryType

/// Text (UTF-8), bytes or a number. A flag is a number: see RegistryFlag.
using RegistryValue = std::variant<std::string, std::vector<std::byte>, std::int32_t>;

constexpr std::int32_t RegistryFlag(bool set) { return set ? -1 : 0; }

/// One value of a key.
struct NamedValue {
    std::string name;
    std::int16_t type = RegistryType::Text;
    RegistryValue value;

    bool operator==(const NamedValue&) const = default;
};

/// Which keys a recovery can restore from their values alone: those below `parent` that repeat
/// their name in the text value `nameValue`. None when `nameValue` is empty.
struct NamedKeys {
    RegistryRoot root = RegistryRoot::CurrentUser;
    std::string parent;
    std::string nameValue;
};

/// The interface through which a recovery during a transaction asks for the date and reports its
/// result.
struct RepairInterface {
    /// Used in the name of the damaged file, such as 2026-11-21. Without it nothing is recovered.
    std::function<std::string()> today;
    /// Called once for each recovery, before the transaction is repeated; may be empty.
    std::function<void(const std::filesystem::path& keptAs)> repaired;
    NamedKeys named = {};
};

/// Why the store could not be read or written, as far as known.
enum class StoreTrouble {
    None,
    Unknown,
    DiskFull,
    ReadOnly,   ///< the file system is read-only
    NotAllowed, ///< the user lacks permission for the file or its folder
    InUse       ///< another program was writing for longer than the timeout
};

/// A key could not be created or a transaction not completed; holds the reason.
class StoreFailure : public Failure {
public:
    explicit StoreFailure(StoreTrouble trouble)
        : Failure(1001, "", "Unable to create the registry key"), m_trouble(trouble) {}

    StoreTrouble Trouble() const { return m_trouble; }

private:
    StoreTrouble m_trouble;
};

class KeyTree;
class StoreTransaction;

/// The user's store: a tree of keys with named values. Paths are relative to a root, with
/// backslashes between the elements. Names keep their case and are compared without regard to case.
/// An empty value name addresses the default value of the key.
///
/// Stateless: every function opens what it needs and closes it again. Remembers only the path of
/// the store and its recovery interface, so copies are equal. A read of a missing or inaccessible
/// value returns the caller's default; a write that is not possible does nothing. The two failures
/// thrown are named below.
class RegistryAPI {
public:
    /// How long a write waits for another program that is writing.
    static constexpr std::chrono::milliseconds UsualWait{5'000};

    /// `store` is the full path of the store file, used where the platform has no registry. The
    /// file and its folders need not exist: CreateKey and InTransaction create them.
    explicit RegistryAPI(std::filesystem::path store, std::chrono::milliseconds wait = UsualWait,
                         RepairInterface repair = {});

    /// The path of this user's store, by the rules of the platform.
    static std::filesystem::path UserStore();

    bool KeyExists(RegistryRoot keyRoot, const std::string& keyName) const;

    /// Creates all missing keys of the path. True when the key already existed. Throws
    /// StoreFailure.
    bool CreateKey(RegistryRoot keyRoot, const std::string& keyName) const;

    /// Deletes a key with its values. A key that has subkeys stays.
    void DeleteKey(RegistryRoot keyRoot, const std::string& keyName) const;

    /// The value, or the default when it is missing, inaccessible or too long (RegistryLimits.h).
    /// `type` is the type of the result; the type that was written is not checked. Throws Failure
    /// 1001 "Unsupported value type" for an unknown type, if the key exists.
    RegistryValue GetValue(RegistryRoot keyRoot, const std::string& keyName,
                           const std::string& valueName, std::int16_t type,
                           const RegistryValue& defaultValue) const;

    /// The type code that the value was written with; 0 when it is missing or inaccessible.
    std::int64_t GetValueType(RegistryRoot keyRoot, const std::string& keyName,
                              const std::string& valueName) const;

    /// Writes a value of an existing key. Does nothing when the key does not exist or the type is
    /// unknown.
    void SetValue(RegistryRoot keyRoot, const std::string& keyName, const std::string& valueName,
                  std::int16_t type, const RegistryValue& value) const;

    void DeleteValue(RegistryRoot keyRoot, const std::string& keyName,
                     const std::string& valueName) const;

    /// All values of a key, sorted by their names; none when the key is missing or inaccessible.
    /// Values of another type or too long (RegistryLimits.h) are left out.
    std::vector<NamedValue> GetValues(RegistryRoot keyRoot, const std::string& keyName) const;

    /// The names of the direct subkeys, sorted alphabetically without regard to case; of the root
    /// for an empty path. One element of NoSubkeysLength blanks means that there are none; no
    /// element means that the key could not be opened.
    std::vector<std::string> GetSubKeys(RegistryRoot keyRoot, const std::string& keyName) const;

    /// Runs `steps` in one transaction: either all writes are committed or none, and all reads see
    /// the same snapshot. Waits a few seconds for another program that is writing. On damage the
    /// store is recovered, if a recovery interface was given, and `steps` runs once more from the
    /// beginning. Throws what `steps` throws, with nothing committed, and StoreFailure when the
    /// transaction is not possible: the store is not writable, the disk is full, or the wait timed
    /// out. Where the platform's registry has no transactions, the writes are made one by one.
    void InTransaction(const std::function<void(const RegistryAPI&)>& steps) const;

    /// The same for reading only: writes nothing and waits for nothing. An unreadable store gives
    /// defaults, and the reason is returned. A missing store is empty, which is not an error.
    StoreTrouble ReadInTransaction(const std::function<void(const RegistryAPI&)>& steps) const;

private:
    bool Repair() const;
    void TryStep(const std::function<void(const RegistryAPI&)>& steps) const;
    void Read(const std::function<void(KeyTree&)>& reading) const;
    StoreTrouble Write(const std::function<void(KeyTree&)>& writing, bool makesStore = false) const;

    std::filesystem::path m_store;
    std::chrono::milliseconds m_wait;
    RepairInterface m_repair;
    std::shared_ptr<StoreTransaction>
        m_step; ///< the transaction that this object belongs to, if any
};

} // namespace quend::registry
