#include "Drive.h"

#include <QProcess>
#include <QStringList>

namespace {

/// Longer than any scenario under the sanitizers, shorter than the limit of a test.
constexpr int PatienceMs = 110'000;

/// The interpreter that has the driver's packages.
const QString& Interpreter() {
    static const QString path = QStringLiteral("/usr/bin/python3");
    return path;
}

} // namespace

DriveResult Drive(const std::string& locale, const std::string& scenario,
                  const std::string& program, Desktop desktop) {
    QStringList arguments{QStringLiteral(QUEND_SOURCE_DIR "/scripts/driver"),
                          QStringLiteral("--program"), QString::fromStdString(program),
                          QStringLiteral("--locale"), QString::fromStdString(locale)};
    if (desktop == Desktop::Wayland) {
        arguments << QStringLiteral("--wayland");
    }
    QProcess driver;
    driver.start(Interpreter(), arguments);
    driver.write(QByteArray::fromStdString(scenario));
    driver.closeWriteChannel();
    const bool ended = driver.waitForFinished(PatienceMs);
    DriveResult result{.readings = driver.readAllStandardOutput().toStdString(),
                       .complaints = driver.readAllStandardError().toStdString()};
    if (!ended) {
        result.complaints += "the driver did not end: " + driver.errorString().toStdString();
        driver.terminate();
        driver.waitForFinished();
    } else if (driver.exitCode() != 0 && result.complaints.empty()) {
        result.complaints = "the driver ended with " + std::to_string(driver.exitCode());
    }
    return result;
}
