#pragma once

#include "QuendNames.h"
#include "RegistryAPI.h"

#include <string>

/// A store with nothing below its base key: a separate file or, on the platform that has a
/// registry, a separate key that is emptied.
class TestStore {
public:
    TestStore();
    TestStore(const TestStore&) = delete;
    TestStore& operator=(const TestStore&) = delete;
    ~TestStore();

    const RegistryAPI& Registry() const { return m_registry; }

private:
    std::filesystem::path m_folder;
    RegistryAPI m_registry;
};

/// The key below which the tests write. It does not exist at first.
inline const std::string BaseKey = "Software\\Quend Halverworks\\Loan Test";
