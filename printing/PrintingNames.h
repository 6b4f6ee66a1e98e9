#pragma once

namespace quend::language {}
namespace quend::calc {}
namespace quend::model {}
namespace quend::window {}

/// The layers below that printing may name without qualification.
namespace quend::printing {

using namespace language;
using namespace calc;
using namespace model;
using namespace window;

} // namespace quend::printing
