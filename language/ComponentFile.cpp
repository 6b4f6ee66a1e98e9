#include "ComponentFile.h"

#include "LanguageComponent.h"
#include "SealedLibrary.h"

#include <QDir>
#include <QJsonObject>
#include <QPluginLoader>
#include <QRegularExpression>

#include <map>

namespace quend::language {

namespace {

const QString& Resources() {
    static const QString resources = QStringLiteral(".Resources");
    return resources;
}

/// Matches file names of this pattern in any case, with or without a library's extension.
QRegularExpression FileNamed(const QString& pattern) {
    return QRegularExpression(
        QRegularExpression::anchoredPattern(pattern + QStringLiteral("(\\.(so|dll|dylib))?")),
        QRegularExpression::CaseInsensitiveOption);
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

QString Find(const QString& folder, const QString& component) {
    const QRegularExpression wanted = FileNamed(QRegularExpression::escape(component));
    QString found;
    for (const QString& file : FilesIn(folder).filter(wanted)) {
        if (found.isEmpty() || file.startsWith(component)) {
            found = file;
        }
    }
    return found.isEmpty() ? QString() : QDir(folder).absoluteFilePath(found);
}

QStringList Identifiers(const QString& folder, const QString& programName) {
    const QRegularExpression wanted =
        FileNamed(QRegularExpression::escape(programName) + QStringLiteral("([0-9a-f]{1,4})") +
                  QRegularExpression::escape(Resources()));
    std::map<std::pair<uint, QString>, QString> byNumber;
    for (const QString& file : FilesIn(folder)) {
        const QString identifier = wanted.match(file).captured(1).toLower();
        if (!identifier.isEmpty()) {
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
