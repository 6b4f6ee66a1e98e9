#pragma once

#include "ExchangeWorld.h"

#include <QObject>
#include <QString>

#include <functional>

namespace quend::window {
class Loan;
}

namespace quend::exchange {

/// The File menu's Open File and Save As File, and a file dropped on the window. A worksheet that
/// came from a file is not kept until it is saved under its name; saving it as a file does not
/// change that.
class ExchangeCommands : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the commands. Enables the entries. `mayDrop` asks about unsaved
    /// changes; false when the worksheet must stay.
    ExchangeCommands(Loan& window, ExchangeWorld world, std::function<bool()> mayDrop);
    Q_DISABLE_COPY_MOVE(ExchangeCommands)
    /// The window takes no more files.
    ~ExchangeCommands() override;

    /// Replaces the worksheet by that of a file. If it cannot be read, a message says why and
    /// nothing changes. Throws nothing: failures are reported to the user.
    void OpenFile(const QString& path);

private:
    void mnuFileOpen_Click();
    void mnuFileSaveAs_Click();

    QString Folder() const;
    void Open(const QString& path);
    void Save(const QString& path, const QByteArray& bytes);
    bool MayReplace(const QString& path);
    void Report(int text, const QString& path, const QString& details) const;

    Loan* m_window;
    ExchangeWorld m_world;
    std::function<bool()> m_mayDrop;
    QString m_folder; ///< the one used last; empty before
};

} // namespace quend::exchange
