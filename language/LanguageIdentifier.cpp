#include "LanguageIdentifier.h"

#include <QLatin1String>
#include <QString>
#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <unicode/uloc.h>

#include <array>
#endif

namespace quend::language {

#ifdef Q_OS_WIN

std::uint16_t LanguageIdentifierOf(const QString& localeName) {
    QString name = localeName.section(u'.', 0, 0).section(u'@', 0, 0);
    name.replace(u'_', u'-');
    if (name.isEmpty() || name == u"C" || name == u"POSIX") {
        return 0;
    }
    return LANGIDFROMLCID(LocaleNameToLCID(reinterpret_cast<LPCWSTR>(name.utf16()), 0));
}

std::uint16_t UserDefaultLanguageIdentifier() { return GetUserDefaultLangID(); }

#else

std::uint16_t LanguageIdentifierOf(const QString& localeName) {
    const QString name = localeName.section(u'.', 0, 0).section(u'@', 0, 0);
    if (name.isEmpty() || name == u"C" || name == u"POSIX") {
        return 0;
    }
    // The upper half of the result is a sort order, which does not belong to the language.
    return static_cast<std::uint16_t>(uloc_getLCID(name.toLatin1().constData()) & 0xFFFFU);
}

std::uint16_t UserDefaultLanguageIdentifier() {
    // The first variable that is set decides, even if its locale is not installed.
    for (const char* variable : std::array{"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString locale = qEnvironmentVariable(variable);
        if (!locale.isEmpty()) {
            return LanguageIdentifierOf(locale);
        }
    }
    return 0;
}

#endif

} // namespace quend::language
