#include "HelpPlugin.h"
#include "Plugin.h"

namespace quend::help {

std::shared_ptr<HelpCollection> OpenByPlugin(const QString& file) {
    return Plugin<HelpPlugin>(QStringLiteral("Loan.Help")).Open(file);
}

} // namespace quend::help
