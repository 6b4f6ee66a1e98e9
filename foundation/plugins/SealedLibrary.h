#pragma once

#include <QString>

namespace quend {

/// Whether this library is unchanged since it was built: it ends with a seal, the hash of all bytes
/// before it. Loading a damaged library can crash the program, so a library beside the program is
/// opened only if its seal matches. False also for a missing file. The seal detects damage, not
/// tampering.
bool IsSealed(const QString& library);

} // namespace quend
