#include "LeftOutText.h"

#include "CommandTextNumbers.h"
#include "Frequency.h"
#include "Language.h"

#include <array>

namespace quend::comparison {

namespace {

namespace TextNumber = language::TextNumber;

/// In the order of LeftOut.
constexpr std::array Reasons{TextNumber::LeftOutNoAmount,    TextNumber::LeftOutNoRate,
                             TextNumber::LeftOutNoFrequency, TextNumber::LeftOutNoTerm,
                             TextNumber::LeftOutNoPayment,   TextNumber::LeftOutNeverEnds};

int CurrentReason(const CurrentLoanInput& current) {
    if (current == CurrentLoanInput()) {
        return TextNumber::NoCurrentLoan;
    }
    if (current.balance <= Money()) {
        return TextNumber::CurrentNoBalance;
    }
    if (current.actualPayment <= Money()) {
        return TextNumber::CurrentNoPayment;
    }
    return FindFrequency(current.actualFrequency) == nullptr ? TextNumber::CurrentNoFrequency
                                                             : TextNumber::CurrentNeverEnds;
}

} // namespace

QString LeftOutText(LeftOut reason, const QString& offer) {
    if (reason == LeftOut::No) {
        return {};
    }
    const int text = Reasons.at(static_cast<std::size_t>(reason) - 1);
    return language::GetResourceText(text).arg(offer);
}

QString CurrentLeftOutText(const CurrentLoanInput& current) {
    return language::GetResourceText(CurrentReason(current));
}

} // namespace quend::comparison
