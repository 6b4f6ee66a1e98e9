#pragma once

#include <QString>
#include <QStringList>

/// What a loan is for is kept as a letter and shown as a text of the language in use.
/// An unknown letter or text gives the empty one.
QString LoanTypeCodeToText(const QString& code);
QString LoanTypeTextToCode(const QString& text);

/// The letter of a text of any language there is; empty for a text that none of them knows.
QString LoanTypeTextToCodeInAnyLanguage(const QString& text);

/// The texts in the order in which they are offered to choose from.
QStringList LoanTypeTexts();
