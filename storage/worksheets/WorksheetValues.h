#pragma once

#include "FieldValue.h"
#include "RegistryAPI.h"
#include "StorageNames.h"
#include "StoredTexts.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quend::storage {

/// Whether a save writes a value that is not entered.
enum class Written { Always, IfEntered };

/// One value of a saved worksheet: its name and its field.
struct KeptValue {
    const char* name = "";
    FieldId field = FieldId::LoanName;
    const char* missing = ""; ///< the text used when the value is missing; a missing number is 0
    int readPlace = 0;        ///< its position in the reading order, from 1; 0: not read back
    std::int16_t type = RegistryType::Text;
    Written written = Written::Always;

    RegistryValue Missing() const {
        return type == RegistryType::Text ? RegistryValue(std::string(missing))
                                          : RegistryValue(std::int32_t{0});
    }
};

/// The values of the loan and of one offer, in writing order. The names of an offer's values follow
/// the offer's prefix and include the blank after it.
std::span<const KeptValue> KeptWorksheetValues();
std::span<const KeptValue> KeptOfferValues();

/// The values that are read back, in reading order.
std::vector<KeptValue> InOrderOfReading(std::span<const KeptValue> values);

/// A value as it is saved.
RegistryValue ToStored(const FieldValue& value, const StoredTexts& texts);

/// The saved value of a field that holds a value of the same type as `present`. Throws Failure for
/// an invalid one. An unknown frequency is invalid, because it would silently empty the results.
FieldValue FromStored(const RegistryValue& stored, const FieldValue& present,
                      const StoredTexts& texts);

} // namespace quend::storage
