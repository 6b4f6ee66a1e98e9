#include "ProgramPart.h"

#include "SealedLibrary.h"

#include <QCoreApplication>
#include <QPluginLoader>

QObject* LoadProgramPart(const QString& name) {
    const QString folder = QCoreApplication::applicationDirPath();
    QPluginLoader library(folder + u'/' + name);
    return IsSealed(library.fileName()) ? library.instance() : nullptr;
}
