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

/// The top of a tree of keys, by the platform's own handle.
enum class RegistryRoot : std::uint32_t {
    CurrentUser = 0x80000001,
    LocalMachine = 0x80000002,
};

/// The store's own type codes. Others can be asked for, and are then refused or ignored.
namespace RegistryType {
inline constexpr std::int16_t Text = 1;
inline constexpr std::int16_t Binary = 3;
inline constexpr std::int16_t Number = 4; ///< 32 bits, signed; true is -1
} // namespace RegistryType

/// Text (UTF-8), bytes or a number. A flag is a number: RegistryFlag makes it.
using RegistryValue = std::variant<std::string, std::vector<std::byte>, std::int32_t>;

constexpr std::int32_t RegistryFlag(bool set) { return set ? -1 : 0; }

/// Which keys a repair can find again by their values alone: those below `parent` that repeat their
/// name in a text value. Without the name of that value none.
struct NamedKeys {
    RegistryRoot root = RegistryRoot::CurrentUser;
    std::string parent;
    std::string nameValue;
};

/// What a repair of the store in the middle of a step asks of the world outside, and tells it.
struct RepairDoor {
    /// Stands in the name of the damaged file, as in 2026-11-21. Without it nothing is repaired.
    std::function<std::string()> today;
    /// Called once for each repair, before the step is made again; may be empty.
    std::function<void(const std::filesystem::path& keptAs)> repaired;
    NamedKeys named = {};
};

/// Why the store could not be read or written, as far as that can be made out.
enum class StoreTrouble {
    None,
    Unknown,
    DiskFull,
    ReadOnly,   ///< the file system takes no writing
    NotAllowed, ///< the user has no right to the file or its folder
    InUse       ///< another program was writing for longer than the wait
};

/// The failure of a key or a step that could not be made, with the reason.
class StoreFailure : public Failure {
public:
    explicit StoreFailure(StoreTrouble trouble)
        : Failure(1001, "", "Unable to create the registry key"), m_trouble(trouble) {}

    StoreTrouble Trouble() const { return m_trouble; }

private:
    StoreTrouble m_trouble;
};

class KeyTree;
class StoreStep;

/// The user's store: a tree of keys, each with named values. Paths are relative to a root, with
/// backslashes between their elements; names are kept as written and compared without regard to
/// case. An empty value name addresses the key's default value.
///
/// Stateless: every procedure opens what it needs and closes it again. It remembers the place of
/// the store and the door of its repair and nothing else, so copies are equal. Reads of what is
/// missing or out of reach give the caller's default, writes that cannot be made do nothing; the
/// two failures raised are named below.
class RegistryAPI {
public:
    /// The length of the one blank name that stands for no subkeys.
    static constexpr std::size_t NoSubkeysLength = 260;
    /// How long a write waits for another program that is writing.
    static constexpr std::chrono::milliseconds UsualWait{5'000};

    /// `store` is the full path of the file that holds the store where the platform has no registry
    /// of its own; it and its folders need not exist, CreateKey and InOneStep make them.
    explicit RegistryAPI(std::filesystem::path store, std::chrono::milliseconds wait = UsualWait,
                         RepairDoor door = {});

    /// Where the store of this user lives by the rules of the platform.
    static std::filesystem::path UserStore();

    bool KeyExists(RegistryRoot keyRoot, const std::string& keyName) const;

    /// Makes every missing key of the path. True when the key existed already. Throws StoreFailure.
    bool CreateKey(RegistryRoot keyRoot, const std::string& keyName) const;

    /// Deletes a key with its values. A key that has subkeys stays.
    void DeleteKey(RegistryRoot keyRoot, const std::string& keyName) const;

    /// The value, or the default when it is missing, too long (a text of more than 1,023
    /// characters as the user counts them, more than 4,096 bytes) or out of reach. The type is that
    /// of the answer; what type was written is not checked. Throws Failure 1001 "Unsupported value
    /// type" for any other type, where the key exists.
    RegistryValue GetValue(RegistryRoot keyRoot, const std::string& keyName,
                           const std::string& valueName, std::int16_t type,
                           const RegistryValue& defaultValue) const;

    /// The type code that the value was written with; 0 when it is missing or out of reach.
    std::int64_t GetValueType(RegistryRoot keyRoot, const std::string& keyName,
                              const std::string& valueName) const;

    /// Writes a value of an existing key; does nothing where there is no such key, and for an
    /// unknown type.
    void SetValue(RegistryRoot keyRoot, const std::string& keyName, const std::string& valueName,
                  std::int16_t type, const RegistryValue& value) const;

    void DeleteValue(RegistryRoot keyRoot, const std::string& keyName,
                     const std::string& valueName) const;

    /// The names of the direct subkeys, alphabetical without regard to case; of the root itself for
    /// an empty path. One element of 260 blanks means that there are none, no element that the key
    /// could not be opened.
    std::vector<std::string> GetSubKeys(RegistryRoot keyRoot, const std::string& keyName) const;

    /// Runs `steps` on the store as one step: either all that it writes is kept or nothing, and all
    /// that it reads is of one moment. Waits a few seconds for another program that is writing.
    /// When it meets damage the store is repaired, if it was given a door for that, and `steps` run
    /// once more from the beginning.
    /// Throws what `steps` throws, with nothing kept; and StoreFailure when the step could not be
    /// made, because the store cannot be written to, the disk is full, or the wait was in vain.
    /// Where the platform's registry knows no such steps the writes are made one by one.
    void InOneStep(const std::function<void(const RegistryAPI&)>& steps) const;

    /// The same for reading alone: nothing is written, nothing is waited for, and a store that
    /// cannot be read gives defaults. What kept it from being read is returned; a store that is not
    /// there holds nothing, and is no trouble.
    StoreTrouble ReadInOneStep(const std::function<void(const RegistryAPI&)>& steps) const;

private:
    bool Repair() const;
    void TryStep(const std::function<void(const RegistryAPI&)>& steps) const;
    void Read(const std::function<void(KeyTree&)>& reading) const;
    StoreTrouble Write(const std::function<void(KeyTree&)>& writing, bool makesStore = false) const;

    std::filesystem::path m_store;
    std::chrono::milliseconds m_wait;
    RepairDoor m_door;
    std::shared_ptr<StoreStep> m_step; ///< the step that this one belongs to, if any
};
