#include "WrapLenderText.h"

#include "PrintedPage.h"

#include <QStringView>
#include <QTextBoundaryFinder>

namespace {

/// How one line ends: what it shows, and how much of the text it takes up.
struct LineEnd {
    qsizetype shown;
    qsizetype taken;
};

LineEnd EndOfLine(const QString& rest, double columnWidth,
                  const std::function<double(const QString&)>& width) {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, rest);
    LineEnd lastBreak{0, 0};
    qsizetype before = 0;
    for (qsizetype end = characters.toNextBoundary(); end > 0; end = characters.toNextBoundary()) {
        if (QStringView(rest).sliced(before).startsWith(LineBreak)) {
            return {before, before + LineBreak.size()};
        }
        const QChar character = rest.at(before);
        if (character == u' ') {
            lastBreak = {before, end};
        }
        if (width(rest.left(end)) >= columnWidth) {
            if (lastBreak.shown > 0) {
                return lastBreak;
            }
            return before > 0 ? LineEnd{before, before} : LineEnd{end, end};
        }
        if (character == u'-') { // it stays on the line, so it must fit there
            lastBreak = {end, end};
        }
        before = end;
    }
    return {rest.size(), rest.size()};
}

qsizetype LeadingBlanks(QStringView text) {
    qsizetype count = 0;
    while (count < text.size() && text.at(count) == u' ') {
        ++count;
    }
    return count;
}

} // namespace

QString WrapLenderText(const QString& text, double columnWidth,
                       const std::function<double(const QString&)>& width) {
    QString wrapped;
    QString rest = text;
    while (!rest.isEmpty()) {
        const LineEnd line = EndOfLine(rest, columnWidth, width);
        wrapped += QStringView(rest).left(line.shown);
        const bool last = line.taken == rest.size() && line.shown == line.taken;
        rest.remove(0, line.taken);
        if (!last) {
            wrapped += LineBreak;
            rest.remove(0, LeadingBlanks(rest));
        }
    }
    return wrapped;
}
