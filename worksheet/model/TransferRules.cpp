#include "TransferRules.h"

#include "IsValidNumber.h"
#include "Worksheet.h"

#include <algorithm>
#include <array>

namespace quend::model {

namespace {

QString PointsText(const DisplayFormats& formats, const FieldValue& value) {
    return formats.GeneralNumber(std::get<Percent>(value).Value());
}

FieldValue ReadPoints(const DisplayFormats& formats, const QString& text) {
    return Percent::FromPercent(formats.ReadReal(text));
}

QString RateText(const DisplayFormats& formats, const FieldValue& value) {
    return formats.GeneralNumber(std::get<Rate>(value).Fraction());
}

FieldValue ReadRate(const DisplayFormats& formats, const QString& text) {
    return Rate::FromFraction(formats.ReadReal(text));
}

/// The displayed payment, read back as a plain number.
QString PaymentText(const DisplayFormats& formats, const FieldValue& value) {
    const Money payment = std::get<Money>(value);
    return payment.IsZero() ? QString() : formats.GeneralNumber(payment.RoundedToCents());
}

FieldValue ReadPayment(const DisplayFormats& formats, const QString& text) {
    return formats.ReadAmount(text);
}

FieldValue ReadWho(const DisplayFormats& /*formats*/, const QString& text) {
    return WithLenderLines(text);
}

struct TransferRule {
    FieldId field;
    QString (*text)(const DisplayFormats&, const FieldValue&); ///< null: the text that is shown
    FieldValue (*read)(const DisplayFormats&, const QString&);
};

// clang-format off
// The field's rule decides whether a text has the right form.
constexpr std::array TransferRules{
    //           field                   travels as   is read as
    TransferRule{FieldId::Points,        PointsText,  ReadPoints},
    TransferRule{FieldId::InterestRate,  RateText,    ReadRate}, // a fraction, both ways
    TransferRule{FieldId::ActualPayment, PaymentText, ReadPayment},
    TransferRule{FieldId::Who,           nullptr,     ReadWho},
};
// clang-format on

const TransferRule& TransferRuleOf(FieldId field) {
    return *std::ranges::find(TransferRules, field, &TransferRule::field);
}

} // namespace

QString WithLenderLines(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

bool IsDraggable(FieldId field) {
    return std::ranges::find(TransferRules, field, &TransferRule::field) != TransferRules.end();
}

QString DraggedText(const Worksheet& worksheet, Field field, const QString& shown) {
    const TransferRule& rule = TransferRuleOf(field.id);
    return rule.text == nullptr ? shown
                                : rule.text(worksheet.Texts().Formats(), worksheet.Value(field));
}

bool MayDrop(const Worksheet& worksheet, FieldId field, const QString& text) {
    const FieldRule& rule = RuleOf(field);
    return !rule.IsNumber() ||
           (!text.isEmpty() &&
            IsValidNumber(text, rule.decimals, worksheet.Texts().Formats().DecimalSeparator()));
}

FieldValue ReadDropped(const Worksheet& worksheet, FieldId field, const QString& text) {
    return TransferRuleOf(field).read(worksheet.Texts().Formats(), text);
}

} // namespace quend::model
