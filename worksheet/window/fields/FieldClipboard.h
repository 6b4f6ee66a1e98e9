#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QObject>

#include <functional>
#include <utility>

class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;
class QMenu;

namespace quend::window {

class ControlMap;
class FailureReport;
class MessageQueue;
class ValueTransfer;

/// Copies and pastes the values of offers by keyboard and context menu, with the same texts and
/// checks as dragging.
///
/// The shortcuts act on the value while all or none of a field is selected. With a partial
/// selection, or while a number is being typed, they act on the text. A text that was not copied
/// from such a field is pasted as if it were typed: 6.5 from elsewhere is a rate in percent.
///
/// The menus of intended payments also offer to find one.
class FieldClipboard : public QObject {
    Q_OBJECT

public:
    FieldClipboard(ValueTransfer& values, const ControlMap& controls, MessageQueue& messages,
                   const FailureReport& report);

    /// Call when the row has been created.
    void Watch(Row row);
    /// The intended payment of the loan held today, which is neither copied nor pasted here.
    void WatchCurrentPayment();
    /// Without it (pass {}) no menu offers to find a payment, and that of the loan held today is
    /// Qt's own.
    void OnFindPayment(std::function<void(Field)> find);
    /// Adds the commands of the row to the menu of one of its fields.
    void OnRowMenu(std::function<void(QMenu&, Row)> add) { m_addRowCommands = std::move(add); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool OnKey(Field field, const QKeyEvent& event);
    void OpenMenu(Field field, const QContextMenuEvent& event);
    void AddValueCommands(QMenu& menu, Field field);
    void AddFindPayment(QMenu& menu, Field field);
    void CopyValue(Field field);
    void PasteValue(Field field);
    QLineEdit& EditOf(Field field) const;

    ValueTransfer* m_values;
    const ControlMap* m_controls;
    MessageQueue* m_messages;
    const FailureReport* m_report;
    std::function<void(Field)> m_findPayment;
    std::function<void(QMenu&, Row)> m_addRowCommands;
};

} // namespace quend::window
