#include "ResultKeys.h"

#include "ControlMap.h"
#include "OfferRows.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>

namespace quend::window {

namespace {

bool IsResult(const FieldRule& rule) { return rule.access == Access::Result; }

/// The two bands above the rows.
bool IsInFirstBand(FieldId id) { return id <= FieldId::MonthlyEscrow; }

bool IsArrow(int key) { return key >= Qt::Key_Left && key <= Qt::Key_Down; }

} // namespace

ResultKeys::ResultKeys(QWidget& window, const ControlMap& controls, const OfferRows& rows)
    : m_window(&window), m_controls(&controls), m_rows(&rows) {
    const auto* key = new QShortcut(QKeySequence(Qt::Key_F6), &window);
    connect(key, &QShortcut::activated, this, &ResultKeys::OnF6);
}

void ResultKeys::Watch(const QWidget& parent) {
    for (QLineEdit* control : parent.findChildren<QLineEdit*>()) {
        const auto field = m_controls->FieldOf(control);
        if (field && IsResult(RuleOf(field->id))) {
            control->installEventFilter(this);
        }
    }
}

/// The focused field; if a button has the focus, the first field of the window.
Field ResultKeys::FieldWithFocus() const {
    return m_controls->FieldOf(m_window->focusWidget()).value_or(Field{FieldId::LoanName});
}

std::vector<FieldId> ResultKeys::ResultsBeside(Field field) const {
    std::vector<FieldId> results;
    const bool inRow = field.row != Field::NoRow;
    for (const FieldRule& rule : inRow ? OfferFields() : LoanFields()) {
        if (IsResult(rule) && (inRow || IsInFirstBand(rule.id) == IsInFirstBand(field.id))) {
            results.push_back(rule.id);
        }
    }
    return results;
}

void ResultKeys::OnF6() {
    const Field field = FieldWithFocus();
    if (!IsResult(RuleOf(field.id))) {
        m_cameFrom = m_window->focusWidget();
        Enter({ResultsBeside(field).front(), field.row});
    } else if (m_cameFrom) {
        m_cameFrom->setFocus(Qt::ShortcutFocusReason);
    }
}

/// A field that cannot be stored keeps the focus.
void ResultKeys::Enter(Field result) {
    auto& edit = *m_controls->ControlOf<QLineEdit>(result);
    edit.setFocus(Qt::ShortcutFocusReason);
    edit.selectAll();
    if (result.row != Field::NoRow) {
        m_rows->ShowOfferRow(result.row);
    }
}

void ResultKeys::Walk(Field result, Qt::Key arrow) {
    const int step = arrow == Qt::Key_Left || arrow == Qt::Key_Up ? -1 : 1;
    if (result.row != Field::NoRow && (arrow == Qt::Key_Up || arrow == Qt::Key_Down)) {
        const int row = std::clamp(result.row.value + step, 0, m_rows->HighestOfferRow().value);
        return Enter({result.id, Row{row}});
    }
    const std::vector<FieldId> results = ResultsBeside(result);
    const auto last = static_cast<std::ptrdiff_t>(results.size()) - 1;
    const std::ptrdiff_t at = std::ranges::find(results, result.id) - results.begin();
    const auto to = static_cast<std::size_t>(std::clamp(at + step, std::ptrdiff_t{0}, last));
    Enter({results.at(to), result.row});
}

bool ResultKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    const auto field = m_controls->FieldOf(watched);
    if (!field || !IsArrow(key.key()) || (key.modifiers() & ~Qt::KeypadModifier) != 0) {
        return false; // with Shift they select text
    }
    Walk(*field, static_cast<Qt::Key>(key.key()));
    return true;
}

} // namespace quend::window
