#include "TableClipboard.h"

#include "Captions.h"
#include "CellBlock.h"
#include "ControlMap.h"
#include "EditTextNumbers.h"
#include "FailureReport.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MessageQueue.h"
#include "OfferColumns.h"
#include "OfferRows.h"
#include "StepTexts.h"
#include "TableText.h"
#include "Worksheet.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QStandardItemModel>

#include <algorithm>
#include <numeric>

namespace quend::window {

namespace {

/// The heading of a column of the copied table: the tick box and the points have one each.
QString HeadingOf(const Loan& window, FieldId field) {
    if (field == FieldId::FinancePoints) {
        return GetResourceText(TextNumber::CellFinanced);
    }
    if (field == FieldId::Points) {
        return GetResourceText(TextNumber::CellPoints);
    }
    const auto heading = std::ranges::find(OfferHeadings(), field, &OfferHeading::first);
    const auto* control = window.findChild<QWidget*>(QString::fromLatin1(heading->control));
    return WithoutAccessKey(control->property("text").toString());
}

QString ShownIn(const QWidget& control) {
    if (const auto* box = qobject_cast<const QCheckBox*>(&control)) {
        return box->isChecked() ? GetResourceText(TextNumber::CellYes) : QString();
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&control)) {
        return list->currentText();
    }
    const auto* edit = qobject_cast<const QLineEdit*>(&control);
    return edit != nullptr ? edit->text() : QString();
}

QString ClippedText() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr ? data->text() : QString();
}

std::vector<FieldId> FieldsOfRow() {
    std::vector<FieldId> fields;
    for (const FieldRule& rule : OfferFields()) {
        fields.push_back(rule.id);
    }
    return fields;
}

bool IsEntry(FieldId field) { return RuleOf(field).access == Access::Input; }

} // namespace

/// Where the columns of a block go.
struct TableClipboard::Block {
    std::vector<QStringList> rows;
    std::vector<FieldId> fields; ///< of the columns; further ones have no field
};

TableClipboard::TableClipboard(Loan& window, const ControlMap& controls)
    : m_window(&window), m_controls(&controls) {
    const Ui::Loan& form = window.Form();
    const auto wire = [this](QAction& entry, void (TableClipboard::*handler)()) {
        entry.setEnabled(true);
        connect(&entry, &QAction::triggered, this, [this, handler] {
            m_window->Report().Guard([&] {
                if (m_window->Commit()) {
                    (this->*handler)();
                }
            });
        });
    };
    wire(*form.mnuEditCopyTable, &TableClipboard::mnuEditCopyTable_Click);
    wire(*form.mnuEditPasteCells, &TableClipboard::mnuEditPasteCells_Click);
}

void TableClipboard::Watch(Row row) {
    for (const FieldId field : FieldsOfRow()) {
        m_controls->ControlOf({field, row})->installEventFilter(this);
    }
}

/// Installed after the others, it gets the keys first: a block is no text for one field.
bool TableClipboard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste)) {
        return false;
    }
    const auto field = m_controls->FieldOf(watched);
    if (!field || !IsEntry(field->id) || !IsBlock(ClippedText(), field->id)) {
        return false;
    }
    m_window->Report().Guard([&] {
        if (m_window->Commit()) {
            Paste(*field, ClippedText());
        }
    });
    return true;
}

/// The rows up to the last used one, as they show.
void TableClipboard::mnuEditCopyTable_Click() {
    m_window->ShowEdited();
    Worksheet& sheet = m_window->GetWorksheet();
    int rows = m_window->Rows().HighestOfferRow().value + 1;
    while (rows > 0 && sheet.IsBlank(sheet.OfferIndexOfRow(Row{rows - 1}))) {
        --rows;
    }
    const std::vector<FieldId> fields = FieldsOfRow();
    QStandardItemModel table(rows, static_cast<int>(fields.size()));
    for (int column = 0; column < table.columnCount(); ++column) {
        const FieldId field = fields.at(static_cast<std::size_t>(column));
        const QVariant side = RuleOf(field).IsNumber() || RuleOf(field).kind == ValueKind::Date
                                  ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter)
                                  : QVariant();
        table.setHeaderData(column, Qt::Horizontal, HeadingOf(*m_window, field));
        table.setHeaderData(column, Qt::Horizontal, side, Qt::TextAlignmentRole);
        for (int row = 0; row < rows; ++row) {
            auto* item = new QStandardItem(ShownIn(*m_controls->ControlOf({field, Row{row}})));
            item->setData(side, Qt::TextAlignmentRole);
            table.setItem(row, column, item);
        }
    }
    m_window->Reenter();
    std::vector<int> columns(fields.size());
    std::iota(columns.begin(), columns.end(), 0);
    const QChar decimal = sheet.Texts().Formats().DecimalSeparator();
    QGuiApplication::clipboard()->setMimeData(
        TableMime(WholeTable(table, columns), decimal).release());
}

/// Without a field that takes cells the block begins at the first row.
void TableClipboard::mnuEditPasteCells_Click() {
    const QString text = ClippedText();
    const auto focused = m_controls->FieldOf(m_window->focusWidget());
    const bool isInRow = focused && focused->row != Field::NoRow && IsEntry(focused->id);
    if (!text.isEmpty()) {
        Paste(isInRow ? *focused : Field{FieldId::Points, Row{0}}, text);
    }
}

TableClipboard::Block TableClipboard::BlockOf(Field from, const QString& text) const {
    Block block{CellsOf(text), {}};
    const std::vector<FieldId> all = FieldsOfRow();
    QStringList headings;
    for (const FieldId field : all) {
        headings.append(HeadingOf(*m_window, field));
    }
    const bool hasHeadings =
        !block.rows.empty() && std::ranges::all_of(block.rows.front(), [&](const QString& cell) {
            return headings.contains(cell.trimmed());
        });
    if (hasHeadings) {
        for (const QString& cell : block.rows.front()) {
            block.fields.push_back(
                all.at(static_cast<std::size_t>(headings.indexOf(cell.trimmed()))));
        }
        block.rows.erase(block.rows.begin());
    } else {
        std::copy_if(std::ranges::find(all, from.id), all.end(), std::back_inserter(block.fields),
                     IsEntry);
    }
    return block;
}

void TableClipboard::Paste(Field from, const QString& text) {
    Worksheet& sheet = m_window->GetWorksheet();
    const Block block = BlockOf(from, text);
    QStringList refused;
    {
        const Worksheet::Step step(
            sheet, StepName{StepKind::PasteCells, from.id, sheet.OfferIndexOfRow(from.row)});
        Row row = from.row;
        for (const QStringList& cells : block.rows) {
            m_window->Rows().GrowTo(row);
            StoreRow(block, row, cells, refused);
            ++row.value;
        }
        m_window->Rows().GrowTo(row);
    }
    m_window->Reenter();
    if (!refused.isEmpty()) {
        Report(refused);
    }
}

void TableClipboard::StoreRow(const Block& block, Row row, const QStringList& cells,
                              QStringList& refused) {
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const auto column = static_cast<std::size_t>(i);
        const bool hasField =
            column < block.fields.size() && row <= m_window->Rows().HighestOfferRow();
        if (!hasField) {
            if (!cells[i].trimmed().isEmpty()) {
                refused.append(GetResourceText(TextNumber::CellWithoutField).arg(cells[i]));
            }
        } else if (IsEntry(block.fields[column])) {
            StoreCell({block.fields[column], row}, cells[i], refused);
        }
    }
}

/// A failure to compute is one of the cell, which keeps its value as if it was typed.
void TableClipboard::StoreCell(Field field, const QString& cell, QStringList& refused) {
    Worksheet& sheet = m_window->GetWorksheet();
    const QString place =
        TextOf({StepKind::Field, field.id, sheet.OfferIndexOfRow(field.row)}, field.row.value + 1);
    try {
        if (const auto value = ReadCell(sheet, field.id, cell)) {
            sheet.Store(field, *value);
        } else {
            refused.append(GetResourceText(TextNumber::CellRefused).arg(Shortened(cell), place));
        }
    } catch (const Failure& failure) { // the other cells are stored
        refused.append(GetResourceText(TextNumber::CellFailed)
                           .arg(Shortened(cell), place, FailureMessage(failure)));
    }
}

/// So many that a message fits on any screen.
void TableClipboard::Report(const QStringList& refused) const {
    constexpr qsizetype most = 8;
    QStringList lines = refused.first(std::min(most, refused.size()));
    if (refused.size() == most + 1) {
        lines.append(refused.last());
    } else if (refused.size() > most) {
        lines.append(GetResourceText(TextNumber::MoreCells).arg(refused.size() - most));
    }
    m_window->GetMessages().Post(GetResourceText(TextNumber::CellsNotTaken) +
                                 QStringLiteral("\n\n") + lines.join(u'\n'));
}

} // namespace quend::window
