#pragma once

#include "Field.h"

#include <QString>

class ControlMap;
class FieldDiscipline;
class FocusTranslator;
class QLineEdit;
class Worksheet;

/// Gives away values of offers and takes others, whether they are dragged or copied, without losing
/// what is being typed meanwhile. Says nothing to the user but what storing a field says.
class ValueExchange {
public:
    ValueExchange(Worksheet& worksheet, const ControlMap& controls, FocusTranslator& focus,
                  FieldDiscipline& discipline);

    /// Whether another number stands in the field than its offer has.
    bool IsBeingTyped(Field field) const;

    /// The value as it travels (DraggedValue.h). A number that is being typed is stored first, so
    /// that what is seen is what is given. Empty: there is none, or it was refused and told.
    QString Give(Field field);
    /// Whether there is something to give, as far as can be told without storing.
    bool CanGive(Field field) const;

    bool MayTake(Field field, const QString& text) const;
    /// Stores a value that arrived. What is being typed into the same field gives way to it; what
    /// is being typed elsewhere in the row is stored first: false, and nothing taken, when that is
    /// refused and told. Throws as ReadDropped, the entry then stays as it is, or as StoreDropped.
    bool Take(Field field, const QString& text);

private:
    QLineEdit& EditOf(Field field) const;

    Worksheet* m_worksheet;
    const ControlMap* m_controls;
    FocusTranslator* m_focus;
    FieldDiscipline* m_discipline;
};
