#pragma once

#include "QuendNames.h"
#include "Worksheet.h"

/// Every value of the new loan and the current loan; the caller adds the offers.
inline void FillSampleLoans(Worksheet& sheet) {
    sheet.SetLoanName(QStringLiteral("Our new home"));
    sheet.SetLoanType(LoanTypeCode(QStringLiteral("M")));
    sheet.SetLoanAmount(Money::FromDouble(250'000));
    sheet.SetLoanTerm(Months{360});
    sheet.SetEscrowTaxes(Money::FromDouble(3'600));
    sheet.SetEscrowInsurance(Money::FromDouble(1'200));
    sheet.SetCurrentLoanAmount(Money::FromDouble(230'000));
    sheet.SetCurrentTerm(Months{360});
    sheet.SetCurrentInterestRate(Rate::FromFraction(0.0725));
    sheet.SetCurrentBalance(Money::FromDouble(198'450.75));
    sheet.SetCurrentActualPayment(Money::FromDouble(2'050));
}

/// The rates rise slightly from row to row.
inline double SampleRate(Row row) { return 0.055 + 0.00125 * row.value; }
