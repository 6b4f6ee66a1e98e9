#pragma once

/// What screen readers are told of the help: the toolkit takes its window for a mere container and
/// its page for a label. To be called before either is made; again, it does nothing.
void InstallHelpAccess();
