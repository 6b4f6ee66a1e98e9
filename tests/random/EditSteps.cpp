// The Edit menu: whole offers, blocks of cells, and the table for a spreadsheet.

#include "EditTextNumbers.h"
#include "Language.h"
#include "QuendNames.h"
#include "RandomUser.h"
#include "StepTexts.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include <array>

using namespace Qt::StringLiterals;

/// Clears, duplicates or moves the offer of the row with the focus, which the focus follows.
void RandomUser::UseRow(unsigned a, unsigned b) {
    static constexpr std::array entries{"mnuEditClearOffer", "mnuEditDuplicateOffer",
                                        "mnuEditMoveUp", "mnuEditMoveDown"};
    if (!m_edited || m_edited->row == Field::NoRow) {
        return;
    }
    const std::size_t which = a % entries.size();
    const View before = Look();
    if (which < 2 || b % 2 == 0) {
        Trigger(entries.at(which));
    } else {
        Press(which == 2 ? Qt::Key_Up : Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    }
    if (!Commit(before)) {
        return;
    }
    const Field field = *m_edited;
    if (which == 0) {
        m_model.ClearOffer(field.row.value);
    } else if (which == 1) {
        if (const auto copy = m_model.DuplicateOffer(field.row.value)) {
            Reenter();
            Refocus({FieldId::InterestRate, Row{*copy}});
        }
    } else if (const auto row = m_model.MoveOffer(field.row.value, which == 2 ? -1 : 1)) {
        Reenter();
        Refocus({field.id, Row{*row}});
    }
    Reenter();
}

/// Whether the clipboard's text is several cells for a field.
bool RandomUser::IsBlockFor(std::optional<Field> field, const QString& text) {
    QString cells = text;
    while (!cells.isEmpty() && u"\t\r\n"_s.contains(cells.back())) {
        cells.chop(1);
    }
    const bool hasLines = cells.contains(u'\n') || cells.contains(u'\r');
    return field && field->row != Field::NoRow &&
           (cells.contains(u'\t') || (hasLines && field->id != FieldId::Who));
}

void RandomUser::PasteInModel(const QString& text, const View& before) {
    if (!Commit(before)) {
        return;
    }
    const bool isInRow = m_edited && m_edited->row != Field::NoRow;
    const Field from = isInRow ? *m_edited : Field{FieldId::Points, Row{0}};
    if (!text.isEmpty() && !m_model.PasteCells(from, CellsIn(text))) {
        m_model.Expect(TextNumber::CellsNotTaken);
    }
    Reenter();
}

/// Pastes a block as spreadsheets copy it, or whatever is on the clipboard.
void RandomUser::PasteCells(unsigned a, unsigned b) {
    if (b % 8 != 0) {
        QGuiApplication::clipboard()->setText(BlockText(b / 8, m_model.forms.Point()));
    }
    const QString text = QGuiApplication::clipboard()->text();
    const View before = Look();
    if (a % 2 == 0 && IsBlockFor(m_edited, text)) {
        Press(Qt::Key_V, Qt::ControlModifier);
    } else {
        Trigger("mnuEditPasteCells");
    }
    PasteInModel(text, before);
}

/// The table has the rows up to the last one used.
void RandomUser::CopyTable(unsigned a, unsigned b) {
    const View before = Look();
    QGuiApplication::clipboard()->setText(u"none"_s);
    if (a % 2 == 0) {
        Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    } else {
        Trigger("mnuEditCopyTable");
    }
    if (!Commit(before)) {
        return;
    }
    auto rows = static_cast<int>(m_model.offers.size());
    while (rows > 0 && m_model.IsBlank(rows - 1)) {
        --rows;
    }
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    if (copied->html().count(u"<tr"_s) != rows + 1) {
        Complain(u"the copied table has not %1 rows: %2"_s.arg(rows).arg(copied->html()));
    }
    QGuiApplication::clipboard()->setText(AnyText(b, m_model.forms.Point()));
}
