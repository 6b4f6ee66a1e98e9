#include "ControlMap.h"

namespace quend::window {

void ControlMap::Add(const QWidget& parent, std::span<const FieldRule> fields, Row row) {
    for (const FieldRule& rule : fields) {
        auto* control = parent.findChild<QWidget*>(rule.control);
        Q_ASSERT(control);
        if (row != Field::NoRow) {
            control->setObjectName(QStringLiteral("%1(%2)").arg(rule.control).arg(row.value));
        }
        const Field field{rule.id, row};
        m_controls.emplace(field, control);
        m_fields.insert(control, field);
    }
}

QWidget* ControlMap::ControlOf(Field field) const {
    const auto found = m_controls.find(field);
    return found == m_controls.end() ? nullptr : found->second;
}

std::optional<Field> ControlMap::FieldOf(const QObject* control) const {
    const auto found = m_fields.find(control);
    return found == m_fields.end() ? std::nullopt : std::optional(*found);
}

} // namespace quend::window
