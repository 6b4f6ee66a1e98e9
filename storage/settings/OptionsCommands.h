#pragma once

#include "RegistryAPI.h"
#include "Settings.h"
#include "StorageNames.h"

#include <QObject>

#include <optional>

namespace quend::window {
class Loan;
}

namespace quend::storage {

class PictureChooser;

/// The Options entry of the Tools menu: runs the dialog, saves the settings and passes them to the
/// main window.
class OptionsCommands : public QObject {
    Q_OBJECT

public:
    /// Window and pictures must outlive the commands. Enables the menu entry.
    OptionsCommands(Loan& window, RegistryAPI store, PictureChooser& pictures);

private:
    void mnuToolsOptions_Click();
    std::optional<Settings> AskUser();

    Loan* m_window;
    RegistryAPI m_store;
    PictureChooser* m_pictures;
};

} // namespace quend::storage
