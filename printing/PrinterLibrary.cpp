// The printing plugin, Loan.Printers.

#include "PrinterPart.h"
#include "SystemPrinter.h"

#include <QObject>

#include <utility>

class PrinterLibrary final : public QObject, public PrinterPart {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrinterPart_iid)
    Q_INTERFACES(PrinterPart)

public:
    std::unique_ptr<PrinterDoor> Printers(Words words) const override {
        return std::make_unique<SystemPrinter>(std::move(words));
    }
};

#include "PrinterLibrary.moc"
