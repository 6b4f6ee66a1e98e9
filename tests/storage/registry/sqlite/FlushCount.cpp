#include "FlushCount.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Flushes {
    int count = 0;
    std::chrono::nanoseconds time{0};
};

Flushes& All() {
    static Flushes flushes;
    return flushes;
}

int Flush(long call, int file) {
    const auto start = std::chrono::steady_clock::now();
    const auto result = static_cast<int>(syscall(call, file));
    All().time += std::chrono::steady_clock::now() - start;
    ++All().count;
    return result;
}

} // namespace

// The program's own functions take precedence over the system's, also in the libraries it uses.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's name is reserved.
extern "C" int fsync(int file) { return Flush(SYS_fsync, file); }
extern "C" int fdatasync(int file) { return Flush(SYS_fdatasync, file); }
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

int FlushCount() { return All().count; }
std::chrono::nanoseconds FlushTime() { return All().time; }
