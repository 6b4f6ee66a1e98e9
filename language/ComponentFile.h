#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class LanguageComponent;

/// What a component says of itself without being loaded.
struct LanguageLabel {
    QString name; ///< such as "Español"
    QString tag;  ///< such as "span"
};

/// Finding and loading component files. Which language they stand for is not decided here.
namespace ComponentFile {

/// The name under which a program asks for a component: "Loan", "40a" make "Loan40a.Resources".
QString ComponentName(const QString& programName, const QString& identifier);

/// The full path of the component's file in this folder, with a library's ending or without one and
/// in any case; the file in the very case asked for wins. Empty when there is none.
QString Find(const QString& folder, const QString& component);

/// The hexadecimal identifiers, small letters, of all the program's component files in this folder,
/// lowest first.
QStringList Identifiers(const QString& folder, const QString& programName);

/// No value when the file is damaged or no language component. Runs none of the file's code.
std::optional<LanguageLabel> Label(const QString& file);

/// The component's texts, which stay in memory to the end of the process; nullptr when the file is
/// missing, damaged or no language component.
const LanguageComponent* Load(const QString& file);

} // namespace ComponentFile
