#include "FindPayment.h"

#include "CompareTextNumbers.h"
#include "Language.h"
#include "Solving.h"

#include <algorithm>
#include <iterator>

namespace quend::compare {

namespace {

using Kind = PaymentQuestion::Kind;

Date DayAsked(const PaymentQuestion& question, Date today) {
    return question.kind == Kind::PaymentByYears ? HorizonDay(today, question.years) : question.day;
}

PaymentAnswer PaymentThatEndsCurrent(Date day, const std::optional<Money>& payment,
                                     const DisplayFormats& formats) {
    const QString by = formats.ShortDate(day);
    if (!payment) {
        return {GetResourceText(TextNumber::NoPaymentEndsCurrent).arg(by), std::nullopt,
                FieldId::CurActualPayment};
    }
    return {GetResourceText(TextNumber::PaymentEndsCurrent).arg(formats.Currency(*payment), by),
            *payment, FieldId::CurActualPayment};
}

PaymentAnswer PaymentThatEnds(const PaymentQuestion& question, const ComparedWorksheet& worksheet,
                              const DisplayFormats& formats) {
    const Date day = DayAsked(question, worksheet.input.today);
    const auto payment = LeastPaymentBy(worksheet.input, question.place, day);
    if (question.place == CurrentLoanPlace) {
        return PaymentThatEndsCurrent(day, payment, formats);
    }
    const QString name = NameOfLoan(worksheet, question.place);
    if (!payment) {
        return {GetResourceText(TextNumber::NoPaymentEnds).arg(name, formats.ShortDate(day)),
                std::nullopt, FieldId::ActualPayment};
    }
    return {GetResourceText(TextNumber::PaymentEnds)
                .arg(formats.Currency(*payment), name, formats.ShortDate(day)),
            *payment, FieldId::ActualPayment};
}

PaymentAnswer AmountAfforded(const PaymentQuestion& question, const ComparedWorksheet& worksheet,
                             const DisplayFormats& formats) {
    const auto amount = LargestAmount(worksheet.input, question.place, question.payment);
    const QString name = NameOfLoan(worksheet, question.place);
    const QString payment = formats.Currency(question.payment);
    if (!amount) {
        return {GetResourceText(TextNumber::NoAmountAfforded).arg(payment, name), std::nullopt,
                FieldId::LoanAmount};
    }
    return {
        GetResourceText(TextNumber::AmountAfforded).arg(payment, name, formats.Currency(*amount)),
        *amount, FieldId::LoanAmount};
}

PaymentAnswer RateNeeded(const PaymentQuestion& question, const ComparedWorksheet& worksheet,
                         const DisplayFormats& formats) {
    const auto rate = HighestRate(worksheet.input, question.place, question.payment);
    const QString name = NameOfLoan(worksheet, question.place);
    const QString payment = formats.Currency(question.payment);
    if (!rate) {
        return {GetResourceText(TextNumber::NoRateNeeded).arg(payment, name), std::nullopt,
                FieldId::InterestRate};
    }
    return {GetResourceText(TextNumber::RateNeeded).arg(payment, name, formats.Percent(*rate)),
            *rate, FieldId::InterestRate};
}

} // namespace

PaymentAnswer AnswerTo(const PaymentQuestion& question, const ComparedWorksheet& worksheet,
                       const DisplayFormats& formats) {
    switch (question.kind) {
    case Kind::AmountAfforded:
        return AmountAfforded(question, worksheet, formats);
    case Kind::RateNeeded:
        return RateNeeded(question, worksheet, formats);
    case Kind::PaymentByYears:
    case Kind::PaymentByDate:
        break;
    }
    return PaymentThatEnds(question, worksheet, formats);
}

std::vector<int> PlacesToAskAbout(const ComparedWorksheet& worksheet) {
    std::vector<int> places;
    std::ranges::copy_if(worksheet.rows, std::back_inserter(places),
                         [&](int place) { return !IsBlank(worksheet, place); });
    if (worksheet.input.current.balance > Money()) {
        places.push_back(CurrentLoanPlace);
    }
    return places;
}

} // namespace quend::compare
