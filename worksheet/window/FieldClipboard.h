#pragma once

#include "Field.h"

#include <QObject>

class ControlMap;
class FailureReport;
class Messages;
class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;
class ValueExchange;

/// Copying and pasting the values of offers: what dragging does, by the keyboard and the context
/// menu, with the same texts and the same checks.
///
/// The keys of copying and pasting mean the value while all of a field or none of it is selected;
/// over a part, and while a number is being typed, they mean the text. A text that does not come
/// from such a field is pasted as it ever was, as if it were typed: 6.5 from elsewhere is a rate in
/// percent.
class FieldClipboard : public QObject {
    Q_OBJECT

public:
    FieldClipboard(ValueExchange& values, const ControlMap& controls, Messages& messages,
                   const FailureReport& report);

    /// The row has been made.
    void Watch(Row row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool OnKey(Field field, const QKeyEvent& event);
    void OpenMenu(Field field, const QContextMenuEvent& event);
    void CopyValue(Field field);
    void PasteValue(Field field);
    QLineEdit& EditOf(Field field) const;

    ValueExchange* m_values;
    const ControlMap* m_controls;
    Messages* m_messages;
    const FailureReport* m_report;
};
