#pragma once

#include "JsonReader.h"
#include "WorksheetFile.h"

#include <span>
#include <variant>
#include <vector>

namespace quend::comparison {

/// What the members of an open object, or the elements of a list, fill; monostate: nothing.
using Target = std::variant<std::monostate, ComparisonRequest*, WorksheetInFile*, CurrentLoanInput*,
                            std::vector<OfferInFile>*, OfferInFile*>;

class SheetWriter;

/// A member of an object of the file: a value, or a container.
template <typename Owner>
struct Member {
    const char* name = nullptr;
    Fault (*read)(Owner& owner, const JsonScalar& value) = nullptr;   ///< null: a container
    void (*write)(SheetWriter& writer, const Owner& owner) = nullptr; ///< null: never written
    Target (*open)(Owner& owner) = nullptr;                           ///< null: a value
};

// The members that an object may have, in the order in which they are written.
std::span<const Member<ComparisonRequest>> MembersOf(const ComparisonRequest& object);
std::span<const Member<WorksheetInFile>> MembersOf(const WorksheetInFile& object);
std::span<const Member<CurrentLoanInput>> MembersOf(const CurrentLoanInput& object);
std::span<const Member<OfferInFile>> MembersOf(const OfferInFile& object);

} // namespace quend::comparison
