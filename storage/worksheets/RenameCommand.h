#pragma once

#include "StorageNames.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace quend::window {
class Loan;
}

namespace quend::storage {

class KeptWorksheets;

/// Asks for the new name of a worksheet; no value when the user cancels.
using AskForName = std::function<std::optional<QString>(QWidget& parent, const QString& name)>;

/// The dialog.
std::optional<QString> AskForNewName(QWidget& parent, const QString& name);

/// File, Rename: gives the stored worksheet another name. Changes that are not saved stay unsaved.
class RenameCommand : public QObject {
    Q_OBJECT

public:
    /// Window and store must outlive the command. Enables the menu entry.
    RenameCommand(Loan& window, KeptWorksheets& store, AskForName ask);

private:
    void mnuFileRename_Click();
    void Rename(const QString& from, const QString& to);
    void Report(const QString& text) const;

    Loan* m_window;
    KeptWorksheets* m_store;
    AskForName m_ask;
};

} // namespace quend::storage
