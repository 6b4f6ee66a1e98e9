#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace quend::window {

class ControlMap;
class OfferRows;

/// Reading and copying results by keyboard, because the tab key skips them. F6 goes from a field to
/// the results of its band or row and back to the field. Among the results the arrow keys move; Up
/// and Down go to the same result of the row above or below. Changes no value.
class ResultKeys : public QObject {
    Q_OBJECT

public:
    ResultKeys(QWidget& window, const ControlMap& controls, const OfferRows& rows);

    /// Call when the results below `parent` have been created.
    void Watch(const QWidget& parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OnF6();
    void Enter(Field result);
    void Walk(Field result, Qt::Key arrow);
    std::vector<FieldId> ResultsBeside(Field field) const;
    Field FieldWithFocus() const;

    QWidget* m_window;
    const ControlMap* m_controls;
    const OfferRows* m_rows;
    QPointer<QWidget> m_cameFrom;
};

} // namespace quend::window
