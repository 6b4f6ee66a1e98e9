#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quend::language {

class LanguageComponent;

/// The metadata of a component, readable without loading it.
struct LanguageLabel {
    QString name; ///< such as "Español"
    QString tag;  ///< such as "span"
};

/// Finds and loads component files. Does not decide which language to use.
namespace ComponentFile {

/// The name of a component of a program: "Loan" and "40a" give "Loan40a.Resources".
QString ComponentName(const QString& programName, const QString& identifier);

/// The full path of the component's file in this folder, with or without a library's extension and
/// in any case; an exact match takes precedence. Empty if there is none.
QString Find(const QString& folder, const QString& component);

/// The hexadecimal identifiers, in lower case, of all the program's component files in this folder,
/// lowest first.
QStringList Identifiers(const QString& folder, const QString& programName);

/// No value if the file is damaged or not a language component. Runs none of the file's code.
std::optional<LanguageLabel> Label(const QString& file);

/// The component's texts, which stay in memory until the process ends; nullptr if the file is
/// missing, damaged or not a language component.
const LanguageComponent* Load(const QString& file);

} // namespace ComponentFile

} // namespace quend::language
