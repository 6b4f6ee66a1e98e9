#include "FieldClipboard.h"

#include "CompareTextNumbers.h"
#include "ControlMap.h"
#include "FailureReport.h"
#include "FieldEdits.h"
#include "Language.h"
#include "MessageQueue.h"
#include "TextNumbers.h"
#include "TransferRules.h"
#include "ValueTransfer.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include <memory>
#include <utility>

namespace quend::window {

namespace {

/// Marks a clipboard text as the value of an offer field.
QString ValueFormat() { return QStringLiteral("application/x-quend-loan-value"); }

const QMimeData* Clipped() { return QGuiApplication::clipboard()->mimeData(); }

bool HoldsValue(const QMimeData* data) { return data != nullptr && data->hasFormat(ValueFormat()); }

/// A text from a table is a cell; a text from a field is its exact value.
QString ValueOn(const QMimeData& data) {
    return HoldsValue(&data) ? data.text() : WithoutCellEnd(data.text());
}

bool IsPartSelected(const QLineEdit& edit) {
    return edit.hasSelectedText() && edit.selectedText() != edit.text();
}

/// No selection in a number means all of it; in a lender's text it is the insertion point.
bool TakesWholeValue(const QLineEdit& edit, Field field) {
    return RuleOf(field.id).IsNumber() ? !IsPartSelected(edit) : edit.selectedText() == edit.text();
}

} // namespace

FieldClipboard::FieldClipboard(ValueTransfer& values, const ControlMap& controls,
                               MessageQueue& messages, const FailureReport& report)
    : m_values(&values), m_controls(&controls), m_messages(&messages), m_report(&report) {}

QLineEdit& FieldClipboard::EditOf(Field field) const {
    return *m_controls->ControlOf<QLineEdit>(field);
}

void FieldClipboard::Watch(Row row) {
    for (const FieldRule& rule : OfferFields()) {
        if (IsDraggable(rule.id)) {
            m_controls->ControlOf({rule.id, row})->installEventFilter(this);
        }
    }
}

void FieldClipboard::WatchCurrentPayment() {
    EditOf({FieldId::CurActualPayment}).installEventFilter(this);
}

void FieldClipboard::OnFindPayment(std::function<void(Field)> find) {
    m_findPayment = std::move(find);
}

bool FieldClipboard::eventFilter(QObject* watched, QEvent* event) {
    const auto field = m_controls->FieldOf(watched);
    const bool isOfOffer = field && field->row != Field::NoRow;
    if (isOfOffer && event->type() == QEvent::KeyPress) {
        return OnKey(*field, *static_cast<QKeyEvent*>(event));
    }
    if (field && (isOfOffer || m_findPayment) && event->type() == QEvent::ContextMenu) {
        OpenMenu(*field, *static_cast<QContextMenuEvent*>(event));
        return true;
    }
    return false;
}

bool FieldClipboard::OnKey(Field field, const QKeyEvent& event) {
    const QLineEdit& edit = EditOf(field);
    if (m_values->IsBeingTyped(field)) {
        return false;
    }
    if (event.matches(QKeySequence::Copy) && !IsPartSelected(edit)) {
        CopyValue(field);
        return true;
    }
    if (event.matches(QKeySequence::Paste) && TakesWholeValue(edit, field) &&
        HoldsValue(Clipped())) {
        PasteValue(field);
        return true;
    }
    return false;
}

void FieldClipboard::CopyValue(Field field) {
    QString text;
    m_report->Guard([&] { text = m_values->Give(field); });
    if (text.isEmpty()) {
        return;
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    data->setData(ValueFormat(), RuleOf(field.id).control.latin1());
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void FieldClipboard::PasteValue(Field field) {
    const QMimeData* clipped = Clipped();
    if (clipped == nullptr || !clipped->hasText()) {
        return;
    }
    const QString text = ValueOn(*clipped);
    if (!m_values->MayTake(field, text)) {
        m_messages->Post(GetResourceText(TextNumber::ValueRefused).arg(Shortened(text)) +
                         NumberPicture(RuleOf(field.id).decimals));
        return;
    }
    m_report->Guard([&] { m_values->Take(field, text); });
}

/// Qt's own menu, followed by the commands of the field.
void FieldClipboard::OpenMenu(Field field, const QContextMenuEvent& event) {
    QMenu* menu = EditOf(field).createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (field.row != Field::NoRow) {
        AddValueCommands(*menu, field);
    }
    if (m_findPayment &&
        (field.id == FieldId::ActualPayment || field.id == FieldId::CurActualPayment)) {
        AddFindPayment(*menu, field);
    }
    if (m_addRowCommands && field.row != Field::NoRow) {
        m_addRowCommands(*menu, field.row);
    }
    menu->popup(event.globalPos());
}

/// Unavailable commands are disabled.
void FieldClipboard::AddValueCommands(QMenu& menu, Field field) {
    menu.addSeparator();
    auto* copy = menu.addAction(GetResourceText(TextNumber::CopyValue), this,
                                [this, field] { CopyValue(field); });
    copy->setEnabled(m_values->CanGive(field));
    const QMimeData* clipped = Clipped();
    auto* paste = menu.addAction(GetResourceText(TextNumber::PasteValue), this,
                                 [this, field] { PasteValue(field); });
    paste->setEnabled(clipped != nullptr && clipped->hasText() &&
                      m_values->MayTake(field, ValueOn(*clipped)));
}

void FieldClipboard::AddFindPayment(QMenu& menu, Field field) {
    menu.addSeparator();
    menu.addAction(GetResourceText(TextNumber::FindAPayment), this,
                   [this, field] { m_report->Guard([&] { m_findPayment(field); }); });
}

} // namespace quend::window
