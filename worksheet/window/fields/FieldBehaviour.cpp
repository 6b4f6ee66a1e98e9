#include "FieldBehaviour.h"

#include "ControlMap.h"
#include "DatePicker.h"
#include "FailureReport.h"
#include "Language.h"
#include "MessageQueue.h"
#include "OfferRows.h"
#include "TextNumbers.h"
#include "TypedDate.h"
#include "Worksheet.h"

#include <QLineEdit>

#include <utility>

namespace quend::window {

FieldBehaviour::FieldBehaviour(Worksheet& worksheet, const ControlMap& controls, OfferRows& rows,
                               MessageQueue& messages)
    : m_worksheet(&worksheet), m_controls(&controls), m_rows(&rows), m_messages(&messages) {}

QLineEdit& FieldBehaviour::EditOf(Field field) const {
    if (const auto* picker = m_controls->ControlOf<DatePicker>(field)) {
        return picker->Edit();
    }
    return *m_controls->ControlOf<QLineEdit>(field);
}

void FieldBehaviour::EnterRow(Row row) {
    if (row == m_rows->HighestOfferRow()) {
        m_rows->AddOfferRow();
    }
    m_rows->ShowOfferRow(row);
}

void FieldBehaviour::Enter(Field field) {
    if (field.row != Field::NoRow) {
        EnterRow(field.row);
    }
    m_entryText = m_worksheet->EntryText(field);
    EditOf(field).setText(m_entryText);
    EditOf(field).selectAll();
}

bool FieldBehaviour::Allows(Field field, QChar key) const {
    return m_worksheet->Texts().AllowsKey(field.id, key);
}

/// A text that the program wrote is never refused or read back: 30 months show as 2.5 years, and
/// passing through the field must not turn them into two years. Their stored value is stored again,
/// with all recalculations.
bool FieldBehaviour::Check(Field field) {
    const QString text = EditOf(field).text();
    m_read.reset();
    if (text == m_entryText) {
        return true;
    }
    try {
        m_read = m_worksheet->Read(field.id, text);
    } catch (const Failure& failure) { // refuses the field instead of ending its handler
        Refuse(field, FailureMessage(failure));
        return false;
    }
    if (!m_read) {
        Refuse(field, RefusalOf(field, text));
    }
    return m_read.has_value();
}

QString FieldBehaviour::RefusalOf(Field field, const QString& text) const {
    const FieldRule& rule = RuleOf(field.id);
    if (rule.IsNumber()) {
        return GetResourceText(TextNumber::NumberRefused) + NumberPicture(rule.decimals);
    }
    return GetResourceText(TextNumber::DateRefused)
        .arg(Shortened(text), m_worksheet->Texts().Formats().ShortDate(m_worksheet->Today()),
             QString::number(FirstTypedYear), QString::number(LastTypedYear));
}

void FieldBehaviour::Refuse(Field field, const QString& message) {
    m_messages->Post(message);
    EditOf(field).selectAll();
}

void FieldBehaviour::Leave(Field field) {
    const std::optional<FieldValue> read = std::exchange(m_read, std::nullopt);
    if (!read) {
        m_worksheet->StoreAgain(field, m_worksheet->Value(field));
    } else if (RuleOf(field.id).kind == ValueKind::Date) {
        m_worksheet->StoreAgain(field, *read); // a step by an arrow key has stored its date
    } else {
        m_worksheet->Store(field, *read);
    }
}

bool FieldBehaviour::MoveByArrow(Field field, int key) {
    if (key != Qt::Key_Down && key != Qt::Key_Up) {
        return false;
    }
    const Row target{field.row.value + (key == Qt::Key_Down ? 1 : -1)};
    if (target >= Row{0} && target <= m_rows->HighestOfferRow()) {
        m_controls->ControlOf({field.id, target})->setFocus(Qt::OtherFocusReason);
    }
    return true;
}

} // namespace quend::window
