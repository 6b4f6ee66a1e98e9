#include "FieldDiscipline.h"

#include "ControlMap.h"
#include "FailureReport.h"
#include "Language.h"
#include "Messages.h"
#include "OfferRows.h"
#include "TextNumbers.h"
#include "Worksheet.h"

#include <QLineEdit>

FieldDiscipline::FieldDiscipline(Worksheet& worksheet, const ControlMap& controls, OfferRows& rows,
                                 Messages& messages)
    : m_worksheet(&worksheet), m_controls(&controls), m_rows(&rows), m_messages(&messages) {}

QLineEdit& FieldDiscipline::EditOf(Field field) const {
    return *m_controls->ControlOf<QLineEdit>(field);
}

void FieldDiscipline::EnterRow(Row row) {
    if (row == m_rows->HighestOfferRow()) {
        m_rows->AddOfferRow();
    }
    m_rows->ShowOfferRow(row);
}

void FieldDiscipline::Enter(Field field) {
    if (field.row != Field::NoRow) {
        EnterRow(field.row);
    }
    m_entryText = m_worksheet->EntryText(field);
    EditOf(field).setText(m_entryText);
    EditOf(field).selectAll();
}

bool FieldDiscipline::Allows(Field field, QChar key) const {
    if (!key.isPrint() || (key >= u'0' && key <= u'9')) {
        return true;
    }
    return RuleOf(field.id).separatorKey &&
           key == m_worksheet->Texts().Formats().DecimalSeparator();
}

/// A text as the program wrote it is never refused and never read back: 30 months show as 2.5
/// years, and passing through the field must not make two years of them.
bool FieldDiscipline::Check(Field field) {
    const QString text = EditOf(field).text();
    if (text == m_entryText) {
        return true;
    }
    try {
        if (m_worksheet->Accepts(field, text)) {
            return true;
        }
        Refuse(field, GetResourceText(TextNumber::NumberRefused) +
                          NumberPicture(RuleOf(field.id).decimals));
    } catch (const Failure& failure) {
        Refuse(field, FailureText(failure));
    }
    return false;
}

void FieldDiscipline::Refuse(Field field, const QString& message) {
    m_messages->Post(message);
    EditOf(field).selectAll();
}

void FieldDiscipline::Leave(Field field) {
    const QString text = EditOf(field).text();
    if (text == m_entryText) {
        m_worksheet->Show(field);
    } else {
        m_worksheet->StoreNumber(field, text);
    }
}

bool FieldDiscipline::MoveByArrow(Field field, int key) {
    if (key != Qt::Key_Down && key != Qt::Key_Up) {
        return false;
    }
    const Row target{field.row.value + (key == Qt::Key_Down ? 1 : -1)};
    if (target >= Row{0} && target <= m_rows->HighestOfferRow()) {
        m_controls->ControlOf({field.id, target})->setFocus(Qt::OtherFocusReason);
    }
    return true;
}
