#include "WindowDisplay.h"

#include "CalendarDate.h"
#include "Captions.h"
#include "ControlMap.h"
#include "DatePicker.h"
#include "FieldEdits.h"
#include "Language.h"
#include "LenderEdit.h"
#include "LoanNameBox.h"

#include <QCheckBox>
#include <QComboBox>

#include <utility>

namespace quend::window {

WindowDisplay::WindowDisplay(const ControlMap& controls, Notices notices)
    : m_controls(&controls), m_notices(std::move(notices)) {}

void WindowDisplay::ShowText(Field field, const QString& text) {
    if (auto* lender = m_controls->ControlOf<LenderEdit>(field)) {
        lender->ShowText(text);
    } else if (auto* edit = m_controls->ControlOf<QLineEdit>(field)) {
        edit->setText(text);
        edit->setCursorPosition(0); // the leading digits of an amount matter most
    } else if (auto* list = m_controls->ControlOf<QComboBox>(field)) {
        if (list->isEditable()) {
            list->setCurrentIndex(-1); // only the text counts, not the entry that it came from
            list->setEditText(text);
        } else {
            list->setCurrentIndex(text.isEmpty() ? -1 : list->findText(text));
        }
    }
    if (field.id == FieldId::PandI) {
        m_notices.offerShown();
    }
    m_notices.changed();
}

void WindowDisplay::ShowTicked(Field field, bool ticked) {
    if (auto* box = m_controls->ControlOf<QCheckBox>(field)) {
        box->setChecked(ticked);
    }
    m_notices.changed();
}

void WindowDisplay::ShowDate(Field field, Date date) {
    if (auto* picker = m_controls->ControlOf<DatePicker>(field)) {
        picker->ShowDate(ToCalendar(date));
    }
    m_notices.changed();
}

void WindowDisplay::ShowSortOrder(SortOrder order) {
    m_notices.sorted(order);
    m_notices.changed();
}

void WindowDisplay::ShowMark(Field field, Mark mark) {
    if (auto* edit = m_controls->ControlOf<EntryEdit>(field)) {
        edit->SetMark(mark);
    } else if (auto* name = m_controls->ControlOf<LoanNameBox>(field)) {
        name->SetMark(mark);
    }
}

void WindowDisplay::ShowToolTip(Field field, bool shown) {
    if (auto* control = m_controls->ControlOf(field)) {
        control->setProperty(TextProperty::ToolTipAway, !shown);
        control->setToolTip(
            shown ? GetResourceText(control->property(TextProperty::ToolTip).toInt()) : QString());
    }
}

} // namespace quend::window
