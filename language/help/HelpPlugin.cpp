#include "HelpPlugin.h"
#include "Plugin.h"

std::shared_ptr<HelpCollection> OpenByPlugin(const QString& file) {
    return Plugin<HelpPlugin>(QStringLiteral("Loan.Help")).Open(file);
}
