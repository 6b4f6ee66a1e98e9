#include "CellBlock.h"

#include "EditTextNumbers.h"
#include "Language.h"
#include "TransferRules.h"
#include "Worksheet.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace quend::model {

namespace {

/// Reads the cells of a text one after the other.
class CellReader {
public:
    explicit CellReader(QString text) : m_text(std::move(text)) {}

    bool AtEnd() const { return m_at >= m_text.size(); }

    /// A cell without what ends it.
    QString Cell() { return AtEnd() || m_text[m_at] != u'"' || !IsQuoted() ? Plain() : Quoted(); }

    /// Passes over a tab. False at the end of a row, which is passed over, too.
    bool HasNext() {
        if (AtEnd()) {
            return false;
        }
        const QChar end = m_text[m_at++];
        if (end == u'\r' && !AtEnd() && m_text[m_at] == u'\n') {
            ++m_at;
        }
        return end == u'\t';
    }

private:
    static bool Ends(QChar c) { return c == u'\t' || c == u'\n' || c == u'\r'; }

    /// A quote that is not closed before the end of a cell is one of the text.
    bool IsQuoted() const {
        static const QRegularExpression whole(
            QStringLiteral("\\G\"(?:[^\"]|\"\")*\"(?=[\\t\\n\\r]|$)"));
        return whole.match(m_text, m_at).hasMatch();
    }

    QString Plain() {
        const qsizetype from = m_at;
        while (!AtEnd() && !Ends(m_text[m_at])) {
            ++m_at;
        }
        return m_text.mid(from, m_at - from);
    }

    QString Quoted() {
        QString cell;
        for (++m_at; !AtEnd(); ++m_at) {
            if (m_text[m_at] == u'"' && (++m_at >= m_text.size() || m_text[m_at] != u'"')) {
                break;
            }
            cell += m_text[m_at];
        }
        return cell;
    }

    QString m_text;
    qsizetype m_at = 0;
};

/// The number without the locale's grouping; none where the groups are no groups, such as 1.5 in a
/// locale that groups by points: it must not become 15.
std::optional<QString> Ungrouped(QString number, const QLocale& locale) {
    number.replace(QChar(QChar::Nbsp), u' ').replace(QChar(0x202F), u' ');
    QString group = locale.groupSeparator();
    group.replace(QChar(QChar::Nbsp), u' ').replace(QChar(0x202F), u' ').replace(u'’', u'\'');
    number.replace(u'’', u'\'');
    if (group.isEmpty() || !number.contains(group)) {
        return number;
    }
    const QRegularExpression grouped(QStringLiteral("^[-+]?\\d{1,3}(?:%1\\d{2,3})*%1\\d{3}(?!\\d)")
                                         .arg(QRegularExpression::escape(group)));
    const QRegularExpressionMatch match = grouped.match(number);
    if (!match.hasMatch() || number.mid(match.capturedEnd()).contains(group)) {
        return std::nullopt;
    }
    return number.remove(group);
}

/// A number as spreadsheets show it, in the form in which it is typed.
std::optional<QString> TypedForm(QString cell, const FieldRule& rule, const QLocale& locale) {
    if (rule.kind == ValueKind::Amount) {
        for (const auto form : {QLocale::CurrencySymbol, QLocale::CurrencyIsoCode}) {
            const QString symbol = locale.currencySymbol(form);
            cell = symbol.isEmpty() ? cell : cell.remove(symbol);
        }
    } else if (rule.kind == ValueKind::Rate || rule.kind == ValueKind::Percent) {
        cell.remove(locale.percent());
    }
    cell = cell.trimmed();
    if (cell.size() > 2 && cell.startsWith(u'(') && cell.endsWith(u')')) {
        cell = u'-' + cell.mid(1, cell.size() - 2).trimmed();
    }
    cell.replace(QChar(0x2212), u'-'); // the minus sign of print
    return Ungrouped(std::move(cell), locale);
}

/// An apostrophe keeps a spreadsheet from taking the text for a formula; copied tables have it,
/// too.
QString Unguarded(const QString& cell) {
    const bool isGuarded =
        cell.size() > 1 && cell.front() == u'\'' && QStringView(u"=+-@").contains(cell[1]);
    return isGuarded ? cell.mid(1) : cell;
}

std::optional<FieldValue> ReadFlag(const QString& cell) {
    const auto isOneOf = [&](std::initializer_list<QString> words) {
        return std::ranges::any_of(words, [&](const QString& word) {
            return cell.compare(word, Qt::CaseInsensitive) == 0;
        });
    };
    if (isOneOf({GetResourceText(TextNumber::CellYes), QStringLiteral("1"), QStringLiteral("x"),
                 QStringLiteral("TRUE")})) {
        return true;
    }
    if (isOneOf(
            {GetResourceText(TextNumber::CellNo), QStringLiteral("0"), QStringLiteral("FALSE")})) {
        return false;
    }
    return std::nullopt;
}

} // namespace

std::vector<QStringList> CellsOf(const QString& text) {
    std::vector<QStringList> rows;
    CellReader reader(text);
    while (!reader.AtEnd()) {
        QStringList& row = rows.emplace_back();
        do {
            row.append(reader.Cell());
        } while (reader.HasNext());
    }
    return rows;
}

/// One cell may be copied with what ends it.
bool IsBlock(const QString& text, FieldId pastedInto) {
    QString cells = text;
    while (!cells.isEmpty() && QStringView(u"\t\r\n").contains(cells.back())) {
        cells.chop(1);
    }
    const std::vector<QStringList> rows = CellsOf(cells);
    const bool hasColumns =
        std::ranges::any_of(rows, [](const QStringList& row) { return row.size() > 1; });
    return hasColumns || (rows.size() > 1 && pastedInto != FieldId::Who);
}

std::optional<FieldValue> ReadCell(const Worksheet& worksheet, FieldId field, const QString& cell) {
    const FieldRule& rule = RuleOf(field);
    const FieldFormats& texts = worksheet.Texts();
    if (rule.kind == ValueKind::Text) {
        return WithLenderLines(Unguarded(cell));
    }
    const QString text = cell.trimmed();
    if (rule.kind == ValueKind::Flag) {
        return text.isEmpty() ? FieldValue(false) : ReadFlag(text);
    }
    if (rule.IsNumber()) {
        const auto number = TypedForm(Unguarded(text), rule, texts.Formats().Locale());
        return number ? texts.ReadTyped(field, *number, worksheet.Today()) : std::nullopt;
    }
    const auto value = texts.ReadTyped(field, text, worksheet.Today());
    const bool isUnknown = value && IsZero(*value) && !text.isEmpty(); // such as a frequency
    return isUnknown ? std::nullopt : value;
}

} // namespace quend::model
