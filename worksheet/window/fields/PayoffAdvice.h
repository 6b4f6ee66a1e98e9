#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QObject>
#include <QString>

#include <functional>
#include <utility>

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class ControlMap;
class FailureReport;

/// The tooltip of a payoff date that is empty because the payment never repays the loan. Does not
/// know what to advise; the text is asked for each time the tooltip is about to be shown.
class PayoffAdvice : public QObject {
    Q_OBJECT

public:
    /// The advice for an offer, or, for Field::NoRow, for the loan held today; an empty text shows
    /// no tooltip.
    using Advice = std::function<QString(Row)>;

    PayoffAdvice(const Worksheet& worksheet, const ControlMap& controls,
                 const FailureReport& report)
        : m_worksheet(&worksheet), m_controls(&controls), m_report(&report) {}

    /// Pass {} to have no advice.
    void Ask(Advice advice) { m_advice = std::move(advice); }
    /// Call when the field has been created.
    void Watch(Field payoffDate);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString AdviceOf(Row row) const;

    const Worksheet* m_worksheet;
    const ControlMap* m_controls;
    const FailureReport* m_report;
    Advice m_advice;
};

} // namespace quend::window
