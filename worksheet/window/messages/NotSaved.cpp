#include "NotSaved.h"

#include "CompareTextNumbers.h"
#include "Language.h"
#include "WindowNames.h"

#include <QDir>

namespace quend::window {

namespace {

int NumberOf(SaveFault fault) {
    switch (fault) {
    case SaveFault::NoFolder:
        return TextNumber::FileNoFolder;
    case SaveFault::NotAllowed:
        return TextNumber::FileNotAllowed;
    case SaveFault::NotAFile:
        return TextNumber::FileIsNone;
    case SaveFault::DiskFull:
        return TextNumber::FileDiskFull;
    case SaveFault::None:
    case SaveFault::Failed:
        break;
    }
    return TextNumber::FileNotSaved;
}

} // namespace

QString NotSavedText(const QString& path, const SaveOutcome& outcome) {
    if (outcome.fault == SaveFault::None) {
        return {};
    }
    const QString text =
        GetResourceText(NumberOf(outcome.fault)).arg(QDir::toNativeSeparators(path));
    return outcome.detail.isEmpty() ? text : text + QStringLiteral("\n\n") + outcome.detail;
}

} // namespace quend::window
