// A random user finds no error.
//
// QUEND_RANDOM_SEED and QUEND_RANDOM_STEPS select other and longer walks. QUEND_RANDOM_TRAIL
// repeats a walk that a failure printed.

#include "RandomUser.h"
#include "Checks.h"
#include "QuendNames.h"
#include "Shorten.h"
#include "Trail.h"

#include <QElapsedTimer>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <cstdio>
#include <exception>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

/// The steps on one store: a failing trail is never longer than this.
constexpr int StepsADay = 2'000;

/// Qt's warnings during a walk.
QStringList& Warnings() {
    static QStringList warnings;
    return warnings;
}

void KeepWarning(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
    if (type >= QtWarningMsg && !text.startsWith(QLatin1String("This plugin does not support"))) {
        Warnings().append(text);
    }
}

/// The trail up to a failure, and its complaints. No complaints means no failure.
struct Failing {
    Trail trail;
    QStringList complaints;
};

/// Walks until a check fails. The seed determines the country.
template <class NextStep>
Failing Walk(std::uint64_t seed, NextStep next) {
    Failing walked;
    Warnings().clear();
    const QtMessageHandler before = qInstallMessageHandler(KeepWarning);
    try {
        RandomUser user(seed % Forms::Countries);
        Checks checks;
        while (walked.complaints.isEmpty()) {
            const std::optional<Step> step = next();
            if (!step) {
                break;
            }
            walked.trail.push_back(*step);
            if (qEnvironmentVariableIsSet("QUEND_RANDOM_TELL")) {
                std::cout << Written({*step}).toStdString() << ";" << std::endl;
            }
            user.Take(*step);
            walked.complaints = checks.Complaints(user) + Warnings();
        }
    } catch (const std::exception& failure) {
        walked.complaints = QStringList(QString::fromUtf8(failure.what()));
    }
    qInstallMessageHandler(before);
    return walked;
}

Failing WalkAgain(std::uint64_t seed, const Trail& trail) {
    std::size_t taken = 0;
    return Walk(seed, [&]() -> std::optional<Step> {
        return taken < trail.size() ? std::optional(trail[taken++]) : std::nullopt;
    });
}

void Report(std::uint64_t seed, const Failing& failed) {
    std::cout << "seed " << seed << ", after " << failed.trail.size() << " steps:\n"
              << failed.complaints.join(u'\n').toStdString() << std::endl; // shortening is slow
    const Trail shortest = Shorten(
        failed.trail,
        [&](const Trail& trail) { return !WalkAgain(seed, trail).complaints.isEmpty(); }, 250);
    const Failing again = WalkAgain(seed, shortest);
    const Failing& shown = again.complaints.isEmpty() ? failed : again;
    ADD_FAILURE() << "shortened to " << shown.trail.size() << " steps:\n"
                  << shown.complaints.join(u'\n').toStdString() << "\nQUEND_RANDOM_SEED=" << seed
                  << " QUEND_RANDOM_TRAIL='" << Written(shown.trail).toStdString() << "'\n";
}

bool WalkADay(std::uint64_t seed, int steps) {
    StepMaker maker(seed);
    int taken = 0;
    const Failing walked = Walk(seed, [&]() -> std::optional<Step> {
        return taken++ < steps ? std::optional(maker.Next()) : std::nullopt;
    });
    if (!walked.complaints.isEmpty()) {
        Report(seed, walked);
    }
    return walked.complaints.isEmpty();
}

std::uint64_t Number(const char* variable, std::uint64_t otherwise) {
    bool isNumber = false;
    const std::uint64_t number = qEnvironmentVariable(variable).toULongLong(&isNumber);
    return isNumber ? number : otherwise;
}

class RandomUserTest : public testing::Test {
protected:
    /// The user's own folders are not used.
    RandomUserTest() { QStandardPaths::setTestModeEnabled(true); }
};

TEST_F(RandomUserTest, FindsNothing) {
    const QString trail = qEnvironmentVariable("QUEND_RANDOM_TRAIL");
    std::uint64_t seed = Number("QUEND_RANDOM_SEED", 1);
    if (!trail.isEmpty()) {
        const Failing walked = WalkAgain(seed, ReadTrail(trail));
        EXPECT_TRUE(walked.complaints.isEmpty()) << walked.complaints.join(u'\n').toStdString();
        return;
    }
    auto left = static_cast<long long>(Number("QUEND_RANDOM_STEPS", 1'500));
    const int aDay = left < 6'000 ? 500 : StepsADay; // a short walk also tries several seeds
    QElapsedTimer timer;
    timer.start();
    for (; left > 0; left -= aDay, ++seed) {
        std::cout << "seed " << seed << ", " << left << " steps to go, " << timer.elapsed() / 1'000
                  << " s" << std::endl;
        if (!WalkADay(seed, static_cast<int>(std::min<long long>(left, aDay)))) {
            return;
        }
    }
}

} // namespace
