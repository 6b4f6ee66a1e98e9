#pragma once

#include "RegistryAPI.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>

/// A folder of its own for a store file, and worksheets to put into it.
class StoreFixture : public testing::Test {
public:
    StoreFixture(const StoreFixture&) = delete;
    StoreFixture& operator=(const StoreFixture&) = delete;

protected:
    StoreFixture();
    ~StoreFixture() override;

    const std::filesystem::path folder; ///< where the tests are
    const std::filesystem::path store;  ///< the store, in a folder "data" below it; not made yet
};

inline constexpr RegistryRoot User = RegistryRoot::CurrentUser;
inline const std::string Base = "Software\\Quend Halverworks\\Loan";

inline constexpr int ValuesOfWorksheet = 130;

/// Saves a worksheet of 130 values, all of the same mark, as one step: deletes the old one first.
void SaveWorksheet(const RegistryAPI& registry, const std::string& name, const std::string& mark);

/// The mark of a worksheet all of whose values have it; "" when there is no such key, and "torn"
/// when values are missing or of different marks.
std::string MarkOf(const RegistryAPI& registry, const std::string& name);

/// "0", "1", … saved with those names as marks.
void SaveWorksheets(const RegistryAPI& registry, int count);

/// The failure of a step that only writes, or "".
std::string FailureOf(const std::function<void()>& action);
/// Why the action failed; None when it did not.
StoreTrouble TroubleOf(const std::function<void()>& action);
inline const std::string NotMade = "1001 Unable to create the registry key";

std::string BytesOf(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, const std::string& bytes);

/// Folds the log of a store into it and removes what stands beside it.
void MakeOneFile(const std::filesystem::path& store);

/// Runs the expectations in a process of their own; false when one failed or the process died.
bool HoldsInChild(const std::function<void()>& expectations);
