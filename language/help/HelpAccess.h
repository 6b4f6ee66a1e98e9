#pragma once

namespace quend::help {

/// Accessibility of the help: by default Qt reports its window as a container and its page as a
/// label. Call before either is created; further calls do nothing.
void InstallHelpAccess();

} // namespace quend::help
