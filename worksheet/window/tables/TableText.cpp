#include "TableText.h"

#include <QAbstractItemModel>
#include <QFont>
#include <QItemSelectionModel>
#include <QLocale>
#include <QMimeData>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

namespace quend::window {

namespace {

/// Blanks, controls and invisible characters, which a spreadsheet may strip before it reads on.
bool IsPassedOver(QChar c) {
    return c.isSpace() || c.category() == QChar::Other_Control ||
           c.category() == QChar::Other_Format;
}

/// The wide forms count, too: spreadsheets for East Asian languages take them.
bool BeginsFormula(QChar c) { return QStringView(u"=+-@\uFF1D\uFF0B\uFF0D\uFF20").contains(c); }

QString WithoutFormula(QString text) {
    const auto* const first = std::ranges::find_if_not(std::as_const(text), IsPassedOver);
    const bool isFormula = first != text.cend() && BeginsFormula(*first);
    const bool isCut = text.startsWith(u'\t') || text.startsWith(u'\r');
    return isFormula || isCut ? text.prepend(u'\'') : text;
}

bool IsLeftOut(const TableCells& cells, const QModelIndex& index) {
    return cells.selection != nullptr && !cells.selection->isSelected(index);
}

QString ShownText(const QModelIndex& index) {
    const QVariant unmarked = index.data(ValueTextRole);
    return WithoutFormula((unmarked.isValid() ? unmarked : index.data()).toString());
}

QString Heading(const TableCells& cells, int column) {
    return WithoutFormula(HeadingIn(*cells.model, column));
}

QString RowHeading(const TableCells& cells, int row) {
    return WithoutFormula(cells.model->headerData(row, Qt::Vertical).toString());
}

QString PlainText(const QModelIndex& index, QChar decimal) {
    const QVariant number = index.data(NumberRole);
    return number.isValid() ? number.toString().replace(u'.', decimal) : ShownText(index);
}

/// Each line ends as given; `adapt` makes a text fit between the separators.
QString TableLines(const TableCells& cells, TextSymbols symbols, QLatin1StringView end,
                   const std::function<QString(const QString&)>& adapt) {
    QString lines;
    const auto add = [&](const QString& rowHeading,
                         const std::function<QString(int column)>& textOf) {
        QStringList texts;
        if (cells.rowHeadings) {
            texts.append(adapt(rowHeading));
        }
        for (const int column : cells.columns) {
            texts.append(adapt(textOf(column)));
        }
        lines += texts.join(symbols.separator) + end;
    };
    if (cells.headings) {
        add(QString(), [&](int column) { return Heading(cells, column); });
    }
    for (const int row : cells.rows) {
        add(RowHeading(cells, row), [&](int column) {
            const QModelIndex index = cells.model->index(row, column);
            return IsLeftOut(cells, index) ? QString() : PlainText(index, symbols.decimal);
        });
    }
    return lines;
}

/// A text in one cell of one line.
QString OnOneLine(QString text) {
    std::ranges::replace_if(
        text,
        [](QChar c) {
            return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
                   c == QChar::ParagraphSeparator;
        },
        QChar::Space);
    return text;
}

QString Quoted(QString text, QChar separator) {
    text.remove(QChar::Null);
    const bool isPlain = std::ranges::none_of(text, [separator](QChar c) {
        return c == separator || c == u'"' || c == u'\n' || c == u'\r';
    });
    return isPlain ? text : u'"' + text.replace(u'"', QLatin1StringView("\"\"")) + u'"';
}

/// Without what no document may contain.
QString Escaped(QString text) {
    text.removeIf([](QChar c) {
        return c.category() == QChar::Other_Control && c != u'\t' && c != u'\n' && c != u'\r';
    });
    return text.toHtmlEscaped();
}

QString HtmlCell(QLatin1StringView tag, const QVariant& alignment, const QString& content) {
    const QString side = alignment.value<Qt::Alignment>().testFlag(Qt::AlignRight)
                             ? QStringLiteral(" align=\"right\"")
                             : QStringLiteral(" align=\"left\"");
    return QStringLiteral("<%1%2>%3</%1>").arg(tag, side, content);
}

QString HtmlHeadings(const TableCells& cells) {
    QString line = cells.rowHeadings ? HtmlCell(QLatin1StringView("th"), {}, QString()) : QString();
    for (const int column : cells.columns) {
        const QVariant side =
            cells.model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        line += HtmlCell(QLatin1StringView("th"), side, Escaped(Heading(cells, column)));
    }
    return QStringLiteral("<tr>%1</tr>\n").arg(line);
}

QString HtmlRow(const TableCells& cells, int row) {
    QString line = cells.rowHeadings
                       ? HtmlCell(QLatin1StringView("th"), {}, Escaped(RowHeading(cells, row)))
                       : QString();
    for (const int column : cells.columns) {
        const QModelIndex index = cells.model->index(row, column);
        const bool isBold = index.data(Qt::FontRole).value<QFont>().bold();
        const QString text = IsLeftOut(cells, index) ? QString() : Escaped(ShownText(index));
        line += HtmlCell(QLatin1StringView("td"), index.data(Qt::TextAlignmentRole),
                         isBold ? QStringLiteral("<b>%1</b>").arg(text) : text);
    }
    return QStringLiteral("<tr>%1</tr>\n").arg(line);
}

} // namespace

QString HeadingIn(const QAbstractItemModel& model, int column) {
    const QVariant spoken = model.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole);
    return (spoken.isValid() ? spoken : model.headerData(column, Qt::Horizontal)).toString();
}

TableCells WholeTable(const QAbstractItemModel& model, std::vector<int> columns) {
    TableCells cells{.model = &model, .columns = std::move(columns)};
    cells.rows.resize(static_cast<std::size_t>(model.rowCount()));
    std::iota(cells.rows.begin(), cells.rows.end(), 0);
    return cells;
}

TextSymbols SymbolsOf(const QLocale& locale) {
    const QChar decimal = locale.decimalPoint().front();
    return {.separator = decimal == u',' ? u';' : u',', .decimal = decimal};
}

QString TabSeparated(const TableCells& cells, QChar decimal) {
    return TableLines(cells, {.separator = u'\t', .decimal = decimal}, QLatin1StringView("\n"),
                      OnOneLine);
}

QString HtmlTable(const TableCells& cells) {
    QString rows = cells.headings ? HtmlHeadings(cells) : QString();
    for (const int row : cells.rows) {
        rows += HtmlRow(cells, row);
    }
    // The clipboard of some systems has no encoding for it.
    return QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>\n") + rows +
           QStringLiteral("</table></body></html>\n");
}

std::unique_ptr<QMimeData> TableMime(const TableCells& cells, QChar decimal) {
    auto data = std::make_unique<QMimeData>();
    data->setText(TabSeparated(cells, decimal));
    data->setHtml(HtmlTable(cells));
    return data;
}

QByteArray SeparatedValues(const TableCells& cells, TextSymbols symbols) {
    const auto quoted = [&](const QString& text) { return Quoted(text, symbols.separator); };
    return (QChar(QChar::ByteOrderMark) +
            TableLines(cells, symbols, QLatin1StringView("\r\n"), quoted))
        .toUtf8();
}

} // namespace quend::window
