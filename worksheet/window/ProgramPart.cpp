#include "ProgramPart.h"

#include <QCoreApplication>
#include <QPluginLoader>

QObject* LoadProgramPart(const QString& name) {
    const QString folder = QCoreApplication::applicationDirPath();
    return QPluginLoader(folder + u'/' + name).instance();
}
