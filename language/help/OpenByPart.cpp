#include "HelpPart.h"
#include "ProgramPart.h"

std::shared_ptr<HelpBook> OpenByPart(const QString& file) {
    return ProgramPart<HelpPart>(QStringLiteral("Loan.Help")).Open(file);
}
