#include "SystemInfo.h"

#include <QProcess>
#include <QStandardPaths>

#include <array>

namespace quend::extras {

namespace {

/// In order of preference: tools that only show information before those that also change settings.
constexpr std::array Tools{"kinfocenter", "hardinfo2", "hardinfo",
                           "cpu-x",       "lshw-gtk",  "gnome-control-center"};

std::optional<QString> FirstInstalled() {
    for (const char* tool : Tools) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(tool));
        if (!path.isEmpty()) {
            return path;
        }
    }
    return std::nullopt;
}

} // namespace

SystemInfoInterface InstalledSystemInfo() {
    return {.installed = FirstInstalled,
            .start = [](const QString& path) { return QProcess::startDetached(path, {}); }};
}

} // namespace quend::extras
