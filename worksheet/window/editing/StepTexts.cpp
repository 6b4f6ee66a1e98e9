#include "StepTexts.h"

#include "EditTextNumbers.h"
#include "Language.h"

#include <algorithm>
#include <array>

namespace quend::window {

namespace {

struct TextOfField {
    FieldId field;
    int text;
};

constexpr auto TextsOfFields = [] {
    using enum FieldId;
    using namespace TextNumber;
    return std::array{
        TextOfField{LoanName, StepLoanName},
        TextOfField{LoanType, StepLoanType},
        TextOfField{LoanAmount, StepLoanAmount},
        TextOfField{LoanTerm, StepLoanTerm},
        TextOfField{AnnualTaxes, StepTaxes},
        TextOfField{AnnualInsurance, StepInsurance},
        TextOfField{CurLoanAmount, StepCurrentAmount},
        TextOfField{CurLoanTerm, StepCurrentTerm},
        TextOfField{CurInterestRate, StepCurrentRate},
        TextOfField{CurPaymentFrequency, StepCurrentFrequency},
        TextOfField{CurPayment, StepCurrentPayment},
        TextOfField{CurrentBalance, StepCurrentBalance},
        TextOfField{CurActualPayment, StepCurrentActualPayment},
        TextOfField{ActPaymentFrequency, StepCurrentActualFrequency},
        TextOfField{NextPayment, StepNextPayment},
        TextOfField{FinancePoints, StepFinancePoints},
        TextOfField{Points, StepPoints},
        TextOfField{InterestRate, StepRate},
        TextOfField{Term, StepTerm},
        TextOfField{Frequency, StepFrequency},
        TextOfField{ActualPayment, StepActualPayment},
        TextOfField{Who, StepLender},
        TextOfField{Costs, StepCosts},
    };
}();

int NumberOf(const StepName& step) {
    switch (step.kind) {
    case StepKind::ClearOffer:
        return TextNumber::StepClear;
    case StepKind::DuplicateOffer:
        return TextNumber::StepDuplicate;
    case StepKind::MoveOffer:
        return TextNumber::StepMove;
    case StepKind::PasteCells:
        return TextNumber::StepPasteCells;
    case StepKind::Field:
        break;
    }
    const auto* row = std::ranges::find(TextsOfFields, step.field, &TextOfField::field);
    return row == TextsOfFields.end() ? 0 : row->text;
}

} // namespace

QString TextOf(const StepName& step, int number) {
    const QString text = GetResourceText(NumberOf(step));
    const bool isOfOffer = step.offer && step.kind != StepKind::PasteCells;
    return isOfOffer ? text.arg(number) : text;
}

} // namespace quend::window
