#pragma once

/// What a field's background tells.
enum class Mark {
    None,
    Missing, ///< the loan held today cannot be computed without it
    Raised,  ///< the intended payment was too low and has been raised
};
