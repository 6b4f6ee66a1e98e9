#include "Plugin.h"

#include "SealedLibrary.h"

#include <QCoreApplication>
#include <QLatin1String>
#include <QPluginLoader>

namespace quend {

namespace {

#ifdef _WIN32
constexpr QLatin1String Ending(".dll");
#else
constexpr QLatin1String Ending(".so");
#endif

} // namespace

QString PluginFile(const QString& name) {
    return QCoreApplication::applicationDirPath() + u'/' + name + Ending;
}

QObject* LoadPlugin(const QString& name) {
    const QString file = PluginFile(name);
    return IsSealed(file) ? QPluginLoader(file).instance() : nullptr;
}

} // namespace quend
