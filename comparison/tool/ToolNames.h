#pragma once

namespace quend::calc {}
namespace quend::compare {}
namespace quend::comparison {}
namespace quend::language {}
namespace quend::model {}

/// The layers below that quend-compare may name without qualification.
namespace quend::tool {

using namespace calc;
using namespace compare;
using namespace comparison;
using namespace language;
using namespace model;

} // namespace quend::tool
