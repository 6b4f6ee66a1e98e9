#pragma once

namespace quend::language {}
namespace quend::calc {}
namespace quend::model {}

/// The layers below that the main window may name without qualification.
namespace quend::window {

using namespace language;
using namespace calc;
using namespace model;

} // namespace quend::window
