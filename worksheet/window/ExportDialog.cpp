#include "ExportDialog.h"

#include "CompareTextNumbers.h"
#include "FileNames.h"
#include "Language.h"
#include "WindowNames.h"

#include <QFileDialog>
#include <QRegularExpression>
#include <QStandardPaths>

namespace quend::window {

namespace {

/// The ending in a filter such as "PDF (*.pdf)".
QString EndingOf(const QString& filter) {
    static const QRegularExpression ending(QStringLiteral("\\*\\.(\\w+)\\)"));
    return ending.match(filter).captured(1);
}

} // namespace

ExportFile AskForExportFile(QWidget& parent, const QString& name, const QStringList& filters) {
    QFileDialog dialog(&parent, GetResourceText(TextNumber::ExportTitle));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(EndingOf(filters.value(0)));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&](const QString& filter) { dialog.setDefaultSuffix(EndingOf(filter)); });
    dialog.selectFile(SafeFileName(name));
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return {dialog.selectedFiles().value(0), dialog.selectedNameFilter()};
}

} // namespace quend::window
