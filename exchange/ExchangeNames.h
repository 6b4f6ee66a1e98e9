#pragma once

namespace quend::calc {}
namespace quend::comparison {}
namespace quend::language {}
namespace quend::model {}
namespace quend::window {}

/// The layers below that the exchange of worksheets may name without qualification.
namespace quend::exchange {

using namespace calc;
using namespace comparison;
using namespace language;
using namespace model;
using namespace window;

} // namespace quend::exchange
