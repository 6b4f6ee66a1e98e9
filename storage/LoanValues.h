#pragma once

#include "RegistryAPI.h"
#include "StoredTexts.h"
#include "Worksheet.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// One value of a kept worksheet: its name, and the way between it and the property that it keeps.
/// Reading throws Failure for a value that cannot be one.
template <class Owner>
struct KeptValue {
    const char* name = "";
    std::int16_t type = RegistryType::Text;
    const char* missing = ""; ///< the text that stands for a missing one; a missing number is 0
    int readPlace = 0;        ///< its place in the order of reading, from 1; 0: not read back
    RegistryValue (*write)(const Owner&, const StoredTexts&) = nullptr;
    void (*read)(Owner&, const RegistryValue&, const StoredTexts&) = nullptr;

    RegistryValue Missing() const {
        return type == RegistryType::Text ? RegistryValue(std::string(missing))
                                          : RegistryValue(std::int32_t{0});
    }
};

/// The values of the loan and of one offer, in the order of writing. The names of an offer's values
/// stand behind the prefix of the offer and begin with a blank of their own.
std::span<const KeptValue<Worksheet>> KeptLoanValues();
std::span<const KeptValue<CLoan>> KeptOfferValues();

/// Those that are read back, in the order of reading.
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
