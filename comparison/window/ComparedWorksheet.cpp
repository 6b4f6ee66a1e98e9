#include "ComparedWorksheet.h"

#include "CompareTextNumbers.h"
#include "Language.h"

#include <algorithm>
#include <iterator>

namespace quend::compare {

namespace {

std::size_t IndexOf(int place) { return static_cast<std::size_t>(place) - 1; }

bool TakesPart(const ComparedWorksheet& worksheet, int place) {
    return FiguresOf(worksheet, place) != nullptr;
}

} // namespace

QString NameOfLoan(const ComparedWorksheet& worksheet, int place) {
    if (place == CurrentLoanPlace) {
        return GetResourceText(TextNumber::CompareCurrentLoan);
    }
    const QString& lender = worksheet.lenders.at(IndexOf(place));
    if (lender.trimmed().isEmpty()) {
        return GetResourceText(TextNumber::CompareOffer).arg(place);
    }
    if (std::ranges::count(worksheet.lenders, lender) > 1) {
        return GetResourceText(TextNumber::CompareNamesake).arg(lender, QString::number(place));
    }
    return lender;
}

bool IsBlank(const ComparedWorksheet& worksheet, int place) {
    return place != CurrentLoanPlace && worksheet.input.offers.at(IndexOf(place)) == OfferInput() &&
           worksheet.lenders.at(IndexOf(place)).isEmpty();
}

std::vector<int> PlacesThatTakePart(const ComparedWorksheet& worksheet) {
    std::vector<int> places;
    std::ranges::copy_if(worksheet.rows, std::back_inserter(places),
                         [&](int place) { return TakesPart(worksheet, place); });
    if (worksheet.result.current && worksheet.result.current->figures) {
        places.push_back(CurrentLoanPlace);
    }
    return places;
}

const OfferFigures* FiguresOf(const ComparedWorksheet& worksheet, int place) {
    if (place == CurrentLoanPlace) {
        return nullptr;
    }
    const auto& figures = worksheet.result.offers.at(IndexOf(place)).figures;
    return figures ? &*figures : nullptr;
}

} // namespace quend::compare
