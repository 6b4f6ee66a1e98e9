#include "WorksheetFile.h"

#include "JsonReader.h"
#include "Payment.h"
#include "WorksheetMembers.h"

#include <algorithm>
#include <variant>

namespace quend::comparison {

namespace {

using Offers = std::vector<OfferInFile>;

/// Null for an unknown name.
template <typename Owner>
const Member<Owner>* FindMember(const Owner& owner, QByteArrayView name) {
    const auto members = MembersOf(owner);
    const auto found =
        std::find_if(members.begin(), members.end(),
                     [name](const Member<Owner>& member) { return name == member.name; });
    return found == members.end() ? nullptr : &*found;
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
