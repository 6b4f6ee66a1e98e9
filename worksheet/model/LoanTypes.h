#pragma once

#include "ModelNames.h"
#include "Quantities.h"

#include <QString>
#include <QStringList>

namespace quend::model {

/// The code of the purpose of a loan.
using LoanTypeCode = StoredCode<struct LoanTypeCodeKind>;

/// The purpose of a loan is stored as a letter and shown as a text of the current language. An
/// unknown letter or text gives none.
QString LoanTypeCodeToText(const LoanTypeCode& code);
LoanTypeCode LoanTypeTextToCode(const QString& text);

/// The text that is the same in every language, for what leaves the program.
QString LoanTypeCodeToEnglish(const LoanTypeCode& code);

/// The letter for a text of any installed language; none if no language has the text.
LoanTypeCode LoanTypeTextToCodeInAnyLanguage(const QString& text);

/// The texts in the order of the list.
QStringList LoanTypeTexts();

} // namespace quend::model
