#pragma once

namespace quend::language {}
namespace quend::calc {}
namespace quend::model {}
namespace quend::window {}

/// The layers below that the help may name without qualification.
namespace quend::help {

using namespace language;
using namespace calc;
using namespace model;
using namespace window;

} // namespace quend::help
