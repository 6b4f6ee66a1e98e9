#pragma once

#include "ExchangeWorld.h"

namespace quend::exchange {

/// Asks with Qt's dialogs, which ask before a file is replaced.
ExchangeWorld FileDialogs();

} // namespace quend::exchange
