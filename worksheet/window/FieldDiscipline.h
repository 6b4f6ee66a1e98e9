#pragma once

#include "Field.h"

#include <QChar>
#include <QString>

class ControlMap;
class Messages;
class OfferRows;
class QLineEdit;
class Worksheet;

/// The one discipline of every field that is typed into: on entry the bare value, all selected;
/// while typing only what a number may hold; before leaving a check of the form; after leaving the
/// value stored and shown in its display format. Knows nothing of the toolkit's focus
/// (FocusTranslator does).
class FieldDiscipline {
public:
    FieldDiscipline(Worksheet& worksheet, const ControlMap& controls, OfferRows& rows,
                    Messages& messages);

    /// A field of a row got the focus: a blank row always waits below the last one in use, and the
    /// row is in view.
    void EnterRow(Row row);
    /// A number field or the date got the focus.
    void Enter(Field field);
    /// Whether a key may type this character into the field.
    bool Allows(Field field, QChar key) const;
    /// Whether the field may be left with the text it holds. Where not, the user is told why and
    /// the whole text is selected.
    bool Check(Field field);
    /// The field was left. Throws what the conversion and the recalculation throw.
    void Leave(Field field);
    /// The key with this code was used in a row: the arrows up and down go to the same field of the
    /// next row. True for an arrow, also where there is no row to go to.
    bool MoveByArrow(Field field, int key);

private:
    QLineEdit& EditOf(Field field) const;
    QString RefusalOf(Field field, const QString& text) const;
    void Refuse(Field field, const QString& message);

    Worksheet* m_worksheet;
    const ControlMap* m_controls;
    OfferRows* m_rows;
    Messages* m_messages;
    QString m_entryText;
};
