#include "AboutCommands.h"

#include "FailureReport.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MessageQueue.h"
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
    frmAbout(*m_window, [this] {
        m_window->Report().Guard([this] { cmdSysInfo_Click(); });
    }).exec();
}

void AboutCommands::cmdSysInfo_Click() {
    if (!StartSysInfo(m_store, m_system)) {
        m_window->GetMessages().Post(GetResourceText(TextNumber::NoSystemInfo));
    }
}

} // namespace quend::extras
