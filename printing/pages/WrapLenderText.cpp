#include "WrapLenderText.h"

#include "PrintedPage.h"

#include <QStringView>
#include <QTextBoundaryFinder>

#include <optional>

namespace quend::printing {

namespace {

/// The end of one line: how much text it shows and how much it consumes.
struct LineEnd {
    qsizetype shown;
    qsizetype taken;
};

/// Empty if the text ends before the line is full. With `goesOn` the given text is cut, possibly
/// within its last character.
std::optional<LineEnd> EndOfLine(QStringView text, bool goesOn, double columnWidth,
                                 const std::function<double(const QString&)>& width) {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    LineEnd lastBreak{0, 0};
    qsizetype before = 0;
    for (qsizetype end = characters.toNextBoundary(); end > 0; end = characters.toNextBoundary()) {
        if (goesOn && end == text.size()) {
            return std::nullopt;
        }
        if (text.sliced(before).startsWith(LineBreak)) {
            return LineEnd{before, before + LineBreak.size()};
        }
        const QChar character = text.at(before);
        if (character == u' ' && end == before + 1) { // a blank with a combining accent is no gap
            lastBreak = {before, end};
        }
        if (width(text.first(end).toString()) >= columnWidth) {
            if (lastBreak.shown > 0) {
                return lastBreak;
            }
            return before > 0 ? LineEnd{before, before} : LineEnd{end, end};
        }
        if (character == u'-') { // a hyphen stays on the line, so it must fit
            lastBreak = {end, end};
        }
        before = end;
    }
    return std::nullopt;
}

/// Examines no more of the text than a line needs: the longest texts have many thousand lines.
LineEnd FirstLine(QStringView rest, double columnWidth,
                  const std::function<double(const QString&)>& width) {
    for (qsizetype looked = 256; looked < rest.size(); looked *= 2) {
        if (const auto line = EndOfLine(rest.first(looked), true, columnWidth, width)) {
            return *line;
        }
    }
    return EndOfLine(rest, false, columnWidth, width).value_or(LineEnd{rest.size(), rest.size()});
}

qsizetype LeadingBlanks(QStringView text) {
    qsizetype count = 0;
    while (count < text.size() && text.at(count) == u' ') {
        ++count;
    }
    const bool hasAccent = count > 0 && count < text.size() && text.at(count).isMark();
    return hasAccent ? count - 1 : count;
}

} // namespace

QString WrapLenderText(const QString& text, double columnWidth,
                       const std::function<double(const QString&)>& width) {
    QString wrapped;
    QStringView rest = text;
    while (!rest.isEmpty()) {
        const LineEnd line = FirstLine(rest, columnWidth, width);
        wrapped += rest.first(line.shown);
        const bool last = line.taken == rest.size() && line.shown == line.taken;
        rest = rest.sliced(line.taken);
        if (!last) {
            wrapped += LineBreak;
            rest = rest.sliced(LeadingBlanks(rest));
        }
    }
    return wrapped;
}

} // namespace quend::printing
