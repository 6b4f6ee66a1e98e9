#pragma once

#include "DisplayFormats.h"
#include "Failure.h"
#include "RegistryAPI.h"
#include "Worksheet.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// The most offers that are ever kept; a count beyond it is damage.
inline constexpr std::int32_t MostOffers = 16;

inline constexpr const char* LoanCountName = "LoanCount";
/// The one value that is both kept and computed.
inline constexpr const char* CurrentPaymentName = "CurrentPayment";
/// The form in which the worksheet's date was written. Not a property: it only tells how to read.
inline constexpr const char* DateFormatName = "DateFormat";
/// Set by a repair that could not find all values of the worksheet. No property either.
inline constexpr const char* IncompleteName = "Incomplete";

/// What the names of an offer's values begin with: "Loan 3". Offers are numbered from 1.
std::string OfferPrefix(int number);

/// A kept worksheet on its way from the store: first read whole, then put into a worksheet value by
/// value, so that the store is not held while anything is calculated.
class LoadedLoan {
public:
    explicit LoadedLoan(DisplayFormats formats) : m_formats(std::move(formats)) {}

    void Read(const RegistryAPI& store, const std::string& key);

    /// Replaces what the worksheet holds, and clears Dirty. Gives the failures of the values that
    /// could not be put, their sources the values' names.
    std::vector<Failure> Put(Worksheet& worksheet, const QString& name,
                             const std::function<void(Row)>& growTo);

private:
    using Values = std::vector<RegistryValue>;
    /// Runs a step; a failure is kept under the name of the value.
    template <class Step>
    void Try(const std::string& value, Step step);
    void CheckCount();
    void PutOffers(Worksheet& worksheet);

    DisplayFormats m_formats;
    Values m_loan; // in the order of reading, as below
    std::vector<Values> m_offers;
    std::int32_t m_count = 0;
    std::string m_dateFormat;
    std::vector<Failure> m_failures;
};
