#pragma once

#include "Comparison.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quend::comparison {

/// An offer as a file of worksheets holds it.
struct OfferInFile {
    QString lender;
    OfferInput offer;

    friend bool operator==(const OfferInFile&, const OfferInFile&) = default;
};

/// A worksheet as a file holds it: what was entered, and nothing computed.
struct WorksheetInFile {
    QString name;
    QString loanType;
    Money amount;
    Months term;
    Money annualTaxes;
    Money annualInsurance;
    CurrentLoanInput current;
    std::vector<OfferInFile> offers; ///< at most MostOffers

    friend bool operator==(const WorksheetInFile&, const WorksheetInFile&) = default;
};

/// A worksheet and how to compare its offers; what is none was not given.
struct ComparisonRequest {
    WorksheetInFile worksheet;
    std::optional<Date> today;
    std::optional<int> years; ///< 1 to MostYears
    std::optional<PaymentChoice> payments;
    Money monthlyPayment; ///< for PaymentChoice::Monthly
};

/// Why a file was refused.
enum class FileFault {
    NotJson,     ///< not well-formed, or not UTF-8
    TooLarge,    ///< more bytes than MostBytes
    TooDeep,     ///< values nested deeper than any worksheet's
    Duplicate,   ///< a member twice
    WrongType,   ///< a text where a number belongs, and the like
    NotAnAmount, ///< not an amount of at most four decimals within the range of money
    NotANumber,  ///< no number, negative, or not whole where it has to be
    OutOfRange,  ///< a number outside the range of its member
    NoSuchDate,
    TooManyOffers,
    NewerVersion, ///< written by a newer program
};

struct FileError {
    FileFault fault = FileFault::NotJson;
    int line = 1;   ///< from 1
    QString member; ///< such as "offers[2].rate", places from 1; empty: the file as a whole
};

inline constexpr int MostOffers = 16;
inline constexpr int MostBytes = 1'000'000;

/// A file's content, or why it cannot be read. One of both.
template <typename Content>
struct ReadResult {
    std::optional<Content> content;
    FileError error; ///< while there is no content
};

/// Reads a worksheet, or an object with one as its member "worksheet" and what else a request has.
/// Nothing is taken from a file with an error; taxes and insurance that add up to more than the
/// range of money are one (OutOfRange, of the latter member). An unknown member is passed over,
/// null is as if missing; in the list of offers it is a blank one, which keeps its place. Raises
/// nothing. The cost is linear in the bytes.
ReadResult<ComparisonRequest> ReadRequest(const QByteArray& json);

/// As text for people and programs, indented. Reading it gives the same worksheet, if it holds only
/// what a file may hold: what ReadRequest refuses (a negative rate, too many offers) is written as
/// it is, a rate or points that are no number as null. Raises nothing.
QByteArray WriteWorksheet(const WorksheetInFile& worksheet);

/// The input of a comparison. What the request does not say is today as given, 5 years and the
/// intended payments. Raises nothing for a request that was read; otherwise OverflowFailure where
/// taxes and insurance add up to more than the range of money.
ComparisonInput ToInput(const ComparisonRequest& request, Date today);

} // namespace quend::comparison
