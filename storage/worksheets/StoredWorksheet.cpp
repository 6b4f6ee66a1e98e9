#include "StoredWorksheet.h"

#include "StoreNames.h"
#include "WorksheetValues.h"

#include <algorithm>
#include <string_view>

namespace quend::storage {

namespace {

template <class Owner>
std::vector<RegistryValue> ReadValues(const RegistryAPI& store, const std::string& key,
                                      const std::string& prefix,
                                      std::span<const KeptValue<Owner>> values) {
    std::vector<RegistryValue> read;
    for (const KeptValue<Owner>* value : InOrderOfReading(values)) {
        read.push_back(
            store.GetValue(StoreRoot, key, prefix + value->name, value->type, value->Missing()));
    }
    return read;
}

} // namespace

std::string OfferPrefix(int number) { return "Loan " + std::to_string(number); }

void StoredWorksheet::Read(const RegistryAPI& store, const std::string& key) {
    m_loan = ReadValues(store, key, "", KeptWorksheetValues());
    m_count = std::get<std::int32_t>(
        store.GetValue(StoreRoot, key, LoanCountName, RegistryType::Number, std::int32_t{0}));
    m_dateFormat = std::get<std::string>(
        store.GetValue(StoreRoot, key, DateFormatName, RegistryType::Text, std::string()));
    for (int number = 1; number <= std::min(m_count, MostOffers); ++number) {
        m_offers.push_back(ReadValues(store, key, OfferPrefix(number), KeptOfferValues()));
    }
}

template <class Step>
void StoredWorksheet::Try(const std::string& value, Step step) {
    try {
        step();
    } catch (const Failure& failure) {
        m_failures.emplace_back(failure.Number(), value, failure.Description());
    }
}

void StoredWorksheet::CheckCount() {
    Try(LoanCountName, [&] {
        if (m_count < 0 || m_count > MostOffers) {
            throw OverflowFailure(LoanCountName);
        }
    });
}

std::vector<Failure> StoredWorksheet::Put(Worksheet& worksheet, const QString& name,
                                          const std::function<void(Row)>& growTo) {
    // An old offer must not be calculated with a new amount.
    worksheet.Clear();
    worksheet.SetLoanName(name);
    const StoredTexts texts(m_formats, m_dateFormat);
    const auto values = InOrderOfReading(KeptWorksheetValues());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isPayment = values[i]->name == std::string_view(CurrentPaymentName);
        if (isPayment) {
            // Its inputs are loaded by now, and missing ones get marked. The payment itself keeps
            // the saved value until one of its inputs is entered again.
            Try(CurrentPaymentName, [&] { worksheet.RecalculateCurrentPayment(); });
        }
        const bool isMissing = m_loan.at(i) == values[i]->Missing();
        Try(values[i]->name, [&] {
            if (!isMissing || isPayment) {
                values[i]->read(worksheet, m_loan.at(i), texts);
            }
        });
    }
    CheckCount();
    if (!m_offers.empty()) {
        growTo(Row{static_cast<int>(m_offers.size()) - 1});
    }
    PutOffers(worksheet);
    worksheet.ClearDirty();
    return m_failures;
}

/// The offers fill the first rows without gaps.
void StoredWorksheet::PutOffers(Worksheet& worksheet) {
    const StoredTexts texts(m_formats, m_dateFormat);
    const auto values = InOrderOfReading(KeptOfferValues());
    for (std::size_t i = 0; i < m_offers.size(); ++i) {
        const Row row{static_cast<int>(i)};
        if (row > worksheet.HighestOfferRow()) {
            break;
        }
        CLoan& offer = worksheet.OfferOfRow(row);
        for (std::size_t v = 0; v < values.size(); ++v) {
            Try(OfferPrefix(row.value + 1) + values[v]->name,
                [&] { values[v]->read(offer, m_offers[i].at(v), texts); });
        }
        Try(OfferPrefix(row.value + 1), [&] { worksheet.ShowOffer(row); });
    }
}

} // namespace quend::storage
