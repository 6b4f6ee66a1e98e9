#include "AmountRules.h"

#include "Failure.h"
#include "FailureReport.h"
#include "Field.h"
#include "Language.h"
#include "MessageQueue.h"
#include "TextNumbers.h"
#include "Worksheet.h"

namespace quend::compare {

std::optional<Money> ReadAmount(const Worksheet& worksheet, const QString& text,
                                MessageQueue& messages) {
    try {
        if (const auto value = worksheet.Read(FieldId::LoanAmount, text)) {
            return std::get<Money>(*value);
        }
        messages.Post(GetResourceText(TextNumber::NumberRefused) +
                      NumberPicture(RuleOf(FieldId::LoanAmount).decimals));
    } catch (const Failure& failure) { // a refusal like the other
        messages.Post(FailureMessage(failure));
    }
    return std::nullopt;
}

AmountEntry::Rules AmountRules(const Worksheet& worksheet, MessageQueue& messages) {
    return {.formats = worksheet.Texts().Formats(),
            .read = [&worksheet, &messages](const QString& text) {
                return ReadAmount(worksheet, text, messages);
            }};
}

} // namespace quend::compare
