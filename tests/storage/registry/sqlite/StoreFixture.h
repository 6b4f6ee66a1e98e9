#pragma once

#include "QuendNames.h"
#include "RegistryAPI.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>

/// A separate folder for a store file, and worksheets to save in it.
class StoreFixture : public testing::Test {
protected:
    StoreFixture();
    ~StoreFixture() override;

    const std::filesystem::path folder; ///< the folder of the test
    const std::filesystem::path store;  ///< the store, in a folder "data" below it; not created yet
};

inline constexpr RegistryRoot User = RegistryRoot::CurrentUser;
inline const std::string Base = "Software\\Quend Halverworks\\Loan";

inline constexpr int ValuesOfWorksheet = 130;

/// Saves a worksheet of 130 values with the same mark in one transaction; deletes the old one
/// first.
void SaveWorksheet(const RegistryAPI& registry, const std::string& name, const std::string& mark);

/// The mark that all values of a worksheet have; "" when the key does not exist, "torn" when values
/// are missing or have different marks.
std::string MarkOf(const RegistryAPI& registry, const std::string& name);

/// Saves "0", "1", … with their names as marks.
void SaveWorksheets(const RegistryAPI& registry, int count);

/// The failure of an action that only writes, or "".
std::string FailureOf(const std::function<void()>& action);
/// Why the action failed; None when it did not.
StoreTrouble TroubleOf(const std::function<void()>& action);
inline const std::string NotMade = "1001 Unable to create the registry key";

std::string BytesOf(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

/// Checkpoints the log into the store and removes the files beside it.
void MakeOneFile(const std::filesystem::path& store);
