// Cost of the store: saving and loading a worksheet, listing ten thousand, and the check at program
// start. "flushes" counts the system calls per round that wait for the disk; "disk_ms" is the time
// of one such call on this machine, so that the rest of a save can be computed.
#include "FlushCount.h"
#include "QuendNames.h"
#include "RegistryAPI.h"
#include "StoreCheck.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

constexpr RegistryRoot User = RegistryRoot::CurrentUser;
const std::string Base = "Software\\Quend Halverworks\\Loan";
constexpr int Values = 130; // in a worksheet with sixteen offers

/// A store in a temporary folder.
class Store {
public:
    Store() { registry.CreateKey(User, Base); }
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
    ~Store() { std::filesystem::remove_all(folder); }

    void Save(const std::string& name) const {
        registry.InTransaction([&name](const RegistryAPI& step) { Write(step, name); });
    }
    void SaveMany(int count) const {
        for (int i = 0; i < count; ++i) {
            Save("Loan " + std::to_string(i));
        }
    }
    static void Write(const RegistryAPI& step, const std::string& name) {
        const std::string key = Base + '\\' + name;
        step.DeleteKey(User, key);
        step.CreateKey(User, key);
        for (int i = 0; i < Values; ++i) {
            step.SetValue(User, key, "InterestRate" + std::to_string(i), RegistryType::Text,
                          "123456.78");
        }
    }

    const std::filesystem::path folder{NewFolder()};
    const std::filesystem::path path{folder / "Loan.store"};
    const RegistryAPI registry{path};

private:
    static std::filesystem::path NewFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "loan-bench-XXXXXX").string();
        return mkdtemp(name.data());
    }
};

/// Milliseconds to write a page to a file and flush it to the disk.
double FlushTime(const std::filesystem::path& beside) {
    std::filesystem::path file = beside;
    file += ".flush";
    const int handle = open(file.c_str(), O_CREAT | O_WRONLY, S_IRUSR | S_IWUSR);
    const std::string page(4'096, 'x');
    constexpr int Rounds = 20;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < Rounds; ++i) {
        if (write(handle, page.data(), page.size()) < 0 || fdatasync(handle) != 0) {
            break;
        }
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    close(handle);
    std::filesystem::remove(file);
    return time.count() / Rounds;
}

void SaveOfAWorksheet(benchmark::State& state) {
    const Store store;
    store.SaveMany(100);
    TidyStore(store.path);
    const double flush = FlushTime(store.path);
    const int before = FlushCount();
    for (auto _ : state) {
        store.Save("Loan 50");
    }
    state.counters["flushes"] =
        benchmark::Counter(FlushCount() - before, benchmark::Counter::kAvgIterations);
    state.counters["disk_ms"] = flush;
}
BENCHMARK(SaveOfAWorksheet)->Unit(benchmark::kMillisecond)->Iterations(150)->UseRealTime();

void LoadOfAWorksheet(benchmark::State& state) {
    const Store store;
    store.SaveMany(100);
    TidyStore(store.path);
    for (auto _ : state) {
        store.registry.ReadInTransaction([](const RegistryAPI& step) {
            for (int i = 0; i < Values; ++i) {
                benchmark::DoNotOptimize(step.GetValue(User, Base + "\\Loan 50",
                                                       "InterestRate" + std::to_string(i),
                                                       RegistryType::Text, ""));
            }
        });
    }
}
BENCHMARK(LoadOfAWorksheet)->Unit(benchmark::kMillisecond)->UseRealTime();

void ListOfTenThousand(benchmark::State& state) {
    const Store store;
    store.registry.InTransaction([](const RegistryAPI& step) {
        for (int i = 0; i < 10'000; ++i) {
            step.CreateKey(User, Base + "\\Loan " + std::to_string(i));
        }
    });
    TidyStore(store.path);
    for (auto _ : state) {
        if (store.registry.GetSubKeys(User, Base).size() != 10'000) {
            state.SkipWithError("not all of them");
        }
    }
}
BENCHMARK(ListOfTenThousand)->Unit(benchmark::kMillisecond)->UseRealTime();

void StartWithWorksheets(benchmark::State& state) {
    const Store store;
    store.SaveMany(static_cast<int>(state.range(0)));
    TidyStore(store.path);
    for (auto _ : state) {
        if (PrepareStore(store.path, "today").state != StoreCondition::State::Sound) {
            state.SkipWithError("not sound");
        }
    }
    state.counters["bytes"] = static_cast<double>(std::filesystem::file_size(store.path));
}
BENCHMARK(StartWithWorksheets)
    ->Arg(0)
    ->Arg(100)
    ->Arg(1'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
