#pragma once

#include <QString>

/// Whether this library is as it was built: it ends with a seal, the hash of all bytes before it.
/// Loading a damaged library can end the program, so a library beside the program is looked into
/// only when its seal is right. False also for a missing file. The seal finds damage, not malice.
bool IsSealed(const QString& library);
