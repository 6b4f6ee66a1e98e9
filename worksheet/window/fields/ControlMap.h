#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QHash>
#include <QWidget>

#include <map>
#include <optional>

namespace quend::window {

/// Maps fields to controls and controls to fields.
class ControlMap {
public:
    /// Finds the controls of these fields by name below `parent`. In a row of offers it then adds
    /// the row to each name: "txtPoints" becomes "txtPoints(3)".
    void Add(const QWidget& parent, std::span<const FieldRule> fields, Row row = Field::NoRow);

    QWidget* ControlOf(Field field) const;
    template <class Control>
    Control* ControlOf(Field field) const {
        return qobject_cast<Control*>(ControlOf(field));
    }
    std::optional<Field> FieldOf(const QObject* control) const;

private:
    std::map<Field, QWidget*> m_controls;
    QHash<const QObject*, Field> m_fields;
};

} // namespace quend::window
