#pragma once

namespace quend::language {}
namespace quend::calc {}
namespace quend::model {}
namespace quend::window {}
namespace quend::registry {}

/// The layers below that the storage of worksheets and settings may name without qualification.
namespace quend::storage {

using namespace language;
using namespace calc;
using namespace model;
using namespace window;
using namespace registry;

} // namespace quend::storage
