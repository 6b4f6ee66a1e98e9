#include "WorksheetReader.h"

#include "QuendNames.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonValue>

#include <cmath>

namespace {

/// "-12.5" or a number. Digits after the point are exact.
Money ToMoney(const QJsonValue& value) {
    if (value.isDouble()) {
        return Money::FromDouble(value.toDouble());
    }
    QString text = value.toString();
    const auto point = text.indexOf(QLatin1Char('.'));
    const auto decimals = point < 0 ? 0 : text.size() - point - 1;
    text.remove(QLatin1Char('.'));
    text.append(QString(4 - decimals, QLatin1Char('0')));
    return Money::FromTenThousandths(text.toLongLong());
}

Date ToDate(const QJsonValue& value) {
    const QDate date = QDate::fromString(value.toString(), Qt::ISODate);
    return date.isValid() ? Date::FromCalendar(date.year(), date.month(), date.day()) : Date();
}

FrequencyCode ToCode(const QJsonValue& value) { return FrequencyCode(value.toString()); }

Rate ToRate(const QJsonValue& value) { return Rate::FromFraction(value.toDouble()); }

OfferInput ToOffer(const QJsonObject& offer) {
    return {.points = Percent::FromPercent(offer[QStringLiteral("points")].toDouble()),
            .pointsFinanced = offer[QStringLiteral("pointsFinanced")].toBool(),
            .costs = ToMoney(offer[QStringLiteral("costs")]),
            .rate = ToRate(offer[QStringLiteral("rate")]),
            .term = {offer[QStringLiteral("termMonths")].toInt()},
            .frequency = ToCode(offer[QStringLiteral("frequency")]),
            .actualPayment = ToMoney(offer[QStringLiteral("actualPayment")])};
}

CurrentLoanInput ToCurrent(const QJsonObject& current) {
    return {.amount = ToMoney(current[QStringLiteral("amount")]),
            .term = {current[QStringLiteral("termMonths")].toInt()},
            .rate = ToRate(current[QStringLiteral("rate")]),
            .frequency = ToCode(current[QStringLiteral("frequency")]),
            .balance = ToMoney(current[QStringLiteral("balance")]),
            .actualPayment = ToMoney(current[QStringLiteral("actualPayment")]),
            .actualFrequency = ToCode(current[QStringLiteral("actualFrequency")]),
            .nextPayment = ToDate(current[QStringLiteral("nextPayment")])};
}

} // namespace

ComparisonInput ReadComparison(const QJsonObject& line) {
    const QJsonObject sheet = line[QStringLiteral("worksheet")].toObject();
    ComparisonInput input;
    input.today = ToDate(line[QStringLiteral("today")]);
    input.years = line[QStringLiteral("years")].toInt(5);
    const QString payments = line[QStringLiteral("payments")].toVariant().toString();
    if (payments == QStringLiteral("computed")) {
        input.choice = PaymentChoice::Required;
    } else if (payments != QStringLiteral("intended")) {
        input.choice = PaymentChoice::Monthly;
        input.monthlyPayment = ToMoney(line[QStringLiteral("payments")]);
    }
    input.amount = ToMoney(sheet[QStringLiteral("amount")]);
    input.term = {sheet[QStringLiteral("termMonths")].toInt()};
    const Money escrow = ToMoney(sheet[QStringLiteral("annualTaxes")]) +
                         ToMoney(sheet[QStringLiteral("annualInsurance")]);
    input.escrowMonthly = Money::FromDoubleInCents(escrow.ToDouble() / MonthsPerYear);
    input.current = ToCurrent(sheet[QStringLiteral("current")].toObject());
    for (const QJsonValue offer : sheet[QStringLiteral("offers")].toArray()) {
        input.offers.push_back(ToOffer(offer.toObject()));
    }
    return input;
}
