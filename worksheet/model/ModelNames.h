#pragma once

namespace quend::language {}
namespace quend::calc {}

/// The layers below that the worksheet model may name without qualification.
namespace quend::model {

using namespace language;
using namespace calc;

} // namespace quend::model
