#include "Comparison.h"
#include "QuendNames.h"
#include "WorksheetReader.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>
#include <string>

// Every member of every worksheet that another program compared: amounts to the last digit, rates
// to 1e-9.

namespace {

QJsonValue ToJson(Money amount) {
    const std::int64_t count = amount.TenThousandths();
    const std::int64_t size = std::abs(count);
    const QString decimals = QString::number(size % 10'000).rightJustified(4, QLatin1Char('0'));
    return QString(count < 0 ? QStringLiteral("-") : QString()) + QString::number(size / 10'000) +
           QLatin1Char('.') + decimals;
}

QJsonValue ToJson(Date date) {
    return QDate(1899, 12, 30).addDays(date.Days()).toString(Qt::ISODate);
}

QJsonValue ToJson(Rate rate) { return rate.Fraction(); }
QJsonValue ToJson(int number) { return number; }
QJsonValue ToJson(std::int64_t number) { return static_cast<qint64>(number); }

QJsonValue ToJson(LeftOut reason) {
    constexpr std::array Names{"",       "noAmount",  "noRate",   "noFrequency",
                               "noTerm", "noPayment", "neverEnds"};
    return reason == LeftOut::No
               ? QJsonValue()
               : QJsonValue(QLatin1String(Names.at(static_cast<std::size_t>(reason))));
}

QJsonValue OverflowToJson(bool overflow) {
    return overflow ? QJsonValue(QStringLiteral("overflow")) : QJsonValue();
}

template <typename Value>
QJsonValue ToJson(const std::optional<Value>& value) {
    return value ? ToJson(*value) : QJsonValue();
}

QJsonValue ToJson(const std::vector<CheaperStretch>& stretches) {
    QJsonArray list;
    for (const CheaperStretch& stretch : stretches) {
        list.append(QJsonObject{{QStringLiteral("fromMonth"), stretch.fromMonth},
                                {QStringLiteral("untilMonth"), ToJson(stretch.untilMonth)}});
    }
    return list;
}

void AddFigures(QJsonObject& offer, const OfferFigures& figures) {
    offer[QStringLiteral("paymentCompared")] = ToJson(figures.paymentCompared);
    offer[QStringLiteral("upfront")] = ToJson(figures.upfront);
    offer[QStringLiteral("totalCost")] = ToJson(figures.totalCost);
    offer[QStringLiteral("costByHorizon")] = ToJson(figures.costByHorizon);
    offer[QStringLiteral("balanceAtHorizon")] = ToJson(figures.balanceAtHorizon);
    offer[QStringLiteral("monthlyEquivalent")] = ToJson(figures.monthlyEquivalent);
    offer[QStringLiteral("apr")] = ToJson(figures.apr);
    offer[QStringLiteral("effectiveRate")] = ToJson(figures.effectiveRate);
    offer[QStringLiteral("interestSaved")] = ToJson(figures.interestSaved);
    offer[QStringLiteral("paymentsSaved")] = ToJson(figures.paymentsSaved);
    offer[QStringLiteral("cheaper")] = figures.cheaper ? ToJson(*figures.cheaper) : QJsonValue();
    offer[QStringLiteral("rateToMatch")] = ToJson(figures.rateToMatch);
    offer[QStringLiteral("paymentForHorizon")] = ToJson(figures.paymentForHorizon);
}

QJsonValue ToJson(const OfferComparison& offer) {
    QJsonObject object{
        {QStringLiteral("principal"), ToJson(offer.principal)},
        {QStringLiteral("principalAndInterest"), ToJson(offer.principalAndInterest)},
        {QStringLiteral("payment"), ToJson(offer.payment)},
        {QStringLiteral("actualPayment"), ToJson(offer.actualPayment)},
        {QStringLiteral("raised"), offer.raised},
        {QStringLiteral("payoffDate"), ToJson(offer.payoffDate)},
        {QStringLiteral("interest"), ToJson(offer.interest)},
        {QStringLiteral("failure"), OverflowToJson(offer.overflow)},
        {QStringLiteral("leftOut"), ToJson(offer.leftOut)},
    };
    if (offer.figures) {
        AddFigures(object, *offer.figures);
    }
    return object;
}

QJsonValue ToJson(const CurrentLoanComparison& current) {
    return QJsonObject{
        {QStringLiteral("amountLeft"), ToJson(current.amountLeft)},
        {QStringLiteral("interestLeft"), ToJson(current.interestLeft)},
        {QStringLiteral("payoffDate"), ToJson(current.payoffDate)},
        {QStringLiteral("failure"), OverflowToJson(current.overflow)},
        {QStringLiteral("costByHorizon"), ToJson(current.costByHorizon)},
        {QStringLiteral("balanceAtHorizon"), ToJson(current.balanceAtHorizon)},
        {QStringLiteral("paymentForHorizon"), ToJson(current.paymentForHorizon)},
    };
}

QJsonObject ToJson(const ComparisonResult& result) {
    QJsonArray offers;
    for (const OfferComparison& offer : result.offers) {
        offers.append(ToJson(offer));
    }
    QJsonArray cheapest;
    for (const CheapestOffer& row : result.cheapest) {
        cheapest.append(QJsonObject{{QStringLiteral("fromMonth"), row.fromMonth},
                                    {QStringLiteral("offer"), row.offer}});
    }
    return {{QStringLiteral("offers"), offers},
            {QStringLiteral("months"), result.months},
            {QStringLiteral("cheapest"), cheapest},
            {QStringLiteral("cheapestByHorizon"), ToJson(result.cheapestByHorizon)},
            {QStringLiteral("current"), result.current ? ToJson(*result.current) : QJsonValue()}};
}

/// Compares member by member; a member that is missing counts as null.
// NOLINTNEXTLINE(misc-no-recursion): as deep as the table's objects
void ExpectSame(const QJsonValue& actual, const QJsonValue& expected, const QString& path) {
    if (expected.isObject()) {
        const QJsonObject members = expected.toObject();
        for (auto member = members.begin(); member != members.end(); ++member) {
            ExpectSame(actual.toObject()[member.key()], member.value(),
                       path + QLatin1Char('.') + member.key());
        }
    } else if (expected.isArray()) {
        const QJsonArray elements = expected.toArray();
        EXPECT_EQ(actual.toArray().size(), elements.size()) << path.toStdString();
        for (qsizetype i = 0; i < elements.size(); ++i) {
            ExpectSame(actual.toArray().at(i), elements.at(i),
                       path + QStringLiteral("[%1]").arg(i + 1));
        }
    } else if (expected.isDouble() && actual.isDouble()) {
        EXPECT_NEAR(actual.toDouble(), expected.toDouble(), 1e-9) << path.toStdString();
    } else {
        const bool bothNone = expected.isNull() && (actual.isNull() || actual.isUndefined());
        EXPECT_TRUE(bothNone || actual == expected)
            << path.toStdString() << " is " << actual.toVariant().toString().toStdString()
            << ", not " << expected.toVariant().toString().toStdString();
    }
}

TEST(ReferenceComparisons, AgreeInEveryMember) {
    QFile file(QStringLiteral(QUEND_TEST_DATA "/comparison/comparisons.jsonl"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    int number = 0;
    while (!file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        SCOPED_TRACE("line " + std::to_string(++number));
        ExpectSame(ToJson(Compare(ReadComparison(line))), line[QStringLiteral("expected")],
                   QStringLiteral("expected"));
    }
    EXPECT_EQ(number, 150);
}

} // namespace
