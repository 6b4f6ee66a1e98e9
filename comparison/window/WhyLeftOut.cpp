#include "WhyLeftOut.h"

#include "CompareTextNumbers.h"
#include "FigureTexts.h"
#include "Frequency.h"
#include "Sentences.h"
#include "Solving.h"

#include <cstddef>
#include <optional>

namespace quend::compare {

namespace {

using namespace TextNumber;

/// Payments that repay a loan, and how many years the second one takes.
struct EnoughPayments {
    std::optional<Money> atAll;
    std::optional<Money> byHorizon; ///< none also where it is the same
    QString kept;
};

EnoughPayments EnoughPaymentsFor(const ComparedWorksheet& worksheet, int place,
                                 const DisplayFormats& formats) {
    const ComparisonInput& input = worksheet.input;
    EnoughPayments enough{.atAll = LeastPaymentBy(input, place, Date::Last()),
                          .byHorizon =
                              LeastPaymentBy(input, place, HorizonDay(input.today, input.years)),
                          .kept = Duration(input.years * MonthsPerYear, formats)};
    if (enough.byHorizon == enough.atAll) {
        enough.byHorizon.reset();
    }
    return enough;
}

QString NeverRepaid(const ComparedWorksheet& worksheet, int place, const Sentences& say) {
    const QString name = NameOfLoan(worksheet, place);
    const EnoughPayments enough = EnoughPaymentsFor(worksheet, place, say.Formats());
    if (!enough.atAll) {
        return say(CompareNeverEnds, name);
    }
    if (!enough.byHorizon) {
        return say(CompareNeverEndsEnough, name, *enough.atAll);
    }
    return say(CompareNeverEndsEnoughFor, name, *enough.atAll, *enough.byHorizon, enough.kept);
}

QString WhyOffer(const ComparedWorksheet& worksheet, int place, const Sentences& say) {
    const OfferComparison& offer = worksheet.result.offers.at(static_cast<std::size_t>(place) - 1);
    const QString name = NameOfLoan(worksheet, place);
    switch (offer.leftOut) {
    case LeftOut::No:
        break;
    case LeftOut::NoAmount:
        return say(CompareNoAmount, name);
    case LeftOut::NoRate:
        return say(CompareNoRate, name, say.Formats().InOwnDigits(QStringLiteral("0")) + u'%');
    case LeftOut::NoFrequency:
        return say(CompareNoFrequency, name);
    case LeftOut::NoTerm:
        return say(CompareNoTerm, name);
    case LeftOut::NoPayment:
        return say(CompareNoPayment, name);
    case LeftOut::NeverEnds:
        return offer.overflow && !LeastPaymentBy(worksheet.input, place, Date::Last())
                   ? say(CompareTooLarge, name)
                   : NeverRepaid(worksheet, place, say);
    }
    return {};
}

QString WhyCurrent(const ComparedWorksheet& worksheet, const Sentences& say) {
    const auto& current = worksheet.result.current;
    if (!current || current->figures) {
        return {};
    }
    const CurrentLoanInput& held = worksheet.input.current;
    const QString name = NameOfLoan(worksheet, CurrentLoanPlace);
    if (held.balance <= Money()) {
        return say(CompareNoBalance, name);
    }
    if (held.actualPayment <= Money()) {
        return say(CompareNoActualPayment, name);
    }
    if (FindFrequency(held.actualFrequency) == nullptr) {
        return say(CompareNoActualFrequency, name);
    }
    return NeverRepaid(worksheet, CurrentLoanPlace, say);
}

bool HasPayoffDate(const ComparedWorksheet& worksheet, int place) {
    if (place == CurrentLoanPlace) {
        return worksheet.result.current && worksheet.result.current->payoffDate;
    }
    return worksheet.result.offers.at(static_cast<std::size_t>(place) - 1).payoffDate.has_value();
}

} // namespace

QString WhyLeftOut(const ComparedWorksheet& worksheet, int place, const DisplayFormats& formats) {
    const Sentences say(formats);
    if (place == CurrentLoanPlace) {
        return WhyCurrent(worksheet, say);
    }
    return IsBlank(worksheet, place) ? QString() : WhyOffer(worksheet, place, say);
}

QString EnoughFor(const ComparedWorksheet& worksheet, int place, const DisplayFormats& formats) {
    if (HasPayoffDate(worksheet, place)) {
        return {};
    }
    const Sentences say(formats);
    const EnoughPayments enough = EnoughPaymentsFor(worksheet, place, formats);
    if (!enough.atAll) {
        return {};
    }
    return enough.byHorizon ? say(CompareEnoughFor, *enough.atAll, *enough.byHorizon, enough.kept)
                            : say(CompareEnough, *enough.atAll);
}

} // namespace quend::compare
