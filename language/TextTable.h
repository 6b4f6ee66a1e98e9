#pragma once

#include <QString>
#include <QStringView>

#include <map>
#include <vector>

namespace quend::language {

/// What is wrong with a table of texts, and where.
struct TextTableFault {
    int line; ///< counted from 1; 0 for a fault of the whole table
    QString description;

    friend bool operator==(const TextTableFault&, const TextTableFault&) = default;
};

/// A table of numbered texts as translators write it:
///
///     # a note
///     language = English
///     tag = engl
///     201 = Loan &Name:
///
/// In a text "\n" is a new line and "\\" one backslash; blanks around the text are ignored. The
/// table does not interpret access keys or "%1".
class TextTable {
public:
    /// Reads a whole table. Never throws: an invalid line is skipped and listed in Faults().
    static TextTable Parse(QStringView source);

    /// In order of their lines, faults of the whole table last; empty for a valid table.
    const std::vector<TextTableFault>& Faults() const { return m_faults; }

    /// The text of this number; a null QString if the table lacks it.
    QString Text(int id) const;
    /// All texts by their numbers, which are 1 or more.
    const std::map<int, QString>& Texts() const { return m_texts; }

private:
    void ReadLine(int line, QStringView content);
    void ReadHeader(int line, QStringView key, const QString& value);
    void ReadText(int line, QStringView key, const QString& text);
    void AddFault(int line, const QString& description);

    std::vector<TextTableFault> m_faults;
    std::map<int, QString> m_texts;
    QString m_languageName;
    QString m_tag;
};

} // namespace quend::language
