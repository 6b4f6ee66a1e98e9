#include "FitText.h"

#include "PrintedPage.h"
#include "WrapLenderText.h"

namespace quend::printing {

QString CutToWidth(const QString& text, double width, const MeasureText& measure) {
    const auto withEnd = [&](qsizetype length) { return text.left(length).trimmed() + u'…'; };
    qsizetype fits = 0;
    qsizetype tooLong = text.size();
    while (fits + 1 < tooLong) {
        const qsizetype middle = fits + (tooLong - fits) / 2;
        (measure(withEnd(middle)) <= width ? fits : tooLong) = middle;
    }
    if (fits > 0 && text.at(fits - 1).isHighSurrogate()) {
        --fits;
    }
    return fits > 0 ? withEnd(fits) : QString();
}

QStringList LinesOfText(const QString& text, double width, const MeasureText& measure) {
    QStringList lines;
    for (QString line : QString(text).remove(u'\r').split(u'\n')) {
        line.replace(u'\t', u' ');
        if (measure(line) <= width) {
            lines += line;
        } else {
            lines += WrapLenderText(line, width, measure).split(LineBreak);
        }
    }
    return lines;
}

} // namespace quend::printing
