#include "WorksheetFiles.h"

#include "CommandTextNumbers.h"
#include "EditTextNumbers.h"
#include "FileErrorText.h"
#include "FileNames.h"
#include "Language.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace quend::exchange {

OpenedFile OpenWorksheetFile(const QString& path) {
    const auto refuse = [](int text) { return OpenedFile{{}, GetResourceText(text)}; };
    const QFileInfo place(path);
    if (!place.exists()) {
        return refuse(TextNumber::FileMissing);
    }
    QFile file(path);
    if (!place.isFile() || !file.open(QIODevice::ReadOnly)) {
        return refuse(TextNumber::FileUnreadable);
    }
    const QByteArray bytes = file.read(MostBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        return refuse(TextNumber::FileUnreadable);
    }
    ReadResult<ComparisonRequest> read = ReadRequest(bytes);
    if (!read.content) {
        return {{}, FileErrorText(read.error)};
    }
    return {std::move(read.content->worksheet), {}};
}

QString WhyNotKept(const QByteArray& bytes) {
    const ReadResult<ComparisonRequest> read = ReadRequest(bytes);
    if (read.content) {
        return {};
    }
    // The user has no file in which to look for the line.
    return read.error.member.isEmpty()
               ? FileErrorText(read.error)
               : GetResourceText(TextNumber::ValueNotForFile).arg(read.error.member);
}

QString PathOfArgument(const QString& argument) {
    const QUrl url(argument);
    const QString path = url.isLocalFile() ? url.toLocalFile() : argument;
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

QString FileNameFor(const QString& worksheet) {
    const QString name = SafeFileName(worksheet);
    return (name.isEmpty() ? GetResourceText(TextNumber::UnnamedWorksheet) : name) +
           WorksheetEnding;
}

QString WithWorksheetEnding(const QString& path) {
    return path.endsWith(WorksheetEnding, Qt::CaseInsensitive) ? path : path + WorksheetEnding;
}

} // namespace quend::exchange
