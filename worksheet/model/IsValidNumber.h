#pragma once

#include <QChar>
#include <QStringView>

namespace quend::model {

/// Whether a text has the form of a number: digits, one sign in front, one decimal symbol with at
/// most `decimals` digits after it (0 forbids the symbol). The empty text is a number (zero); so
/// are a lone sign and a lone symbol. Checks the form only, never the size.
bool IsValidNumber(QStringView text, int decimals, QChar decimalSeparator);

} // namespace quend::model
