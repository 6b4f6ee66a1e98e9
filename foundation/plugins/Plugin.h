#pragma once

#include "Failure.h"

#include <QObject>
#include <QString>

namespace quend {

/// Loads a plugin from the program's folder by its name without suffix; it stays loaded. Null if it
/// is missing, damaged or incompatible.
QObject* LoadPlugin(const QString& name);

/// The file of such a plugin, with its path.
QString PluginFile(const QString& name);

/// Rarely used features, such as printing, are plugins, because they pull in many libraries; each
/// is loaded on first use. A plugin shares no variables with the program: language and window must
/// be passed to it. Throws ComponentFailure if the plugin is missing.
template <class Part>
Part& Plugin(const QString& name) {
    auto* const part = qobject_cast<Part*>(LoadPlugin(name));
    if (part == nullptr) {
        throw ComponentFailure(name.toStdString());
    }
    return *part;
}

} // namespace quend
