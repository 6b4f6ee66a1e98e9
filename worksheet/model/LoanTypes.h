#pragma once

#include <QString>
#include <QStringList>

namespace quend::model {

/// The purpose of a loan is stored as a letter and shown as a text of the current language. An
/// unknown letter or text gives the empty text.
QString LoanTypeCodeToText(const QString& code);
QString LoanTypeTextToCode(const QString& text);

/// The letter for a text of any installed language; empty if no language has the text.
QString LoanTypeTextToCodeInAnyLanguage(const QString& text);

/// The texts in the order of the list.
QStringList LoanTypeTexts();

} // namespace quend::model
