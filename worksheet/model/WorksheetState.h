#pragma once

#include "CLoan.h"
#include "Field.h"
#include "LoanValues.h"
#include "ModelNames.h"

#include <optional>
#include <vector>

namespace quend::model {

/// All values of a worksheet at one moment: what was entered, and the results that are kept. Not
/// the order of its rows. Only for the worksheet that it is from.
struct WorksheetState {
    WantedLoan loan;
    CurrentLoan current;
    std::vector<CLoan> offers; ///< in the order of entry; no blank one is last

    friend bool operator==(const WorksheetState& one, const WorksheetState& other);
};

/// Whether a save would store the same values. The name of the worksheet is none of them.
bool SameToSave(WorksheetState one, const WorksheetState& other);

/// What a user did as one.
enum class StepKind { Field, ClearOffer, DuplicateOffer, MoveOffer, PasteCells };

struct StepName {
    StepKind kind = StepKind::Field;
    FieldId field = FieldId::LoanName; ///< the field changed, or where to go after the step
    std::optional<OfferIndex> offer;   ///< none for a field above the offers

    friend bool operator==(const StepName&, const StepName&) = default;
};

/// A change of the worksheet that can be undone.
struct WorksheetStep {
    StepName name;
    WorksheetState before;
    WorksheetState after;
};

} // namespace quend::model
