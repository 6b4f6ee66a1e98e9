#include "ComponentFile.h"

#include "LanguageComponent.h"
#include "SealedLibrary.h"

#include <QDir>
#include <QJsonObject>
#include <QPluginLoader>

#include <algorithm>
#include <map>

namespace quend::language {

namespace {

const QString& Resources() {
    static const QString resources = QStringLiteral(".Resources");
    return resources;
}

/// The name of a file without a library's extension.
QString WithoutExtension(const QString& file) {
    for (const QLatin1String extension :
         {QLatin1String(".so"), QLatin1String(".dll"), QLatin1String(".dylib")}) {
        if (file.endsWith(extension, Qt::CaseInsensitive)) {
            return file.chopped(extension.size());
        }
    }
    return file;
}

/// One to four hexadecimal digits.
bool IsIdentifier(const QString& text) {
    const auto isDigit = [](QChar character) {
        return QStringLiteral("0123456789abcdef").contains(character);
    };
    return !text.isEmpty() && text.size() <= 4 && std::ranges::all_of(text, isDigit);
}

QStringList FilesIn(const QString& folder) {
    // An empty path would mean the working folder, where anybody may have put a library.
    return folder.isEmpty() ? QStringList() : QDir(folder).entryList(QDir::Files, QDir::Name);
}

} // namespace

namespace ComponentFile {

QString ComponentName(const QString& programName, const QString& identifier) {
    return programName + identifier + Resources();
}

// No regular expressions here: their library would be loaded at every start for this alone.

QString Find(const QString& folder, const QString& component) {
    QString found;
    for (const QString& file : FilesIn(folder)) {
        const bool isComponent =
            WithoutExtension(file).compare(component, Qt::CaseInsensitive) == 0;
        if (isComponent && (found.isEmpty() || file.startsWith(component))) {
            found = file;
        }
    }
    return found.isEmpty() ? QString() : QDir(folder).absoluteFilePath(found);
}

QStringList Identifiers(const QString& folder, const QString& programName) {
    std::map<std::pair<uint, QString>, QString> byNumber;
    for (const QString& file : FilesIn(folder)) {
        const QString name = WithoutExtension(file);
        const qsizetype digits = name.size() - programName.size() - Resources().size();
        const QString identifier = name.mid(programName.size(), digits).toLower();
        if (digits > 0 && IsIdentifier(identifier) &&
            name.compare(ComponentName(programName, identifier), Qt::CaseInsensitive) == 0) {
            byNumber.insert({{identifier.toUInt(nullptr, 16), identifier}, identifier});
        }
    }
    QStringList identifiers;
    for (const auto& [number, identifier] : byNumber) {
        identifiers.append(identifier);
    }
    return identifiers;
}

std::optional<LanguageLabel> Label(const QString& file) {
    if (!IsSealed(file)) {
        return std::nullopt;
    }
    const QJsonObject all = QPluginLoader(file).metaData();
    if (all[QLatin1String("IID")].toString() !=
        QLatin1String(qobject_interface_iid<LanguageComponent*>())) {
        return std::nullopt;
    }
    const QJsonObject own = all[QLatin1String("MetaData")].toObject();
    return LanguageLabel{own[QLatin1String("language")].toString(),
                         own[QLatin1String("tag")].toString()};
}

const LanguageComponent* Load(const QString& file) {
    if (file.isEmpty() || !Label(file)) {
        return nullptr;
    }
    return qobject_cast<LanguageComponent*>(QPluginLoader(file).instance());
}

} // namespace ComponentFile

} // namespace quend::language
