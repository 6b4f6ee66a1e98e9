#include "FlushCount.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace {

int& Count() {
    static int count = 0;
    return count;
}

int Flush(long call, int file) {
    ++Count();
    return static_cast<int>(syscall(call, file));
}

} // namespace

// The program's own functions come before the system's, for the libraries it uses too.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's name is reserved.
extern "C" int fsync(int file) { return Flush(SYS_fsync, file); }
extern "C" int fdatasync(int file) { return Flush(SYS_fdatasync, file); }
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

int FlushCount() { return Count(); }
