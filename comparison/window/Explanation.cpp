#include "Explanation.h"

#include "CompareTextNumbers.h"
#include "ExplainedLoan.h"
#include "Language.h"
#include "WhyLeftOut.h"

#include <cstddef>

namespace quend::compare {

namespace {

QString OfOffer(const ComparedWorksheet& worksheet, Figure figure, int place,
                const DisplayFormats& formats) {
    const auto index = static_cast<std::size_t>(place) - 1;
    const OfferInput& entered = worksheet.input.offers.at(index);
    const Sentences say(formats);
    const QString name = NameOfLoan(worksheet, place);
    if (figure == Figure::Costs) {
        return entered.costs.IsZero() ? say(TextNumber::CompareNoCostsEntered, name)
                                      : say(TextNumber::CompareCostsEntered, name, entered.costs);
    }
    const OfferFigures* const figures = FiguresOf(worksheet, place);
    if (figures == nullptr) {
        return WhyLeftOut(worksheet, place, formats);
    }
    return ExplainOffer({.worksheet = worksheet,
                         .place = place,
                         .say = say,
                         .name = name,
                         .kept = Duration(worksheet.input.years * MonthsPerYear, formats),
                         .entered = entered,
                         .result = worksheet.result.offers.at(index),
                         .figures = *figures,
                         .frequency = *FindFrequency(entered.frequency)},
                        figure);
}

QString OfCurrent(const ComparedWorksheet& worksheet, Figure figure,
                  const DisplayFormats& formats) {
    const auto& current = worksheet.result.current;
    if (!current || !current->figures) {
        return WhyLeftOut(worksheet, CurrentLoanPlace, formats);
    }
    const CurrentLoanInput& entered = worksheet.input.current;
    const QString sentence =
        ExplainCurrent({.worksheet = worksheet,
                        .say = Sentences(formats),
                        .kept = Duration(worksheet.input.years * MonthsPerYear, formats),
                        .entered = entered,
                        .result = *current,
                        .figures = *current->figures,
                        .frequency = *FindFrequency(entered.actualFrequency)},
                       figure);
    return sentence.isEmpty() ? GetResourceText(TextNumber::CompareNoFigureOfCurrent) : sentence;
}

} // namespace

QString ExplanationOf(const ComparedWorksheet& worksheet, Figure figure, int place,
                      const DisplayFormats& formats) {
    if (place == CurrentLoanPlace) {
        return OfCurrent(worksheet, figure, formats);
    }
    return IsBlank(worksheet, place) ? QString() : OfOffer(worksheet, figure, place, formats);
}

} // namespace quend::compare
