// The library Loan.Help.

#include "CompiledHelp.h"
#include "HelpPlugin.h"

#include <QObject>

namespace quend::help {

class HelpLibrary final : public QObject, public HelpPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID HelpPlugin_iid)
    Q_INTERFACES(quend::help::HelpPlugin)

public:
    std::shared_ptr<HelpCollection> Open(const QString& file) const override {
        return std::make_shared<CompiledHelp>(file);
    }
};

} // namespace quend::help

#include "HelpLibrary.moc"
