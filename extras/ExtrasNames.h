#pragma once

namespace quend::language {}
namespace quend::calc {}
namespace quend::model {}
namespace quend::window {}
namespace quend::registry {}

/// The layers below that the extras may name without qualification.
namespace quend::extras {

using namespace language;
using namespace calc;
using namespace model;
using namespace window;
using namespace registry;

} // namespace quend::extras
