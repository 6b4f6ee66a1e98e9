#pragma once

#include "ExtrasNames.h"
#include "RegistryAPI.h"
#include "SystemInfo.h"

#include <QObject>

namespace quend::window {
class Loan;
}

namespace quend::extras {

/// The About entry of the Help menu.
class AboutCommands : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the commands. Enables the entry.
    AboutCommands(Loan& window, RegistryAPI store, SystemInfoInterface system);

private:
    void mnuHelpAbout_Click();
    void cmdSysInfo_Click();

    Loan* m_window;
    RegistryAPI m_store;
    SystemInfoInterface m_system;
};

} // namespace quend::extras
