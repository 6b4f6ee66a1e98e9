#include "FieldWidth.h"

#include "DisplayFormats.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>

namespace quend::window {

namespace {

/// The widest typical text of a field.
QString SampleOf(FieldId field, const DisplayFormats& formats) {
    constexpr double loan = 8'888'888.88;
    constexpr double payment = 88'888.88;
    switch (RuleOf(field).kind) {
    case ValueKind::Rate:
        return formats.Percent(Rate::FromFraction(0.88888));
    case ValueKind::Percent:
        return formats.ThreeDecimals(88.888);
    case ValueKind::WholeTerm:
    case ValueKind::FractionalTerm:
        return formats.InOwnDigits(formats.GeneralNumber(88.5));
    case ValueKind::Date:
        return formats.ShortDate(Date::FromCalendar(2058, 12, 28));
    case ValueKind::Text:
        return QStringLiteral("Financial Institute");
    default:
        break;
    }
    const bool isPayment =
        field == FieldId::PandI || field == FieldId::Payment || field == FieldId::ActualPayment;
    return formats.Currency(Money::FromDouble(isPayment ? payment : loan));
}

} // namespace

int LeastFieldWidth(FieldId field, const QFontMetrics& metrics, const DisplayFormats& formats) {
    // Frame, inner margins and caret.
    const int around = metrics.averageCharWidth() * 2 + 8;
    return metrics.horizontalAdvance(SampleOf(field, formats)) + around;
}

int TextRoomOf(const QLineEdit& edit) {
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
    constexpr int marginsOfTheText = 2 * 2; // Qt's text margin, on both sides
    return edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit).width() -
           marginsOfTheText;
}

} // namespace quend::window
