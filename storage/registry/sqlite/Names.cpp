#include "Names.h"

#include <QString>

namespace quend::registry {

namespace {

QChar UpperCase(QChar unit) {
    return unit >= u'a' && unit <= u'z'   ? QChar(unit.unicode() - u'a' + u'A')
           : unit < QChar(char16_t{0x80}) ? unit
                                          : unit.toUpper();
}

} // namespace

std::string Folded(const std::string& name) {
    std::string folded;
    folded.reserve(2 * name.size());
    for (const QChar unit : QString::fromStdString(name)) {
        const QChar upper = UpperCase(unit);
        folded += static_cast<char>(upper.row());
        folded += static_cast<char>(upper.cell());
    }
    return folded;
}

std::string Unfolded(std::string_view folded) {
    QString name;
    for (std::size_t i = 0; i + 2 <= folded.size(); i += 2) {
        name +=
            QChar(static_cast<unsigned char>(folded[i + 1]), static_cast<unsigned char>(folded[i]));
    }
    return name.toStdString();
}

} // namespace quend::registry
