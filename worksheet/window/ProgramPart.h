#pragma once

#include "Failure.h"

#include <QObject>
#include <QString>

/// A library beside the program, named without its ending; it stays loaded. Null where it is
/// missing, damaged or does not fit.
QObject* LoadProgramPart(const QString& name);

/// The file of such a library, with its path.
QString ProgramPartFile(const QString& name);

/// What few sittings need, such as printing, stands in a library of its own with much else behind
/// it, and is loaded when first asked for. Such a part shares no variables with the program: it has
/// no language and no window but those it is given. Throws ComponentFailure where it is missing.
template <class Part>
Part& ProgramPart(const QString& name) {
    auto* const part = qobject_cast<Part*>(LoadProgramPart(name));
    if (part == nullptr) {
        throw ComponentFailure(name.toStdString());
    }
    return *part;
}
