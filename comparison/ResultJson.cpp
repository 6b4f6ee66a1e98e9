#include "ResultJson.h"

#include "FileValues.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace quend::comparison {

namespace {

using ResultWriter = rapidjson::Writer<rapidjson::StringBuffer>;

void Put(ResultWriter& writer, Money amount) { PutText(writer, AmountText(amount)); }
void Put(ResultWriter& writer, Date date) { PutText(writer, DateText(date)); }
void Put(ResultWriter& writer, Rate rate) { PutNumber(writer, rate.Fraction()); }
void Put(ResultWriter& writer, bool flag) { writer.Bool(flag); }
void Put(ResultWriter& writer, int number) { writer.Int(number); }
void Put(ResultWriter& writer, std::int64_t number) { writer.Int64(number); }

void Put(ResultWriter& writer, LeftOut reason) {
    if (reason == LeftOut::No) {
        writer.Null();
    } else {
        writer.String(NameOf(reason));
    }
}

void Put(ResultWriter& writer, const CheaperStretch& stretch);
void Put(ResultWriter& writer, const CheapestOffer& row);
void Put(ResultWriter& writer, const OfferComparison& offer);
void Put(ResultWriter& writer, const CurrentLoanComparison& current);

template <typename Value>
void Put(ResultWriter& writer, const std::vector<Value>& values) {
    writer.StartArray();
    for (const Value& value : values) {
        Put(writer, value);
    }
    writer.EndArray();
}

template <typename Value>
void Put(ResultWriter& writer, const std::optional<Value>& value) {
    if (value) {
        Put(writer, *value);
    } else {
        writer.Null();
    }
}

template <typename Value>
void Put(ResultWriter& writer, const char* name, const Value& value) {
    writer.Key(name);
    Put(writer, value);
}

void PutFailure(ResultWriter& writer, bool overflow) {
    writer.Key("failure");
    if (overflow) {
        writer.String("overflow");
    } else {
        writer.Null();
    }
}

void Put(ResultWriter& writer, const CheaperStretch& stretch) {
    writer.StartObject();
    Put(writer, "fromMonth", stretch.fromMonth);
    Put(writer, "untilMonth", stretch.untilMonth);
    writer.EndObject();
}

void Put(ResultWriter& writer, const CheapestOffer& row) {
    writer.StartObject();
    Put(writer, "fromMonth", row.fromMonth);
    Put(writer, "offer", row.offer);
    writer.EndObject();
}

struct FigureMember {
    const char* name;
    void (*put)(ResultWriter& writer, const OfferFigures& figures);
};

template <auto Figure>
void PutFigure(ResultWriter& writer, const OfferFigures& figures) {
    Put(writer, figures.*Figure);
}

constexpr std::array FigureMembers{
    FigureMember{"paymentCompared", PutFigure<&OfferFigures::paymentCompared>},
    FigureMember{"upfront", PutFigure<&OfferFigures::upfront>},
    FigureMember{"totalCost", PutFigure<&OfferFigures::totalCost>},
    FigureMember{"costByHorizon", PutFigure<&OfferFigures::costByHorizon>},
    FigureMember{"balanceAtHorizon", PutFigure<&OfferFigures::balanceAtHorizon>},
    FigureMember{"monthlyEquivalent", PutFigure<&OfferFigures::monthlyEquivalent>},
    FigureMember{"apr", PutFigure<&OfferFigures::apr>},
    FigureMember{"effectiveRate", PutFigure<&OfferFigures::effectiveRate>},
    FigureMember{"interestSaved", PutFigure<&OfferFigures::interestSaved>},
    FigureMember{"paymentsSaved", PutFigure<&OfferFigures::paymentsSaved>},
    FigureMember{"cheaper", PutFigure<&OfferFigures::cheaper>},
    FigureMember{"rateToMatch", PutFigure<&OfferFigures::rateToMatch>},
    FigureMember{"paymentForHorizon", PutFigure<&OfferFigures::paymentForHorizon>},
};

void Put(ResultWriter& writer, const OfferComparison& offer) {
    writer.StartObject();
    Put(writer, "principal", offer.principal);
    Put(writer, "principalAndInterest", offer.principalAndInterest);
    Put(writer, "payment", offer.payment);
    Put(writer, "actualPayment", offer.actualPayment);
    Put(writer, "raised", offer.raised);
    Put(writer, "payoffDate", offer.payoffDate);
    Put(writer, "interest", offer.interest);
    PutFailure(writer, offer.overflow);
    Put(writer, "leftOut", offer.leftOut);
    for (const FigureMember& member : FigureMembers) {
        writer.Key(member.name);
        if (offer.figures) {
            member.put(writer, *offer.figures);
        } else {
            writer.Null();
        }
    }
    writer.EndObject();
}

void Put(ResultWriter& writer, const CurrentLoanComparison& current) {
    writer.StartObject();
    Put(writer, "amountLeft", current.amountLeft);
    Put(writer, "interestLeft", current.interestLeft);
    Put(writer, "payoffDate", current.payoffDate);
    PutFailure(writer, current.overflow);
    Put(writer, "costByHorizon", current.costByHorizon);
    Put(writer, "balanceAtHorizon", current.balanceAtHorizon);
    Put(writer, "paymentForHorizon", current.paymentForHorizon);
    writer.EndObject();
}

} // namespace

QByteArray ToJson(const ComparisonResult& result) {
    rapidjson::StringBuffer buffer;
    ResultWriter writer(buffer);
    writer.StartObject();
    Put(writer, "offers", result.offers);
    Put(writer, "months", result.months);
    Put(writer, "cheapest", result.cheapest);
    Put(writer, "cheapestByHorizon", result.cheapestByHorizon);
    Put(writer, "current", result.current);
    writer.EndObject();
    return {buffer.GetString(), static_cast<qsizetype>(buffer.GetSize())};
}

const char* NameOf(LeftOut reason) {
    constexpr std::array Names{"",       "noAmount",  "noRate",   "noFrequency",
                               "noTerm", "noPayment", "neverEnds"};
    return Names.at(static_cast<std::size_t>(reason));
}

} // namespace quend::comparison
