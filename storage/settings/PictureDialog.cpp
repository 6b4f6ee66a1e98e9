#include "PictureDialog.h"

#include "Language.h"
#include "PictureFile.h"
#include "StorageNames.h"
#include "TextNumbers.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace quend::storage {

namespace {

/// The requested folder; if it does not exist, the user's pictures folder or home.
QString ExistingFolder(const QString& folder) {
    for (const QString& candidate :
         {folder, QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)}) {
        if (!candidate.isEmpty() && QFileInfo(candidate).isDir()) {
            return candidate;
        }
    }
    return QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
}

/// The file name filters, bitmaps first.
QStringList Filters() {
    QStringList patterns;
    for (const QByteArray& ending : PictureFile::Formats()) {
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(ending));
    }
    return GetResourceText(TextNumber::PictureFilter)
        .arg(patterns.join(u' '))
        .split(QStringLiteral(";;"));
}

} // namespace

QString PictureDialog::Choose(QWidget& parent, const PictureRequest& request) {
    QFileDialog dialog(&parent, GetResourceText(TextNumber::PictureTitle));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(Filters());
    dialog.setDefaultSuffix(QStringLiteral("bmp"));
    dialog.setDirectory(ExistingFolder(request.folder));
    if (QFileInfo(request.file).isFile()) {
        dialog.selectFile(QFileInfo(request.file).absoluteFilePath());
    }
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace quend::storage
