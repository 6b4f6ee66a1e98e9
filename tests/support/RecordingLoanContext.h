#pragma once

#include "CLoan.h"
#include "QuendNames.h"

/// A worksheet for one offer: returns values that the test sets, and counts reports.
class RecordingLoanContext : public LoanContext {
public:
    Months LoanTerm() const override { return loanTerm; }
    Money EscrowMonthly() const override { return escrowMonthly; }
    Date Today() const override { return today; }
    void MarkDirty() override { ++dirtied; }
    void PaymentRefused() override { ++refused; }

    Months loanTerm;
    Money escrowMonthly;
    Date today = Date::FromDays(46'000);
    int dirtied = 0;
    int refused = 0;
};
