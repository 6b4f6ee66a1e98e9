#include "ExchangeCommands.h"

#include "EditTextNumbers.h"
#include "FailureReport.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MessageQueue.h"
#include "NotSaved.h"
#include "OfferRows.h"
#include "SaveFile.h"
#include "TextNumbers.h"
#include "Worksheet.h"
#include "WorksheetConversion.h"
#include "WorksheetFiles.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace quend::exchange {

ExchangeCommands::ExchangeCommands(Loan& window, ExchangeWorld world, std::function<bool()> mayDrop)
    : m_window(&window), m_world(std::move(world)), m_mayDrop(std::move(mayDrop)) {
    const auto wire = [this](QAction& entry, void (ExchangeCommands::*handler)()) {
        entry.setEnabled(true);
        connect(&entry, &QAction::triggered, this, [this, handler] {
            m_window->Report().Guard([&] {
                if (m_window->Commit()) {
                    (this->*handler)();
                }
            });
        });
    };
    wire(*window.Form().mnuFileOpen, &ExchangeCommands::mnuFileOpen_Click);
    wire(*window.Form().mnuFileSaveAs, &ExchangeCommands::mnuFileSaveAs_Click);
    window.OnFileDropped([this](const QString& path) { OpenFile(path); });
}

ExchangeCommands::~ExchangeCommands() { m_window->OnFileDropped({}); }

/// Folders go, and the one for documents need not be there. It is looked up late, because Qt reads
/// a file for it.
QString ExchangeCommands::Folder() const {
    const QString folder = m_folder.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                               : m_folder;
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

void ExchangeCommands::mnuFileOpen_Click() {
    const QString path = m_world.askToOpen(*m_window, Folder());
    if (!path.isEmpty()) {
        m_folder = QFileInfo(path).absolutePath();
        Open(path);
    }
}

void ExchangeCommands::OpenFile(const QString& path) {
    m_window->Report().Guard([&] {
        if (m_window->Commit()) {
            Open(path);
        }
    });
}

/// Asks about unsaved changes only when there is something to replace them.
void ExchangeCommands::Open(const QString& path) {
    const OpenedFile file = OpenWorksheetFile(path);
    if (!file.worksheet) {
        Report(TextNumber::FileNotOpened, path, file.trouble);
        return;
    }
    if (!m_mayDrop()) {
        return;
    }
    Worksheet& sheet = m_window->GetWorksheet();
    const std::vector<Failure> failures =
        PutFile(*file.worksheet, sheet, [this](Row last) { m_window->Rows().GrowTo(last); });
    sheet.MarkUnsaved();
    m_window->ClearNameMark();
    m_window->Reenter();
    if (!failures.empty()) {
        Report(TextNumber::FileIncomplete, path, FailureLines(failures));
    }
}

void ExchangeCommands::mnuFileSaveAs_Click() {
    const WorksheetInFile content = ToFile(m_window->GetWorksheet());
    const QByteArray bytes = WriteWorksheet(content);
    if (const QString trouble = WhyNotKept(bytes); !trouble.isEmpty()) {
        m_window->GetMessages().Post(GetResourceText(TextNumber::NoFileOfThis) +
                                     QStringLiteral("\n\n") + trouble);
        return;
    }
    const QString path =
        m_world.askToSave(*m_window, QDir(Folder()).filePath(FileNameFor(content.name)));
    if (!path.isEmpty()) {
        m_folder = QFileInfo(path).absolutePath();
        Save(path, bytes);
    }
}

void ExchangeCommands::Save(const QString& path, const QByteArray& bytes) {
    const QString file = WithWorksheetEnding(path);
    if (file != path && !MayReplace(file)) {
        return;
    }
    const QString trouble = NotSavedText(file, SaveFile(file, bytes));
    if (!trouble.isEmpty()) {
        return m_window->GetMessages().Post(trouble);
    }
    m_window->Announce(
        GetResourceText(TextNumber::SavedAsFile).arg(QDir::toNativeSeparators(file)));
}

/// The dialog has asked about the name as it was typed, without the ending.
bool ExchangeCommands::MayReplace(const QString& path) {
    const Question question{
        GetResourceText(TextNumber::ReplaceFile).arg(QDir::toNativeSeparators(path)),
        GetResourceText(TextNumber::SaveFileTitle)};
    return !QFileInfo::exists(path) || m_window->GetMessages().Ask(question) == window::Answer::Yes;
}

void ExchangeCommands::Report(int text, const QString& path, const QString& details) const {
    m_window->GetMessages().Post(GetResourceText(text).arg(QDir::toNativeSeparators(path)) +
                                 QStringLiteral("\n\n") + details);
}

} // namespace quend::exchange
