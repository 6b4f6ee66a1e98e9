#include "ValueTransfer.h"

#include "ControlMap.h"
#include "FieldBehaviour.h"
#include "FocusTranslator.h"
#include "TransferRules.h"
#include "Worksheet.h"

#include <QLineEdit>
#include <QScopeGuard>

namespace quend::window {

ValueTransfer::ValueTransfer(Worksheet& worksheet, const ControlMap& controls,
                             FocusTranslator& focus, FieldBehaviour& behaviour)
    : m_worksheet(&worksheet), m_controls(&controls), m_focus(&focus), m_behaviour(&behaviour) {}

QLineEdit& ValueTransfer::EditOf(Field field) const {
    return *m_controls->ControlOf<QLineEdit>(field);
}

bool ValueTransfer::IsBeingTyped(Field field) const {
    return RuleOf(field.id).IsNumber() && m_focus->Edited() == field &&
           EditOf(field).text() != m_worksheet->EntryText(field);
}

QString ValueTransfer::Give(Field field) {
    if (IsBeingTyped(field) && !m_focus->Commit()) {
        return {};
    }
    return DraggedText(*m_worksheet, field, EditOf(field).text());
}

bool ValueTransfer::CanGive(Field field) const {
    const QString shown = EditOf(field).text();
    return !shown.isEmpty() || !DraggedText(*m_worksheet, field, shown).isEmpty();
}

bool ValueTransfer::MayTake(Field field, const QString& text) const {
    return MayDrop(*m_worksheet, field.id, text);
}

bool ValueTransfer::Take(Field field, const QString& text) {
    const auto edited = m_focus->Edited();
    const bool sameRow = edited && edited->row == field.row;
    if (sameRow && edited != field && !m_focus->Commit()) {
        return false;
    }
    const auto value = ReadDropped(*m_worksheet, field.id, text);
    const auto settle = qScopeGuard([&] {
        // Recalculating the row may have changed the text in the field being edited.
        if (sameRow) {
            m_focus->Reenter();
        } else {
            m_behaviour->EnterRow(field.row);
        }
    });
    m_worksheet->Store(field, value);
    return true;
}

} // namespace quend::window
