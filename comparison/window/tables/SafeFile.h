#pragma once

#include "CompareNames.h"

#include <QByteArray>
#include <QString>

namespace quend::compare {

/// Writes a file as a whole: beside its place first, then renamed, so that a failure leaves what
/// was there and no part of the new. Only regular files are replaced. Returns an empty text, or
/// why it was not written, for the user in the current language.
QString WriteFile(const QString& path, const QByteArray& content);

} // namespace quend::compare
