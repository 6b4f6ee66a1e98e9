#pragma once

namespace quend::model {

/// The meaning of a field's background colour.
enum class Mark {
    None,
    Missing, ///< the current loan cannot be computed without it
    Raised,  ///< the intended payment was too low and has been raised
};

} // namespace quend::model
