#pragma once

#include "ModelNames.h"

#include <QLatin1String>

#include <compare>
#include <cstddef>
#include <span>

namespace quend::model {

/// A row of the offer area, counted from 0 at the top. Not an offer: after a sort row 0 shows an
/// offer other than offer 0. Only OfferOrder maps one to the other.
struct Row {
    int value = 0;
    friend constexpr auto operator<=>(Row, Row) = default;
};

/// The position of an offer in the worksheet, counted from 0 in the order of entry.
struct OfferIndex {
    std::size_t value = 0;
    friend constexpr auto operator<=>(OfferIndex, OfferIndex) = default;
};

/// Every value of the worksheet that is shown, typed or computed.
enum class FieldId {
    LoanName,
    LoanType,
    LoanAmount,
    LoanTerm,
    AnnualTaxes,
    AnnualInsurance,
    MonthlyEscrow,
    CurLoanAmount,
    CurLoanTerm,
    CurInterestRate,
    CurPaymentFrequency,
    CurPayment,
    CurrentBalance,
    CurActualPayment,
    ActPaymentFrequency,
    NextPayment,
    CurAmountLeft,
    CurInterestLeft,
    CurPayoffDate,
    // One of each in every row of offers, in the order of the columns.
    FinancePoints,
    Points,
    InterestRate,
    Term,
    Frequency,
    PandI,
    Payment,
    ActualPayment,
    PayoffDate,
    Interest,
    Who,
    // Kept with an offer; the main window has no control for it.
    Costs,
};

/// What a field holds; it decides how the text is read and shown.
enum class ValueKind {
    Amount,         ///< Money, shown as currency
    Rate,           ///< a Rate, typed and shown in percent (6.5)
    Percent,        ///< a Percent, such as points, typed and shown as it is
    WholeTerm,      ///< whole months; typed in whole months or whole years
    FractionalTerm, ///< whole months; typed in whole months or in years and parts of years
    LoanType,       ///< a LoanTypeCode, picked from a list
    Frequency,      ///< a FrequencyCode, picked from a list
    Flag,           ///< ticked or not
    Date,           ///< a calendar date
    Text,           ///< free text
};

enum class Access { Input, Result };

/// A field of the worksheet: a control above the offers (no row) or in one row of offers.
struct Field {
    FieldId id = FieldId::LoanName;
    Row row = NoRow;

    static constexpr Row NoRow{-1};
    friend constexpr auto operator<=>(const Field&, const Field&) = default;
};

/// The fixed properties of a field.
struct FieldRule {
    FieldId id = FieldId::LoanName;
    /// The name of its control; in a row, that of the control array. Null: it has none.
    QLatin1String control;
    ValueKind kind = ValueKind::Text;
    Access access = Access::Input;
    int decimals = 0;          ///< the most digits after the decimal symbol; 0 forbids the symbol
    bool separatorKey = false; ///< whether the decimal symbol can be typed

    constexpr bool IsNumber() const {
        return kind == ValueKind::Amount || kind == ValueKind::Rate || kind == ValueKind::Percent ||
               kind == ValueKind::WholeTerm || kind == ValueKind::FractionalTerm;
    }

    constexpr bool IsChoice() const {
        return kind == ValueKind::LoanType || kind == ValueKind::Frequency;
    }

    /// Its text is read when the field is left, and may be refused.
    constexpr bool IsTyped() const {
        return access == Access::Input && (IsNumber() || kind == ValueKind::Date);
    }
};

/// The fields above the offers, in tab order.
std::span<const FieldRule> LoanFields();

/// The fields of one row of offers, in the order of the columns; those without a column are not
/// among them.
std::span<const FieldRule> OfferFields();

/// The rule of a field. Every identifier has one.
const FieldRule& RuleOf(FieldId id);

/// The format hint for a number with this many decimals, such as " nnnn.nn". It begins with a blank
/// and is the same in every language and locale.
QLatin1String NumberPicture(int decimals);

} // namespace quend::model
