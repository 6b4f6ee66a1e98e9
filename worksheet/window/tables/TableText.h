#pragma once

#include "WindowNames.h"

#include <QByteArray>
#include <QChar>
#include <QString>

#include <memory>
#include <vector>

class QAbstractItemModel;
class QItemSelectionModel;
class QLocale;
class QMimeData;

namespace quend::window {

/// What a table says about a cell besides Qt's roles, if it is copied or exported.
enum CellRole : int {
    NumberRole = Qt::UserRole, ///< a number as an exact decimal, with a point and digits 0 to 9;
                               ///< invalid: no number
    ValueTextRole,             ///< the text without the mark of the best; invalid: there is no mark
    FirstTableRole             ///< from here on a table has roles of its model
};

/// The heading of a column on one line.
QString HeadingIn(const QAbstractItemModel& model, int column);

/// The part of a table that is copied or exported.
struct TableCells {
    const QAbstractItemModel* model = nullptr;
    std::vector<int> columns{}; ///< of the model, in the order in which they are shown
    std::vector<int> rows{};
    bool headings = true;
    bool rowHeadings = false; ///< those of the rows, as texts in front of them
    /// Cells that it does not hold are left empty; null: none is.
    const QItemSelectionModel* selection = nullptr;
};

/// All rows of these columns, with headings.
TableCells WholeTable(const QAbstractItemModel& model, std::vector<int> columns);

/// The symbols of a file of values.
struct TextSymbols {
    QChar separator = u',';
    QChar decimal = u'.';
};

/// The decimal symbol of the locale; the separator is a semicolon where that is a comma, as
/// spreadsheets in such locales expect.
TextSymbols SymbolsOf(const QLocale& locale);

// Numbers (cells with a NumberRole) are written without symbol and grouping. A text that a
// spreadsheet might take for a formula gets an apostrophe in front, in every format.

/// Lines of cells separated by tabs. Tabs and line breaks in a text become blanks.
QString TabSeparated(const TableCells& cells, QChar decimal);

/// A table with the texts as shown, headings as such, numbers at the right. The best values are
/// bold and have no sign, so that a spreadsheet that takes this format has numbers, too.
QString HtmlTable(const TableCells& cells);

/// Both, for the clipboard.
std::unique_ptr<QMimeData> TableMime(const TableCells& cells, QChar decimal);

/// A file of values: UTF-8 with byte order mark, a line ends with CR LF, texts that contain the
/// separator, a quote or a line break are quoted.
QByteArray SeparatedValues(const TableCells& cells, TextSymbols symbols);

} // namespace quend::window
