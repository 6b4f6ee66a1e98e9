#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QString>

class QLineEdit;

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class ControlMap;
class FieldBehaviour;
class FocusTranslator;

/// Gives and takes the values of offers for dragging and copying without losing what is being
/// typed. Shows no messages other than those of storing a field.
class ValueTransfer {
public:
    ValueTransfer(Worksheet& worksheet, const ControlMap& controls, FocusTranslator& focus,
                  FieldBehaviour& behaviour);

    /// Whether the number in the field differs from its offer's value.
    bool IsBeingTyped(Field field) const;

    /// The value as it is sent (TransferRules.h). A number that is being typed is stored first, so
    /// that the visible value is given. Empty if there is none, or if it was refused and reported.
    QString Give(Field field);
    /// Whether there is a value to give, as far as this is known without storing.
    bool CanGive(Field field) const;

    bool MayTake(Field field, const QString& text) const;
    /// Stores a received value. It replaces what is being typed into the same field. What is being
    /// typed elsewhere in the row is stored first; if that is refused, the user is told and the
    /// result is false. Throws like ReadDropped, which keeps the typed text, or like
    /// Worksheet::Store.
    bool Take(Field field, const QString& text);

private:
    QLineEdit& EditOf(Field field) const;

    Worksheet* m_worksheet;
    const ControlMap* m_controls;
    FocusTranslator* m_focus;
    FieldBehaviour* m_behaviour;
};

} // namespace quend::window
