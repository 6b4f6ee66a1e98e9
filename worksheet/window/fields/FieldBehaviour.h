#pragma once

#include "FieldValue.h"
#include "WindowNames.h"

#include <QChar>
#include <QString>

#include <optional>

class QLineEdit;

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class ControlMap;
class MessageQueue;
class OfferRows;

/// The common behaviour of every typed field. On entry it shows the bare value, all selected; while
/// typing it allows only the characters of a number; before leaving it checks the form; after
/// leaving it stores the value and shows it in its display format. Does not handle Qt's focus
/// events; FocusTranslator does.
class FieldBehaviour {
public:
    FieldBehaviour(Worksheet& worksheet, const ControlMap& controls, OfferRows& rows,
                   MessageQueue& messages);

    /// A field of a row got the focus: scrolls the row into view and makes sure that a blank row
    /// follows the last used one.
    void EnterRow(Row row);
    /// A number field or the date got the focus.
    void Enter(Field field);
    /// Whether this character may be typed into the field.
    bool Allows(Field field, QChar key) const;
    /// Reads the field's text. False if it may not be left with this text: tells the user why and
    /// selects the whole text.
    bool Check(Field field);
    /// The field was left: stores what Check has read. Throws what the recalculation throws.
    void Leave(Field field);
    /// A key was pressed in a row: the up and down arrows go to the same field of the row above or
    /// below. True for an arrow, even if there is no such row.
    bool MoveByArrow(Field field, int key);

private:
    QLineEdit& EditOf(Field field) const;
    QString RefusalOf(Field field, const QString& text) const;
    void Refuse(Field field, const QString& message);

    Worksheet* m_worksheet;
    const ControlMap* m_controls;
    OfferRows* m_rows;
    MessageQueue* m_messages;
    QString m_entryText;
    std::optional<FieldValue> m_read; ///< by Check; none for a text that nobody changed
};

} // namespace quend::window
