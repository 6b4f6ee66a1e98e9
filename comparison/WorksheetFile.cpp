#include "WorksheetFile.h"

#include "FileValues.h"
#include "JsonReader.h"
#include "Overflow.h"
#include "Payment.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <variant>

namespace quend::comparison {

namespace {

using SheetWriter = rapidjson::PrettyWriter<rapidjson::StringBuffer>;
using Offers = std::vector<OfferInFile>;

/// What the members of an open object, or the elements of a list, fill; monostate: nothing.
using Target = std::variant<std::monostate, ComparisonRequest*, WorksheetInFile*, CurrentLoanInput*,
                            Offers*, OfferInFile*>;

constexpr int Version = 1;
constexpr int MostYears = 50;

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

/// A member of an object of the file.
template <typename Owner>
struct Member {
    const char* name;
    Fault (*read)(Owner& owner, const JsonScalar& value) = nullptr; ///< null: a container
    void (*write)(SheetWriter& writer, const Owner& owner) = nullptr;
    Target (*open)(Owner& owner) = nullptr; ///< null: no container
};

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

// The members of each object, in the order in which they are written.

using Sheet = WorksheetInFile;
using Current = CurrentLoanInput;
using Offer = OfferInFile;

constexpr auto VersionName = "quendLoan";

const std::array RequestMembers{
    Member<ComparisonRequest>{.name = VersionName, .read = ReadVersion},
    Member<ComparisonRequest>{.name = "today", .read = ReadToday},
    Member<ComparisonRequest>{.name = "years", .read = ReadYears},
    Member<ComparisonRequest>{.name = "payments", .read = ReadPayments},
    Member<ComparisonRequest>{
        .name = "worksheet",
        .open = [](ComparisonRequest& request) -> Target { return &request.worksheet; }},
};

const std::array WorksheetMembers{
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
    Member<Sheet>{.name = "current", .open = [](Sheet& sheet) -> Target { return &sheet.current; }},
    Member<Sheet>{.name = "offers", .open = [](Sheet& sheet) -> Target { return &sheet.offers; }},
};

const std::array CurrentMembers{
    Value<Current, &Current::amount>("amount"),
    Value<Current, &Current::term>("termMonths"),
    Value<Current, &Current::rate>("rate"),
    Value<Current, &Current::frequency>("frequency"),
    Value<Current, &Current::balance>("balance"),
    Value<Current, &Current::actualPayment>("actualPayment"),
    Value<Current, &Current::actualFrequency>("actualFrequency"),
    Value<Current, &Current::nextPayment>("nextPayment"),
};

const std::array OfferMembers{
    Value<Offer, &Offer::lender>("lender"),
    Value<Offer, &Offer::offer, &OfferInput::points>("points"),
    Value<Offer, &Offer::offer, &OfferInput::pointsFinanced>("pointsFinanced"),
    Value<Offer, &Offer::offer, &OfferInput::costs>("costs"),
    Value<Offer, &Offer::offer, &OfferInput::rate>("rate"),
    Value<Offer, &Offer::offer, &OfferInput::term>("termMonths"),
    Value<Offer, &Offer::offer, &OfferInput::frequency>("frequency"),
    Value<Offer, &Offer::offer, &OfferInput::actualPayment>("actualPayment"),
};

const auto& MembersOf(const ComparisonRequest& /*owner*/) { return RequestMembers; }
const auto& MembersOf(const WorksheetInFile& /*owner*/) { return WorksheetMembers; }
const auto& MembersOf(const CurrentLoanInput& /*owner*/) { return CurrentMembers; }
const auto& MembersOf(const OfferInFile& /*owner*/) { return OfferMembers; }

/// Null for an unknown name.
template <typename Owner>
const Member<Owner>* FindMember(const Owner& owner, QByteArrayView name) {
    const auto& members = MembersOf(owner);
    const auto* const found =
        std::find_if(members.begin(), members.end(),
                     [name](const Member<Owner>& member) { return name == member.name; });
    return found == members.end() ? nullptr : found;
}

/// Fills a request. It passes over what it does not know.
class RequestEvents : public JsonEvents {
public:
    explicit RequestEvents(Target whole) : m_whole(whole) {}

    void Key(QByteArrayView name) override { m_key = name.toByteArray(); }
    Fault Value(const JsonScalar& value) override {
        return m_open.empty()
                   ? FileFault::WrongType
                   : std::visit([&](auto target) { return Read(target, value); }, m_open.back());
    }
    Fault Open(JsonContainer container) override {
        if (m_open.empty()) {
            return Enter(m_whole, container);
        }
        return std::visit([&](auto target) { return OpenIn(target, container); }, m_open.back());
    }
    void Close() override { m_open.pop_back(); }

private:
    static Fault Read(std::monostate /*nothing*/, const JsonScalar& /*value*/) { return {}; }
    static Fault Read(Offers* offers, const JsonScalar& value) {
        if (value.type != JsonScalar::Type::Null) {
            return FileFault::WrongType;
        }
        return AddOffer(*offers);
    }
    template <typename Owner>
    Fault Read(Owner* owner, const JsonScalar& value) const {
        const Member<Owner>* const member = FindMember(*owner, m_key);
        if (member == nullptr || value.type == JsonScalar::Type::Null) {
            return {};
        }
        return member->read != nullptr ? member->read(*owner, value) : FileFault::WrongType;
    }

    Fault OpenIn(std::monostate nothing, JsonContainer /*container*/) {
        m_open.emplace_back(nothing);
        return {};
    }
    Fault OpenIn(Offers* offers, JsonContainer container) {
        const Fault fault = AddOffer(*offers);
        return fault ? fault : Enter(&offers->back(), container);
    }
    template <typename Owner>
    Fault OpenIn(Owner* owner, JsonContainer container) {
        const Member<Owner>* const member = FindMember(*owner, m_key);
        if (member == nullptr) {
            return OpenIn(std::monostate(), container);
        }
        return member->open != nullptr ? Enter(member->open(*owner), container)
                                       : FileFault::WrongType;
    }

    Fault Enter(Target target, JsonContainer container) {
        const bool isList = std::holds_alternative<Offers*>(target);
        if (isList != (container == JsonContainer::List)) {
            return FileFault::WrongType;
        }
        m_open.push_back(target);
        return {};
    }
    static Fault AddOffer(Offers& offers) {
        if (offers.size() == MostOffers) {
            return FileFault::TooManyOffers;
        }
        offers.emplace_back();
        return {};
    }

    Target m_whole;
    std::vector<Target> m_open;
    QByteArray m_key;
};

/// Finds out whether the whole object has a worksheet as a member.
class FormEvents : public JsonEvents {
public:
    bool HasWorksheet() const { return m_hasWorksheet; }

    void Key(QByteArrayView name) override {
        m_isWorksheet = m_levels == 1 && name == QByteArrayView("worksheet");
    }
    Fault Value(const JsonScalar& value) override {
        Note(value.type != JsonScalar::Type::Null);
        return {};
    }
    Fault Open(JsonContainer /*container*/) override {
        Note(true);
        ++m_levels;
        return {};
    }
    void Close() override { --m_levels; }

private:
    void Note(bool isGiven) {
        m_hasWorksheet = m_hasWorksheet || (m_isWorksheet && isGiven);
        m_isWorksheet = false;
    }

    int m_levels = 0;
    bool m_isWorksheet = false;
    bool m_hasWorksheet = false;
};

template <typename Owner>
void WriteMembers(SheetWriter& writer, const Owner& owner) {
    for (const Member<Owner>& member : MembersOf(owner)) {
        if (member.write != nullptr) {
            writer.Key(member.name);
            member.write(writer, owner);
        }
    }
}

} // namespace

ReadResult<ComparisonRequest> ReadRequest(const QByteArray& json) {
    FormEvents form;
    const std::optional<FileError> malformed = ReadJson(json, form);
    // What a number beyond the range of double is depends on its member.
    if (malformed && malformed->fault != FileFault::NotANumber) {
        return {.content = {}, .error = *malformed};
    }
    ComparisonRequest request;
    RequestEvents events(form.HasWorksheet() ? Target(&request) : Target(&request.worksheet));
    if (const std::optional<FileError> error = ReadJson(json, events)) {
        return {.content = {}, .error = *error};
    }
    return {.content = request, .error = {}};
}

QByteArray WriteWorksheet(const WorksheetInFile& worksheet) {
    rapidjson::StringBuffer buffer;
    SheetWriter writer(buffer);
    writer.SetIndent(' ', 2);
    writer.StartObject();
    WriteMembers(writer, worksheet);
    writer.Key("current");
    if (worksheet.current == CurrentLoanInput()) {
        writer.Null();
    } else {
        writer.StartObject();
        WriteMembers(writer, worksheet.current);
        writer.EndObject();
    }
    writer.Key("offers");
    writer.StartArray();
    for (const OfferInFile& offer : worksheet.offers) {
        writer.StartObject();
        WriteMembers(writer, offer);
        writer.EndObject();
    }
    writer.EndArray();
    writer.EndObject();
    return QByteArray(buffer.GetString(), static_cast<qsizetype>(buffer.GetSize())) + '\n';
}

ComparisonInput ToInput(const ComparisonRequest& request, Date today) {
    const WorksheetInFile& worksheet = request.worksheet;
    ComparisonInput input;
    input.today = request.today.value_or(today);
    input.years = request.years.value_or(input.years);
    input.choice = request.payments.value_or(input.choice);
    input.monthlyPayment = request.monthlyPayment;
    input.amount = worksheet.amount;
    input.term = worksheet.term;
    input.escrowMonthly = MonthlyEscrow(worksheet.annualTaxes, worksheet.annualInsurance);
    input.current = worksheet.current;
    for (const OfferInFile& offer : worksheet.offers) {
        input.offers.push_back(offer.offer);
    }
    return input;
}

} // namespace quend::comparison
