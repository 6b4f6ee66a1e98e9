#pragma once

namespace quend::calc {}
namespace quend::comparison {}
namespace quend::exchange {}
namespace quend::extras {}
namespace quend::help {}
namespace quend::language {}
namespace quend::model {}
namespace quend::printing {}
namespace quend::registry {}
namespace quend::storage {}
namespace quend::window {}

// Tests and benchmarks may name every layer without qualification.
using namespace quend;
using namespace quend::calc;
using namespace quend::comparison;
using namespace quend::exchange;
using namespace quend::extras;
using namespace quend::help;
using namespace quend::language;
using namespace quend::model;
using namespace quend::printing;
using namespace quend::registry;
using namespace quend::storage;
using namespace quend::window;
