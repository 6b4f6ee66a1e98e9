#pragma once

namespace quend::calc {}

/// The layers below that the comparison may name without qualification.
namespace quend::comparison {

using namespace calc;

} // namespace quend::comparison
