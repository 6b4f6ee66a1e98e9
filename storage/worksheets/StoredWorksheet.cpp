#include "StoredWorksheet.h"

#include "StoreNames.h"

#include <algorithm>
#include <string_view>

namespace quend::storage {

namespace {

/// After the values of one group.
constexpr int Last = 100;

/// The value under which a failed recalculation is reported, by the first field that it shows.
const KeptValue& CauseOf(FieldId result) {
    const char* name = result == FieldId::MonthlyEscrow ? EscrowInsuranceName
                       : result == FieldId::CurPayment  ? CurrentPaymentName
                                                        : CurrentActualPaymentName;
    return *std::ranges::find_if(KeptWorksheetValues(), [&](const KeptValue& value) {
        return value.name == std::string_view(name);
    });
}

} // namespace

std::string OfferPrefix(int number) { return "Loan " + std::to_string(number); }

StoredWorksheet::Values StoredWorksheet::ReadGroup(const ReadValue& read, const std::string& prefix,
                                                   std::span<const KeptValue> values) {
    Values group;
    for (const KeptValue& value : InOrderOfReading(values)) {
        group.push_back(read(prefix + value.name, value.type, value.Missing()));
    }
    return group;
}

void StoredWorksheet::ReadBy(const ReadValue& read) {
    m_loan = ReadGroup(read, "", KeptWorksheetValues());
    m_count = std::get<std::int32_t>(read(LoanCountName, RegistryType::Number, std::int32_t{0}));
    m_dateFormat = std::get<std::string>(read(DateFormatName, RegistryType::Text, std::string()));
    for (int number = 1; number <= std::min(m_count, MostOffers); ++number) {
        m_offers.push_back(ReadGroup(read, OfferPrefix(number), KeptOfferValues()));
    }
}

void StoredWorksheet::Read(const RegistryAPI& store, const std::string& key) {
    ReadBy([&](const std::string& name, std::int16_t type, const RegistryValue& missing) {
        return store.GetValue(StoreRoot, key, name, type, missing);
    });
}

void StoredWorksheet::Read(const std::vector<NamedValue>& values) {
    ReadBy([&](const std::string& name, std::int16_t type, const RegistryValue& missing) {
        const auto found = std::ranges::find_if(values, [&](const NamedValue& value) {
            return value.name == name && value.type == type;
        });
        return found == values.end() ? missing : found->value;
    });
}

template <class Step>
void StoredWorksheet::Try(Place place, const std::string& value, Step step) {
    try {
        step();
    } catch (const Failure& failure) {
        m_failures.emplace(place, Failure(failure.Number(), value, failure.Description()));
    }
}

std::vector<Failure> StoredWorksheet::Put(Worksheet& worksheet, const QString& name,
                                          const std::function<void(Row)>& growTo) {
    const auto store = [&] {
        worksheet.Clear();
        worksheet.SetLoanName(name);
        PutLoan(worksheet);
        CheckCount();
        if (!m_offers.empty()) {
            growTo(Row{static_cast<int>(m_offers.size()) - 1});
        }
        PutOffers(worksheet);
    };
    worksheet.StoreTogether(
        store, [&](Field result, const auto& step) { Compute(worksheet, result, step); });
    worksheet.ClearDirty();
    std::vector<Failure> failures;
    for (const auto& [place, failure] : m_failures) {
        failures.push_back(failure);
    }
    return failures;
}

void StoredWorksheet::PutValue(Worksheet& worksheet, Field field,
                               const RegistryValue& value) const {
    const StoredTexts texts(m_formats, m_dateFormat);
    worksheet.Store(field, FromStored(value, worksheet.Value(field), texts));
}

/// All but the payment, which is computed first.
void StoredWorksheet::PutLoan(Worksheet& worksheet) {
    const auto values = InOrderOfReading(KeptWorksheetValues());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const KeptValue& value = values[i];
        if (value.field != FieldId::CurPayment && m_loan.at(i) != value.Missing()) {
            Try({0, value.readPlace}, value.name,
                [&] { PutValue(worksheet, {value.field}, m_loan[i]); });
        }
    }
}

void StoredWorksheet::CheckCount() {
    Try({0, Last}, LoanCountName, [&] {
        if (m_count < 0 || m_count > MostOffers) {
            throw OverflowFailure(LoanCountName);
        }
    });
}

/// The offers fill the first rows without gaps.
void StoredWorksheet::PutOffers(Worksheet& worksheet) {
    const auto values = InOrderOfReading(KeptOfferValues());
    for (std::size_t i = 0; i < m_offers.size(); ++i) {
        const Row row{static_cast<int>(i)};
        if (row > worksheet.HighestOfferRow()) {
            break;
        }
        const int number = row.value + 1;
        for (std::size_t v = 0; v < values.size(); ++v) {
            Try({number, values[v].readPlace}, OfferPrefix(number) + values[v].name, [&] {
                PutValue(worksheet, {values[v].field, row}, m_offers[i].at(v));
            });
        }
    }
}

template <class Step>
void StoredWorksheet::Compute(Worksheet& worksheet, Field result, Step step) {
    if (result.row != Field::NoRow) {
        const int number = result.row.value + 1;
        return Try({number, Last}, OfferPrefix(number), step);
    }
    const KeptValue& cause = CauseOf(result.id);
    const Place place{0, cause.readPlace};
    Try(place, cause.name, step);
    if (result.id == FieldId::CurPayment) {
        // It keeps the saved value until one of its inputs is entered again.
        const auto index = static_cast<std::size_t>(cause.readPlace - 1);
        Try(place, cause.name, [&] { PutValue(worksheet, result, m_loan.at(index)); });
    }
}

} // namespace quend::storage
