#include "ChildProcess.h"

#include <gtest/gtest.h>

#include <exception>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

bool HoldsInChild(const std::function<void()>& expectations) {
    const pid_t child = fork();
    if (child == 0) {
        try {
            expectations();
        } catch (const std::exception& failure) {
            ADD_FAILURE() << failure.what();
        }
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool HoldsForAnotherUser(const std::function<void()>& expectations) {
    constexpr uid_t Nobody = 65'534;
    return HoldsInChild([&] {
        if (geteuid() == 0) {
            ASSERT_EQ(setgid(Nobody), 0);
            ASSERT_EQ(setuid(Nobody), 0);
        }
        expectations();
    });
}

bool MountSmallDisk(const std::filesystem::path& folder) {
    return unshare(CLONE_NEWNS) == 0 && mount("", "/", "", MS_REC | MS_PRIVATE, "") == 0 &&
           mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=1m") == 0;
}
