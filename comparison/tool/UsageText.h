#pragma once

#include "Options.h"
#include "ToolNames.h"

#include <QString>

namespace quend::tool {

// What the program says about its command line, in the current language.

/// Each option with its description, and what else has to be known.
QString HelpText();

/// One sentence.
QString UsageErrorText(const UsageError& error);

} // namespace quend::tool
