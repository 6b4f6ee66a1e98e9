#include "PrinterPlugin.h"

#include "Language.h"
#include "Plugin.h"
#include "PrintingNames.h"

namespace quend::printing {

PrinterInterface& PrinterOfPlugin::Printer() {
    if (!m_printer) {
        m_printer =
            Plugin<PrinterPlugin>(QStringLiteral("Loan.Printers")).Printers(GetResourceText);
    }
    return *m_printer;
}

} // namespace quend::printing
