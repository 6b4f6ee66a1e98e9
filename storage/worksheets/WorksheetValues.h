#pragma once

#include "RegistryAPI.h"
#include "StorageNames.h"
#include "StoredTexts.h"
#include "Worksheet.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quend::storage {

/// One value of a saved worksheet: its name, and the conversion from and to its property. Reading
/// throws Failure for an invalid value.
template <class Owner>
struct KeptValue {
    const char* name = "";
    std::int16_t type = RegistryType::Text;
    const char* missing = ""; ///< the text used when the value is missing; a missing number is 0
    int readPlace = 0;        ///< its position in the reading order, from 1; 0: not read back
    RegistryValue (*write)(const Owner&, const StoredTexts&) = nullptr;
    void (*read)(Owner&, const RegistryValue&, const StoredTexts&) = nullptr;

    RegistryValue Missing() const {
        return type == RegistryType::Text ? RegistryValue(std::string(missing))
                                          : RegistryValue(std::int32_t{0});
    }
};

/// The values of the loan and of one offer, in writing order. The names of an offer's values follow
/// the offer's prefix and include the blank after it.
std::span<const KeptValue<Worksheet>> KeptWorksheetValues();
std::span<const KeptValue<CLoan>> KeptOfferValues();

/// The values that are read back, in reading order.
template <class Owner>
std::vector<const KeptValue<Owner>*> InOrderOfReading(std::span<const KeptValue<Owner>> values) {
    std::vector<const KeptValue<Owner>*> ordered;
    for (const KeptValue<Owner>& value : values) {
        if (value.readPlace > 0) {
            ordered.push_back(&value);
        }
    }
    std::ranges::sort(ordered, {}, &KeptValue<Owner>::readPlace);
    return ordered;
}

} // namespace quend::storage
