#include "OptionsCommands.h"

#include "FailureReport.h"
#include "Loan.h"
#include "LoanForm.h"
#include "SettingsStore.h"
#include "frmOptions.h"

#include <QAction>

#include <utility>

namespace quend::storage {

OptionsCommands::OptionsCommands(Loan& window, RegistryAPI store, PictureChooser& pictures)
    : m_window(&window), m_store(std::move(store)), m_pictures(&pictures) {
    QAction* entry = window.Form().mnuToolsOptions;
    entry->setEnabled(true);
    connect(entry, &QAction::triggered, this,
            [this] { m_window->Report().Guard([this] { mnuToolsOptions_Click(); }); });
}

/// Does nothing when the field being edited cannot be stored: its new text would be lost when the
/// fields are refreshed.
void OptionsCommands::mnuToolsOptions_Click() {
    if (!m_window->Commit()) {
        return;
    }
    if (const std::optional<Settings> chosen = AskUser()) {
        m_window->ApplySettings(*chosen);
    }
    // Save after applying: a picture that cannot be loaded must not be saved for the next start.
    SaveSettings(m_store, m_window->GetSettings());
}

/// No value when the user cancelled.
std::optional<Settings> OptionsCommands::AskUser() {
    frmOptions dialog(m_window->GetSettings(), m_window->GetMessages(), *m_pictures, m_window);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Chosen()) : std::nullopt;
}

} // namespace quend::storage
