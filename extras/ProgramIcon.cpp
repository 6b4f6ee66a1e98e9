#include "ProgramIcon.h"

#include <QDir>

// The pictures are in a static library, and the linker drops unreferenced resources. The macro does
// not work inside a namespace.
static void LoadPictures() { Q_INIT_RESOURCE(icon); }

namespace quend::extras {

QIcon ProgramIcon() {
    ::LoadPictures();
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/icon/loan-%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

} // namespace quend::extras
