#pragma once

#include "DisplayFormats.h"
#include "Failure.h"
#include "RegistryAPI.h"
#include "StorageNames.h"
#include "Worksheet.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quend::storage {

/// The largest number of offers that is ever saved; a larger count is damage.
inline constexpr std::int32_t MostOffers = 16;

inline constexpr const char* LoanCountName = "LoanCount";
/// The only value that is both saved and calculated.
inline constexpr const char* CurrentPaymentName = "CurrentPayment";
/// The format of the worksheet's date. Not a property: only needed for reading.
inline constexpr const char* DateFormatName = "DateFormat";
/// Set by a recovery that could not find all values of the worksheet. Not a property.
inline constexpr const char* IncompleteName = "Incomplete";

/// The prefix of the names of an offer's values, such as "Loan 3". Offers are numbered from 1.
std::string OfferPrefix(int number);

/// Loads a saved worksheet in two phases: reads all values, then assigns them to a worksheet one by
/// one. This way the store is not held open during calculation.
class StoredWorksheet {
public:
    explicit StoredWorksheet(DisplayFormats formats) : m_formats(std::move(formats)) {}

    void Read(const RegistryAPI& store, const std::string& key);

    /// Replaces the contents of the worksheet and clears Dirty. Returns the failures of values that
    /// could not be assigned; their sources are the names of the values.
    std::vector<Failure> Put(Worksheet& worksheet, const QString& name,
                             const std::function<void(Row)>& growTo);

private:
    using Values = std::vector<RegistryValue>;
    /// Runs a step; records a failure under the name of the value.
    template <class Step>
    void Try(const std::string& value, Step step);
    void CheckCount();
    void PutOffers(Worksheet& worksheet);

    DisplayFormats m_formats;
    Values m_loan; // in reading order, as is m_offers
    std::vector<Values> m_offers;
    std::int32_t m_count = 0;
    std::string m_dateFormat;
    std::vector<Failure> m_failures;
};

} // namespace quend::storage
