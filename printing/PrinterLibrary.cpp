// The printing plugin, Loan.Printers.

#include "PrinterPlugin.h"
#include "SystemPrinter.h"

#include <QObject>

#include <utility>

namespace quend::printing {

class PrinterLibrary final : public QObject, public PrinterPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrinterPlugin_iid)
    Q_INTERFACES(quend::printing::PrinterPlugin)

public:
    std::unique_ptr<PrinterInterface> Printers(Words words) const override {
        return std::make_unique<SystemPrinter>(std::move(words));
    }
};

} // namespace quend::printing

#include "PrinterLibrary.moc"
