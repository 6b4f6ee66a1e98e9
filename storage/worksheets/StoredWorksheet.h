#pragma once

#include "DisplayFormats.h"
#include "Failure.h"
#include "RegistryAPI.h"
#include "StorageNames.h"
#include "Worksheet.h"
#include "WorksheetValues.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace quend::storage {

/// The largest number of offers that is ever saved; a larger count is damage.
inline constexpr std::int32_t MostOffers = 16;

inline constexpr const char* LoanCountName = "LoanCount";
// A failed recalculation is reported under the last of its inputs that is read, but for the
// payment, the only value that is both saved and calculated.
inline constexpr const char* EscrowInsuranceName = "EscrowInsurance";
inline constexpr const char* CurrentPaymentName = "CurrentPayment";
inline constexpr const char* CurrentActualPaymentName = "CurrentActualPayment";
/// The format of the worksheet's date. Not a property: only needed for reading.
inline constexpr const char* DateFormatName = "DateFormat";
/// Set by a recovery that could not find all values of the worksheet. Not a property.
inline constexpr const char* IncompleteName = "Incomplete";

/// The prefix of the names of an offer's values, such as "Loan 3". Offers are numbered from 1.
std::string OfferPrefix(int number);

/// Loads a saved worksheet in two phases: reads all values, then stores them in a worksheet, which
/// computes its results once. This way the store is not held open during calculation.
class StoredWorksheet {
public:
    explicit StoredWorksheet(DisplayFormats formats) : m_formats(std::move(formats)) {}

    void Read(const RegistryAPI& store, const std::string& key);
    /// From all values of a worksheet.
    void Read(const std::vector<NamedValue>& values);

    /// Replaces the contents of the worksheet and clears Dirty. Returns the failures of values that
    /// could not be stored or computed; their sources are the names of the values.
    std::vector<Failure> Put(Worksheet& worksheet, const QString& name,
                             const std::function<void(Row)>& growTo);

private:
    using Values = std::vector<RegistryValue>;
    /// The value of this name and type, or `missing`.
    using ReadValue = std::function<RegistryValue(const std::string& name, std::int16_t type,
                                                  const RegistryValue& missing)>;
    void ReadBy(const ReadValue& read);
    static Values ReadGroup(const ReadValue& read, const std::string& prefix,
                            std::span<const KeptValue> values);
    /// Orders the failures: the values of the loan, then those of each offer, as they are read.
    struct Place {
        int offer = 0; ///< its number; 0 for the loan
        int value = 0;
        friend auto operator<=>(Place, Place) = default;
    };
    /// Runs a step; records a failure under the name of the value.
    template <class Step>
    void Try(Place place, const std::string& value, Step step);
    void PutValue(Worksheet& worksheet, Field field, const RegistryValue& value) const;
    void PutLoan(Worksheet& worksheet);
    void CheckCount();
    void PutOffers(Worksheet& worksheet);
    template <class Step>
    void Compute(Worksheet& worksheet, Field result, Step step);

    DisplayFormats m_formats;
    Values m_loan; // in reading order, as is m_offers
    std::vector<Values> m_offers;
    std::int32_t m_count = 0;
    std::string m_dateFormat;
    std::multimap<Place, Failure> m_failures;
};

} // namespace quend::storage
