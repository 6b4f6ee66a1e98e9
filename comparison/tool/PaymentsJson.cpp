#include "PaymentsJson.h"

#include "ValueTexts.h"

namespace quend::tool {

QByteArray PaymentsJson(const std::vector<PaymentBy>& payments, Date day) {
    QByteArray offers;
    QByteArray current = "null";
    for (const PaymentBy& row : payments) {
        const QByteArray payment = row.payment ? '"' + AmountText(*row.payment) + '"' : "null";
        if (row.place == CurrentLoanPlace) {
            current = payment;
        } else {
            offers += (offers.isEmpty() ? "" : ",") + payment;
        }
    }
    return R"({"paymentBy":")" + DateText(day) + R"(","offers":[)" + offers + R"(],"current":)" +
           current + '}';
}

} // namespace quend::tool
