#pragma once

#include "QuendNames.h"
#include "RegistryAPI.h"
#include "StoreNames.h"

#include <QTemporaryDir>

#include <filesystem>
#include <string>
#include <utility>

/// A temporary store for a test. It holds the program's key and nothing else.
class StoreFolder {
public:
    StoreFolder() { Store().CreateKey(Root, BaseKey); }

    static constexpr RegistryRoot Root = RegistryRoot::CurrentUser;

    std::filesystem::path File() const {
        return std::filesystem::path(m_folder.path().toStdString()) / "Loan.store";
    }
    RegistryAPI Store() const { return RegistryAPI(File()); }

    static std::string LoanKey(const std::string& name) {
        return std::string(BaseKey) + '\\' + name;
    }
    std::string Text(const std::string& key, const std::string& value) const {
        return std::get<std::string>(
            Store().GetValue(Root, key, value, RegistryType::Text, std::string("(missing)")));
    }
    std::int32_t Number(const std::string& key, const std::string& value) const {
        constexpr std::int32_t missing = -12345;
        return std::get<std::int32_t>(
            Store().GetValue(Root, key, value, RegistryType::Number, missing));
    }

private:
    QTemporaryDir m_folder;
};

/// While it exists, a folder replaces the store and its log is moved away: reading and writing fail
/// as they do without permission.
class StoreOutOfReach {
public:
    explicit StoreOutOfReach(std::filesystem::path store) : m_store(std::move(store)) {
        Move("", ".away");
        std::filesystem::create_directory(m_store);
    }
    StoreOutOfReach(const StoreOutOfReach&) = delete;
    StoreOutOfReach& operator=(const StoreOutOfReach&) = delete;
    ~StoreOutOfReach() {
        std::filesystem::remove(m_store);
        Move(".away", "");
    }

private:
    void Move(const std::string& from, const std::string& to) const {
        for (const char* const ending : {"", "-wal", "-shm"}) {
            std::error_code missing;
            const std::string file = m_store.string() + ending;
            std::filesystem::rename(file + from, file + to, missing);
        }
    }

    std::filesystem::path m_store;
};
