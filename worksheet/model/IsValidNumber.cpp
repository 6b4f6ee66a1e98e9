#include "IsValidNumber.h"

namespace quend::model {

bool IsValidNumber(QStringView text, int decimals, QChar decimalSeparator) {
    const qsizetype separator = text.indexOf(decimalSeparator);
    int decimalDigits = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c >= u'0' && c <= u'9') {
            if (separator >= 0 && separator < i && ++decimalDigits > decimals) {
                return false;
            }
        } else if (c == u'-' || c == u'+') {
            if (i != 0) {
                return false;
            }
        } else if (c != decimalSeparator || decimals < 1 || separator < i) {
            return false;
        }
    }
    return true;
}

} // namespace quend::model
