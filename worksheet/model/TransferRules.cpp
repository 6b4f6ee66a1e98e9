#include "TransferRules.h"

#include "IsValidNumber.h"
#include "Worksheet.h"

#include <algorithm>
#include <array>

namespace quend::model {

namespace {

const DisplayFormats& FormatsOf(const Worksheet& worksheet) { return worksheet.Texts().Formats(); }

QString PointsText(const Worksheet& worksheet, Row row, const QString& /*shown*/) {
    return FormatsOf(worksheet).GeneralNumber(worksheet.OfferOfRow(row).Points());
}

QString RateText(const Worksheet& worksheet, Row row, const QString& /*shown*/) {
    return FormatsOf(worksheet).GeneralNumber(worksheet.OfferOfRow(row).InterestRate());
}

/// The displayed payment, read back as a plain number.
QString PaymentText(const Worksheet& worksheet, Row row, const QString& /*shown*/) {
    const Money payment = worksheet.OfferOfRow(row).ActualPayment();
    return payment.IsZero() ? QString()
                            : FormatsOf(worksheet).GeneralNumber(payment.RoundedToCents());
}

QString WhoText(const Worksheet& /*worksheet*/, Row /*row*/, const QString& shown) { return shown; }

DroppedValue ReadReal(const Worksheet& worksheet, const QString& text) {
    return FormatsOf(worksheet).ReadReal(text);
}

DroppedValue ReadAmount(const Worksheet& worksheet, const QString& text) {
    return FormatsOf(worksheet).ReadAmount(text);
}

DroppedValue ReadWho(const Worksheet& /*worksheet*/, const QString& text) {
    return WithLenderLines(text);
}

struct TransferRules {
    FieldId field;
    QString (*text)(const Worksheet&, Row, const QString&);
    DroppedValue (*read)(const Worksheet&, const QString&);
};

// clang-format off
// The field's rule decides whether a text has the right form.
constexpr std::array TransferRuless{
    //           field                   travels as   is read as
    TransferRules{FieldId::Points,        PointsText,  ReadReal},
    TransferRules{FieldId::InterestRate,  RateText,    ReadReal}, // a fraction, both ways
    TransferRules{FieldId::ActualPayment, PaymentText, ReadAmount},
    TransferRules{FieldId::Who,           WhoText,     ReadWho},
};
// clang-format on

const TransferRules& ValueOf(FieldId field) {
    return *std::ranges::find(TransferRuless, field, &TransferRules::field);
}

} // namespace

QString WithLenderLines(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

bool IsDraggable(FieldId field) {
    return std::ranges::find(TransferRuless, field, &TransferRules::field) != TransferRuless.end();
}

QString DraggedText(const Worksheet& worksheet, Field field, const QString& shown) {
    return ValueOf(field.id).text(worksheet, field.row, shown);
}

bool MayDrop(const Worksheet& worksheet, FieldId field, const QString& text) {
    const FieldRule& rule = RuleOf(field);
    return !rule.IsNumber() ||
           (!text.isEmpty() &&
            IsValidNumber(text, rule.decimals, FormatsOf(worksheet).DecimalSeparator()));
}

DroppedValue ReadDropped(const Worksheet& worksheet, FieldId field, const QString& text) {
    return ValueOf(field).read(worksheet, text);
}

void StoreDropped(Worksheet& worksheet, Field field, const DroppedValue& value) {
    if (const auto* who = std::get_if<QString>(&value)) {
        worksheet.StoreWho(field.row, *who);
    } else if (const auto* amount = std::get_if<Money>(&value)) {
        worksheet.StoreOfferNumber(field, *amount);
    } else {
        worksheet.StoreOfferNumber(field, std::get<double>(value));
    }
}

} // namespace quend::model
