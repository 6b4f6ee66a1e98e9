#include "World.h"

#include "CommandTextNumbers.h"
#include "Language.h"
#include "TerminalText.h"

#include <cerrno>

namespace quend::tool {

void Complain(const World& world, const QString& sentence) {
    *world.err << "quend-compare: " << PlainText(sentence).toStdString() << '\n' << std::flush;
}

bool Put(const World& world, const QByteArray& bytes) {
    errno = 0;
    world.out->write(bytes.constData(), bytes.size());
    world.out->flush();
    if (world.out->good()) {
        return true;
    }
    if (errno != EPIPE) {
        world.loadLanguage();
        Complain(world, GetResourceText(TextNumber::OutputFailed));
    }
    return false;
}

} // namespace quend::tool
