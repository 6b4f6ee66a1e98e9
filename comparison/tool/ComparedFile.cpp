#include "ComparedFile.h"

#include "Solving.h"
#include "TerminalText.h"

#include <numeric>

namespace quend::tool {

ComparedWorksheet CompareFile(const ComparisonRequest& request, Date today) {
    ComparedWorksheet compared{.name = PlainText(request.worksheet.name),
                               .input = ToInput(request, today),
                               .result = {},
                               .lenders = {},
                               .rows = {}};
    compared.result = Compare(compared.input);
    for (const OfferInFile& offer : request.worksheet.offers) {
        compared.lenders.push_back(PlainText(offer.lender.trimmed().section(u'\n', 0, 0)));
    }
    compared.rows.resize(compared.lenders.size());
    std::iota(compared.rows.begin(), compared.rows.end(), 1);
    return compared;
}

std::vector<PaymentBy> PaymentsBy(const ComparedWorksheet& worksheet, Date day) {
    std::vector<PaymentBy> payments;
    for (const int place : worksheet.rows) {
        payments.push_back({place, LeastPaymentBy(worksheet.input, place, day)});
    }
    if (worksheet.result.current) {
        payments.push_back(
            {CurrentLoanPlace, LeastPaymentBy(worksheet.input, CurrentLoanPlace, day)});
    }
    return payments;
}

} // namespace quend::tool
