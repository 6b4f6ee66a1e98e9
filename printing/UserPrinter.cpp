#include "UserPrinter.h"

#ifdef QUEND_CUPS

#include <cups/cups.h>

void ChooseUserPrinter(const QString& name) {
    cups_dest_t* printers = nullptr;
    const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &printers);
    const QByteArray wanted = name.toUtf8();
    const cups_dest_t* chosen = cupsGetDest(wanted.constData(), nullptr, count, printers);
    if (chosen != nullptr && chosen->is_default == 0) {
        cupsSetDefaultDest(wanted.constData(), nullptr, count, printers);
        cupsSetDests2(CUPS_HTTP_DEFAULT, count, printers);
    }
    cupsFreeDests(count, printers);
}

#else

void ChooseUserPrinter(const QString& /*name*/) {}

#endif
