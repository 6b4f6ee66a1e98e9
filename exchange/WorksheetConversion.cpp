#include "WorksheetConversion.h"

#include "FieldValue.h"
#include "Frequency.h"
#include "LoanTypes.h"
#include "Worksheet.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace quend::exchange {

namespace {

/// One member of a file and its field.
template <typename Owner>
struct FileValue {
    const char* member;
    FieldId field;
    /// Throws ConversionFailure for a code that is unknown: it would silently empty the results.
    FieldValue (*get)(const Owner& owner);
    void (*set)(Owner& owner, const FieldValue& value);
};

template <auto Member, auto... Further>
auto& At(auto& owner) {
    if constexpr (sizeof...(Further) == 0) {
        return owner.*Member;
    } else {
        return At<Further...>(owner.*Member);
    }
}

FieldValue Checked(const FieldValue& value) {
    const auto* code = std::get_if<FrequencyCode>(&value);
    return code == nullptr || code->IsNone() || FindFrequency(*code) != nullptr
               ? value
               : throw ConversionFailure(ProgramSource);
}

/// The value at the end of the pointers.
template <typename Owner, auto... Members>
constexpr FileValue<Owner> Value(const char* member, FieldId field) {
    return {.member = member,
            .field = field,
            .get = [](const Owner& owner) { return Checked(At<Members...>(owner)); },
            .set =
                [](Owner& owner, const FieldValue& value) {
                    auto& kept = At<Members...>(owner);
                    kept = std::get<std::decay_t<decltype(kept)>>(value);
                }};
}

using Sheet = WorksheetInFile;
using Current = CurrentLoanInput;
using Offer = OfferInFile;

FieldValue ReadLoanType(const Sheet& sheet) {
    const LoanTypeCode code = LoanTypeTextToCodeInAnyLanguage(sheet.loanType);
    return code.IsNone() && !sheet.loanType.isEmpty() ? throw ConversionFailure(ProgramSource)
                                                      : code;
}

void WriteLoanType(Sheet& sheet, const FieldValue& value) {
    sheet.loanType = LoanTypeCodeToEnglish(std::get<LoanTypeCode>(value));
}

template <auto Member>
constexpr FileValue<Sheet> CurrentValue(const char* member, FieldId field) {
    return Value<Sheet, &Sheet::current, Member>(member, field);
}

template <auto Member>
constexpr FileValue<Offer> OfferValue(const char* member, FieldId field) {
    return Value<Offer, &Offer::offer, Member>(member, field);
}

// In the order of storing, which is that of a saved worksheet.
constexpr std::array SheetValues{
    Value<Sheet, &Sheet::name>("name", FieldId::LoanName),
    FileValue<Sheet>{"loanType", FieldId::LoanType, ReadLoanType, WriteLoanType},
    Value<Sheet, &Sheet::amount>("amount", FieldId::LoanAmount),
    Value<Sheet, &Sheet::term>("termMonths", FieldId::LoanTerm),
    Value<Sheet, &Sheet::annualTaxes>("annualTaxes", FieldId::AnnualTaxes),
    Value<Sheet, &Sheet::annualInsurance>("annualInsurance", FieldId::AnnualInsurance),
    CurrentValue<&Current::amount>("current.amount", FieldId::CurLoanAmount),
    CurrentValue<&Current::term>("current.termMonths", FieldId::CurLoanTerm),
    CurrentValue<&Current::rate>("current.rate", FieldId::CurInterestRate),
    CurrentValue<&Current::balance>("current.balance", FieldId::CurrentBalance),
    CurrentValue<&Current::actualFrequency>("current.actualFrequency",
                                            FieldId::ActPaymentFrequency),
    CurrentValue<&Current::frequency>("current.frequency", FieldId::CurPaymentFrequency),
    CurrentValue<&Current::nextPayment>("current.nextPayment", FieldId::NextPayment),
    CurrentValue<&Current::actualPayment>("current.actualPayment", FieldId::CurActualPayment),
};

constexpr std::array OfferValues{
    OfferValue<&OfferInput::actualPayment>("actualPayment", FieldId::ActualPayment),
    OfferValue<&OfferInput::term>("termMonths", FieldId::Term),
    OfferValue<&OfferInput::pointsFinanced>("pointsFinanced", FieldId::FinancePoints),
    OfferValue<&OfferInput::points>("points", FieldId::Points),
    OfferValue<&OfferInput::rate>("rate", FieldId::InterestRate),
    OfferValue<&OfferInput::frequency>("frequency", FieldId::Frequency),
    Value<Offer, &Offer::lender>("lender", FieldId::Who),
    OfferValue<&OfferInput::costs>("costs", FieldId::Costs),
};

/// Stores the values of a file. Collects the failures in the order of the rows, those of the values
/// above the offers first.
class Putting {
public:
    Putting(const WorksheetInFile& file, Worksheet& worksheet)
        : m_file(&file), m_worksheet(&worksheet) {}

    void PutSheet() {
        for (const FileValue<Sheet>& value : SheetValues) {
            Try(Field::NoRow, value.member, [&] {
                if (const FieldValue got = value.get(*m_file); !IsZero(got)) {
                    m_worksheet->Store({value.field}, got);
                }
            });
        }
    }

    void PutOffers() {
        const int rows = m_worksheet->HighestOfferRow().value + 1;
        Row row{0};
        for (const Offer& offer : std::span(m_file->offers).first(Taken(rows))) {
            for (const FileValue<Offer>& value : OfferValues) {
                Try(row, Place(row) + '.' + value.member, [&] {
                    m_worksheet->Store({value.field, row}, value.get(offer));
                });
            }
            ++row.value;
        }
    }

    /// A failed recalculation is reported under the last of its inputs that is stored.
    void Compute(Field result, const std::function<void()>& step) {
        if (result.row != Field::NoRow) {
            Try(result.row, Place(result.row), step);
        } else {
            Try(Field::NoRow,
                result.id == FieldId::MonthlyEscrow ? "annualInsurance"
                : result.id == FieldId::CurPayment  ? "current"
                                                    : "current.actualPayment",
                step);
        }
    }

    std::vector<Failure> Failures() {
        std::ranges::stable_sort(m_failures, {}, &std::pair<Row, Failure>::first);
        std::vector<Failure> failures;
        for (const auto& [row, failure] : m_failures) {
            failures.push_back(failure);
        }
        return failures;
    }

private:
    static std::string Place(Row row) { return "offers[" + std::to_string(row.value + 1) + ']'; }

    std::size_t Taken(int rows) const {
        return std::min(m_file->offers.size(), static_cast<std::size_t>(rows));
    }

    template <class Step>
    void Try(Row row, const std::string& member, const Step& step) {
        try {
            step();
        } catch (const Failure& failure) {
            m_failures.emplace_back(row, Failure(failure.Number(), member, failure.Description()));
        }
    }

    const WorksheetInFile* m_file;
    Worksheet* m_worksheet;
    std::vector<std::pair<Row, Failure>> m_failures;
};

} // namespace

WorksheetInFile ToFile(const Worksheet& worksheet) {
    WorksheetInFile file;
    for (const FileValue<Sheet>& value : SheetValues) {
        value.set(file, worksheet.Value({value.field}));
    }
    const Date next = std::exchange(file.current.nextPayment, {});
    if (file.current != CurrentLoanInput()) {
        file.current.nextPayment = next;
    }
    file.offers.resize(worksheet.OfferCount());
    for (OfferIndex index{0}; index.value < worksheet.OfferCount(); ++index.value) {
        for (const FileValue<Offer>& value : OfferValues) {
            value.set(file.offers[index.value], worksheet.Value(value.field, index));
        }
    }
    while (!file.offers.empty() && file.offers.back() == Offer()) {
        file.offers.pop_back();
    }
    return file;
}

std::vector<Failure> PutFile(const WorksheetInFile& file, Worksheet& worksheet,
                             const std::function<void(Row)>& growTo) {
    Putting putting(file, worksheet);
    const auto store = [&] {
        worksheet.Clear();
        putting.PutSheet();
        if (!file.offers.empty()) {
            growTo(Row{static_cast<int>(file.offers.size()) - 1});
        }
        putting.PutOffers();
    };
    worksheet.StoreTogether(store,
                            [&](Field result, const auto& step) { putting.Compute(result, step); });
    return putting.Failures();
}

} // namespace quend::exchange
