#include "WorksheetMembers.h"

#include "FileValues.h"
#include "Overflow.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <array>
#include <cstdint>

namespace quend::comparison {

class SheetWriter : public rapidjson::PrettyWriter<rapidjson::StringBuffer> {
public:
    using PrettyWriter::PrettyWriter;
};

namespace {

constexpr int Version = 1;

void WriteValue(SheetWriter& writer, const QString& text) { PutText(writer, text.toUtf8()); }
void WriteValue(SheetWriter& writer, bool flag) { writer.Bool(flag); }
void WriteValue(SheetWriter& writer, Percent points) { PutNumber(writer, points.Value()); }
void WriteValue(SheetWriter& writer, Rate rate) { PutNumber(writer, rate.Fraction()); }
void WriteValue(SheetWriter& writer, Months term) { writer.Int(term.count); }
void WriteValue(SheetWriter& writer, const FrequencyCode& code) { WriteValue(writer, code.Text()); }

/// Decimals beyond cents only where there are any.
void WriteValue(SheetWriter& writer, Money amount) {
    QByteArray text = AmountText(amount);
    if (text.endsWith("00")) {
        text.chop(2);
    }
    PutText(writer, text);
}

void WriteValue(SheetWriter& writer, Date date) {
    if (date.IsNone()) {
        writer.Null();
    } else {
        PutText(writer, DateText(date));
    }
}

template <typename Owner>
void WriteObject(SheetWriter& writer, const Owner& object) {
    writer.StartObject();
    for (const Member<Owner>& member : MembersOf(object)) {
        if (member.write != nullptr) {
            writer.Key(member.name);
            member.write(writer, object);
        }
    }
    writer.EndObject();
}

void WriteCurrent(SheetWriter& writer, const WorksheetInFile& worksheet) {
    if (worksheet.current == CurrentLoanInput()) {
        writer.Null();
    } else {
        WriteObject(writer, worksheet.current);
    }
}

void WriteOffers(SheetWriter& writer, const WorksheetInFile& worksheet) {
    writer.StartArray();
    for (const OfferInFile& offer : worksheet.offers) {
        WriteObject(writer, offer);
    }
    writer.EndArray();
}

template <auto Pointer, auto... Further>
auto& At(auto& owner) {
    if constexpr (sizeof...(Further) == 0) {
        return owner.*Pointer;
    } else {
        return At<Further...>(owner.*Pointer);
    }
}

/// A member that is the value at the end of the pointers.
template <auto... Pointers, typename Owner>
constexpr Member<Owner> Value(const char* name, Fault (*read)(Owner&, const JsonScalar&)) {
    return {.name = name, .read = read, .write = [](SheetWriter& writer, const Owner& owner) {
                WriteValue(writer, At<Pointers...>(owner));
            }};
}

template <typename Owner, auto... Pointers>
constexpr Member<Owner> Value(const char* name) {
    return Value<Pointers...>(
        name, +[](Owner& owner, const JsonScalar& value) {
            return ReadValue(value, At<Pointers...>(owner));
        });
}

template <typename Owner>
Fault ReadVersion(Owner& /*owner*/, const JsonScalar& value) {
    if (value.type != JsonScalar::Type::Number) {
        return FileFault::WrongType;
    }
    const std::optional<double> version = value.Number();
    return version && *version <= Version ? Fault() : FileFault::NewerVersion;
}

/// Taxes and insurance are added up, so their sum must be an amount, too.
template <Money WorksheetInFile::*Part>
Fault ReadEscrow(WorksheetInFile& worksheet, const JsonScalar& value) {
    const Fault fault = ReadValue(value, worksheet.*Part);
    std::int64_t sum = 0;
    return !fault && SumOverflows(worksheet.annualTaxes.TenThousandths(),
                                  worksheet.annualInsurance.TenThousandths(), sum)
               ? FileFault::OutOfRange
               : fault;
}

Fault ReadToday(ComparisonRequest& request, const JsonScalar& value) {
    Date today;
    const Fault fault = ReadValue(value, today);
    if (!fault && !value.bytes.isEmpty()) {
        request.today = today;
    }
    return fault;
}

Fault ReadYears(ComparisonRequest& request, const JsonScalar& value) {
    int years = 0;
    const Fault fault = ReadWhole(value, 1, MostYears, years);
    if (!fault) {
        request.years = years;
    }
    return fault;
}

/// A word, or an amount a month; one below zero requires nothing.
Fault ReadPayments(ComparisonRequest& request, const JsonScalar& value) {
    const bool isText = value.type == JsonScalar::Type::Text;
    if (isText && value.bytes == QByteArrayView("intended")) {
        request.payments = PaymentChoice::Intended;
        return {};
    }
    if (isText && value.bytes == QByteArrayView("computed")) {
        request.payments = PaymentChoice::Required;
        return {};
    }
    const Fault fault = ReadValue(value, request.monthlyPayment);
    if (!fault) {
        request.payments = PaymentChoice::Monthly;
    }
    return fault;
}

using Sheet = WorksheetInFile;
using Current = CurrentLoanInput;
using Offer = OfferInFile;

constexpr auto VersionName = "quendLoan";

constexpr std::array RequestMembers{
    Member<ComparisonRequest>{.name = VersionName, .read = ReadVersion},
    Member<ComparisonRequest>{.name = "today", .read = ReadToday},
    Member<ComparisonRequest>{.name = "years", .read = ReadYears},
    Member<ComparisonRequest>{.name = "payments", .read = ReadPayments},
    Member<ComparisonRequest>{
        .name = "worksheet",
        .open = [](ComparisonRequest& request) -> Target { return &request.worksheet; }},
};

constexpr std::array WorksheetMembers{
    Member<Sheet>{
        .name = VersionName,
        .read = ReadVersion,
        .write = [](SheetWriter& writer, const Sheet& /*sheet*/) { writer.Int(Version); }},
    Value<Sheet, &Sheet::name>("name"),
    Value<Sheet, &Sheet::loanType>("loanType"),
    Value<Sheet, &Sheet::amount>("amount"),
    Value<Sheet, &Sheet::term>("termMonths"),
    Value<&Sheet::annualTaxes>("annualTaxes", ReadEscrow<&Sheet::annualTaxes>),
    Value<&Sheet::annualInsurance>("annualInsurance", ReadEscrow<&Sheet::annualInsurance>),
    Member<Sheet>{.name = "current",
                  .write = WriteCurrent,
                  .open = [](Sheet& sheet) -> Target { return &sheet.current; }},
    Member<Sheet>{.name = "offers",
                  .write = WriteOffers,
                  .open = [](Sheet& sheet) -> Target { return &sheet.offers; }},
};

constexpr std::array CurrentMembers{
    Value<Current, &Current::amount>("amount"),
    Value<Current, &Current::term>("termMonths"),
    Value<Current, &Current::rate>("rate"),
    Value<Current, &Current::frequency>("frequency"),
    Value<Current, &Current::balance>("balance"),
    Value<Current, &Current::actualPayment>("actualPayment"),
    Value<Current, &Current::actualFrequency>("actualFrequency"),
    Value<Current, &Current::nextPayment>("nextPayment"),
};

constexpr std::array OfferMembers{
    Value<Offer, &Offer::lender>("lender"),
    Value<Offer, &Offer::offer, &OfferInput::points>("points"),
    Value<Offer, &Offer::offer, &OfferInput::pointsFinanced>("pointsFinanced"),
    Value<Offer, &Offer::offer, &OfferInput::costs>("costs"),
    Value<Offer, &Offer::offer, &OfferInput::rate>("rate"),
    Value<Offer, &Offer::offer, &OfferInput::term>("termMonths"),
    Value<Offer, &Offer::offer, &OfferInput::frequency>("frequency"),
    Value<Offer, &Offer::offer, &OfferInput::actualPayment>("actualPayment"),
};

} // namespace

std::span<const Member<ComparisonRequest>> MembersOf(const ComparisonRequest& /*object*/) {
    return RequestMembers;
}
std::span<const Member<WorksheetInFile>> MembersOf(const WorksheetInFile& /*object*/) {
    return WorksheetMembers;
}
std::span<const Member<CurrentLoanInput>> MembersOf(const CurrentLoanInput& /*object*/) {
    return CurrentMembers;
}
std::span<const Member<OfferInFile>> MembersOf(const OfferInFile& /*object*/) {
    return OfferMembers;
}

QByteArray WriteWorksheet(const WorksheetInFile& worksheet) {
    rapidjson::StringBuffer buffer;
    SheetWriter writer(buffer);
    writer.SetIndent(' ', 2);
    WriteObject(writer, worksheet);
    return QByteArray(buffer.GetString(), static_cast<qsizetype>(buffer.GetSize())) + '\n';
}

} // namespace quend::comparison
