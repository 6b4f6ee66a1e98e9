#pragma once

#include "CLoan.h"

/// A worksheet for one offer: answers with what a test sets, and counts what is reported to it.
class RecordingLoanContext : public LoanContext {
public:
    int LoanTerm() const override { return loanTerm; }
    Money EscrowMonthly() const override { return escrowMonthly; }
    Date Today() const override { return today; }
    void MarkDirty() override { ++dirtied; }
    void PaymentRefused() override { ++refused; }

    int loanTerm = 0;
    Money escrowMonthly;
    Date today = Date::FromDays(46'000);
    int dirtied = 0;
    int refused = 0;
};
