#pragma once

#include "Field.h"

/// Which offer a row shows. Rows stand in the order of entry.
class OfferOrder {
public:
    OfferIndex OfferIndexOfRow(Row row) const { return {static_cast<std::size_t>(row.value)}; }
};
