// The printing plugin, Loan.Printers.

#include "PrinterPlugin.h"
#include "SystemPrinter.h"

#include <QObject>

#include <utility>

class PrinterLibrary final : public QObject, public PrinterPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrinterPlugin_iid)
    Q_INTERFACES(PrinterPlugin)

public:
    std::unique_ptr<PrinterInterface> Printers(Words words) const override {
        return std::make_unique<SystemPrinter>(std::move(words));
    }
};

#include "PrinterLibrary.moc"
