#pragma once

#include "ComparedWorksheet.h"
#include "DisplayFormats.h"
#include "FieldValue.h"

#include <QString>

#include <optional>

namespace quend::compare {

/// A question that a borrower asks the other way round.
struct PaymentQuestion {
    enum class Kind {
        PaymentByYears, ///< what payment ends the loan in so many years
        PaymentByDate,
        AmountAfforded, ///< what amount a payment affords
        RateNeeded,     ///< what rate a payment needs
    };
    Kind kind = Kind::PaymentByYears;
    int place = 0; ///< of an offer, or CurrentLoanPlace; only payments are asked of the latter
    int years = 1;
    Date day;
    Money payment; ///< escrow included
};

struct PaymentAnswer {
    QString sentence;
    /// What "Use" enters, and where: a payment as the intended one, an amount as the amount wanted,
    /// a rate as that of the offer. None where there is no answer.
    std::optional<FieldValue> value;
    FieldId field = FieldId::ActualPayment;
};

PaymentAnswer AnswerTo(const PaymentQuestion& question, const ComparedWorksheet& worksheet,
                       const DisplayFormats& formats);

/// The loans that can be asked about: the offers with a frequency that are not blank, in the order
/// of the rows, then the loan held today where something is owed.
std::vector<int> PlacesToAskAbout(const ComparedWorksheet& worksheet);

} // namespace quend::compare
