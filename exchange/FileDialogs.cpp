#include "FileDialogs.h"

#include "EditTextNumbers.h"
#include "FileNames.h"
#include "Language.h"

#include <QFileDialog>
#include <QFileInfo>

namespace quend::exchange {

namespace {

/// The chosen file; empty when cancelled.
QString Choose(QFileDialog& dialog) {
    dialog.setNameFilters({GetResourceText(TextNumber::WorksheetFilter) + QStringLiteral(" (*") +
                               WorksheetEnding + u')',
                           GetResourceText(TextNumber::AllFilesFilter) + QStringLiteral(" (*)")});
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString AskToOpen(QWidget& parent, const QString& folder) {
    QFileDialog dialog(&parent, GetResourceText(TextNumber::OpenFileTitle), folder);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Choose(dialog);
}

QString AskToSave(QWidget& parent, const QString& proposed) {
    const QFileInfo file(proposed);
    QFileDialog dialog(&parent, GetResourceText(TextNumber::SaveFileTitle), file.absolutePath());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(WorksheetEnding.mid(1));
    dialog.selectFile(file.fileName());
    return Choose(dialog);
}

} // namespace

ExchangeWorld FileDialogs() { return {.askToOpen = AskToOpen, .askToSave = AskToSave}; }

} // namespace quend::exchange
