#include "PrinterOfPart.h"

#include "Language.h"
#include "PrinterPart.h"
#include "ProgramPart.h"

PrinterDoor& PrinterOfPart::Door() {
    if (!m_door) {
        m_door =
            ProgramPart<PrinterPart>(QStringLiteral("Loan.Printers")).Printers(GetResourceText);
    }
    return *m_door;
}
