#include "StoreFixture.h"

#include "Failure.h"
#include "Sqlite.h"
#include "StoreFile.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace {

std::filesystem::path NewFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "loan-store-XXXXXX").string();
    return mkdtemp(name.data());
}

std::string ValueName(int number) { return "InterestRate" + std::to_string(number); }

} // namespace

StoreFixture::StoreFixture() : folder(NewFolder()), store(folder / "data" / "Loan.store") {}

StoreFixture::~StoreFixture() {
    std::error_code error;
    std::filesystem::permissions(store.parent_path(), std::filesystem::perms::owner_all, error);
    std::filesystem::remove_all(folder, error);
}

void SaveWorksheet(const RegistryAPI& registry, const std::string& name, const std::string& mark) {
    registry.InTransaction([&](const RegistryAPI& step) {
        const std::string key = Base + '\\' + name;
        step.DeleteKey(User, key);
        step.CreateKey(User, key);
        for (int i = 0; i < ValuesOfWorksheet; ++i) {
            step.SetValue(User, key, ValueName(i), RegistryType::Text, mark);
        }
    });
}

std::string MarkOf(const RegistryAPI& registry, const std::string& name) {
    std::string mark;
    registry.ReadInTransaction([&](const RegistryAPI& step) {
        const std::string key = Base + '\\' + name;
        if (!step.KeyExists(User, key)) {
            return;
        }
        for (int i = 0; i < ValuesOfWorksheet; ++i) {
            const auto value = std::get<std::string>(
                step.GetValue(User, key, ValueName(i), RegistryType::Text, "torn"));
            mark = i == 0 || value == mark ? value : "torn";
        }
    });
    return mark;
}

void SaveWorksheets(const RegistryAPI& registry, int count) {
    for (int i = 0; i < count; ++i) {
        SaveWorksheet(registry, std::to_string(i), std::to_string(i));
    }
}

std::string FailureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return std::to_string(failure.Number()) + failure.Source() + ' ' + failure.Description();
    }
    return "";
}

StoreTrouble TroubleOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const StoreFailure& failure) {
        return failure.Trouble();
    }
    return StoreTrouble::None;
}

std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void MakeOneFile(const std::filesystem::path& store) {
    Connection(store, std::chrono::milliseconds(1'000)).Execute("PRAGMA wal_checkpoint(TRUNCATE)");
    std::filesystem::remove(StoreFile::LogOf(store));
    std::filesystem::remove(StoreFile::SharedOf(store));
}
