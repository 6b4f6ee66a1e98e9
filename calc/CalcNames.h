#pragma once

namespace quend::language {}

/// The layers below that the calculator may name without qualification.
namespace quend::calc {

using namespace language;

} // namespace quend::calc
