#pragma once

// The names of the lower layers, for the comparison window.
namespace quend::calc {}
namespace quend::comparison {}
namespace quend::language {}
namespace quend::model {}
namespace quend::window {}

namespace quend::compare {

using namespace calc;
using namespace comparison;
using namespace language;
using namespace model;
using namespace window;

} // namespace quend::compare
