#include "FileNames.h"

#include <QRegularExpression>

namespace quend {

QString SafeFileName(const QString& text) {
    static const QRegularExpression refused(QStringLiteral("[\\x00-\\x1f\\x7f/\\\\:*?\"<>|]+"));
    constexpr int longest = 80;
    QString name = QString(text).replace(refused, QStringLiteral(" ")).simplified().left(longest);
    while (name.startsWith(u'.') || name.startsWith(u' ')) {
        name.remove(0, 1);
    }
    if (!name.isEmpty() && name.back().isHighSurrogate()) {
        name.chop(1);
    }
    return name.trimmed();
}

} // namespace quend
