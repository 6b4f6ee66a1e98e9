#pragma once

#include "StorageNames.h"
#include "UnsavedWorksheets.h"

#include <QObject>
#include <QString>

#include <functional>
#include <string>

class QSessionManager;

namespace quend::window {
class Loan;
}

namespace quend::storage {

class FileCommands;

/// Ends the program with the desktop's session or by a signal. Where there is time to ask, the
/// window closes as usual; otherwise an unsaved worksheet is kept for the next start, which offers
/// it.
class SessionEnd : public QObject {
    Q_OBJECT

public:
    struct World {
        /// Writes a message that nobody can be shown any more.
        std::function<void(const QString&)> print;
        /// Keeps what a closing window keeps without asking, such as the settings.
        std::function<void()> keepSettings;
        /// Leaves the event loop, nested ones included.
        std::function<void()> exit;
    };
    /// Window and commands must outlive this object.
    SessionEnd(Loan& window, FileCommands& files, UnsavedWorksheets unsaved, World world);

    /// The desktop asks whether its session may end. False when the user cancels. Without time to
    /// ask, the end that follows does not ask either.
    bool MayEnd(bool hasTimeToAsk);
    /// Leaves the event loop without asking.
    void EndNow();
    /// The window closes and asked the user: nothing is kept for the next start.
    void Forget();
    /// Asks whether to open a worksheet that was closed unsaved, if there is one.
    void OfferUnsaved();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnSessionEnd(QSessionManager& session);
    void KeepUnsaved();
    void DropKept();

    Loan* m_window;
    FileCommands* m_files;
    UnsavedWorksheets m_unsaved;
    World m_world;
    std::string m_slot; ///< of this window; empty: nothing is kept
};

} // namespace quend::storage
