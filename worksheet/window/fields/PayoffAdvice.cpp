#include "PayoffAdvice.h"

#include "CLoan.h"
#include "ControlMap.h"
#include "Failure.h"
#include "FailureReport.h"
#include "Worksheet.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

namespace quend::window {

namespace {

/// Of a copy, because the schedule keeps its interest in the offer.
bool NeverEnds(CLoan offer) {
    try {
        static_cast<void>(offer.PayoffDate());
        return false;
    } catch (const OverflowFailure&) {
        return true;
    }
}

bool CurrentLoanNeverEnds(const Worksheet& worksheet) {
    return !worksheet.CurrentBalance().IsZero() && !worksheet.CurrentActualPayment().IsZero() &&
           worksheet.CurrentPayoffDate().IsNone();
}

bool NeverEnds(const Worksheet& worksheet, Row row) {
    return row == Field::NoRow ? CurrentLoanNeverEnds(worksheet)
                               : NeverEnds(worksheet.OfferOfRow(row));
}

} // namespace

void PayoffAdvice::Watch(Field payoffDate) {
    m_controls->ControlOf(payoffDate)->installEventFilter(this);
}

QString PayoffAdvice::AdviceOf(Row row) const {
    QString text;
    m_report->Guard([&] {
        if (m_advice && NeverEnds(*m_worksheet, row)) {
            text = m_advice(row);
        }
    });
    return text;
}

bool PayoffAdvice::eventFilter(QObject* watched, QEvent* event) {
    const auto* edit = qobject_cast<QLineEdit*>(watched);
    if (event->type() != QEvent::ToolTip || edit == nullptr || !edit->text().isEmpty()) {
        return false;
    }
    const QString advice = AdviceOf(m_controls->FieldOf(watched)->row);
    if (advice.isEmpty()) {
        return false;
    }
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), advice);
    return true;
}

} // namespace quend::window
