#pragma once

#include "ComparedFile.h"
#include "ToolNames.h"

#include <QByteArray>

#include <vector>

namespace quend::tool {

/// One line without a line end: {"paymentBy": day, "offers": [amount or null, …], "current": amount
/// or null}, in the form of a result's amounts.
QByteArray PaymentsJson(const std::vector<PaymentBy>& payments, Date day);

} // namespace quend::tool
