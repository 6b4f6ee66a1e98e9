#pragma once

#include "ToolNames.h"
#include "World.h"

#include <string>
#include <vector>

namespace quend::tool {

/// Runs quend-compare with these arguments, which do not contain its name.
Status RunProgram(const std::vector<std::string>& arguments, const World& world);

} // namespace quend::tool
