#include "AboutCommands.h"

#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "TextNumbers.h"
#include "frmAbout.h"

#include <utility>

namespace quend::extras {

AboutCommands::AboutCommands(Loan& window, RegistryAPI store, SystemInfoInterface system)
    : m_window(&window), m_store(std::move(store)), m_system(std::move(system)) {
    QAction* entry = window.Form().mnuHelpAbout;
    entry->setEnabled(true);
    connect(entry, &QAction::triggered, this,
            [this] { m_window->Report().Guard([this] { mnuHelpAbout_Click(); }); });
}

void AboutCommands::mnuHelpAbout_Click() {
    frmAbout about(*m_window, [this] {
        if (!StartSysInfo(m_store, m_system)) {
            m_window->GetMessages().Post(GetResourceText(TextNumber::NoSystemInfo));
        }
    });
    about.exec();
}

} // namespace quend::extras
