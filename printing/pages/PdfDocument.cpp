#include "PdfDocument.h"

#include "PagePainter.h"

#include <QBuffer>
#include <QLocale>
#include <QPageSize>
#include <QPdfWriter>

#include <algorithm>
#include <array>

namespace quend::printing {

namespace {

/// The countries of America that write on Letter although most of them measure in metres; all
/// others use A4. From Unicode's table of paper sizes.
constexpr std::array LetterCountries{
    QLocale::UnitedStates, QLocale::Canada,    QLocale::Mexico,    QLocale::Belize,
    QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica, QLocale::ElSalvador,
    QLocale::Guatemala,    QLocale::Nicaragua, QLocale::Panama,    QLocale::Philippines,
    QLocale::PuertoRico,   QLocale::Venezuela,
};

} // namespace

QByteArray PdfOf(const PrintedPages& pages, const PdfSettings& settings) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(settings.title);
    writer.setCreator(settings.creator);
    writer.setResolution(settings.resolution);
    writer.setPageLayout(settings.layout);
    return PaintPages(writer, pages) ? buffer.data() : QByteArray();
}

QSizeF SpaceOf(const QPageLayout& layout) {
    return layout.paintRect(QPageLayout::Point).size() * TwipsPerPoint;
}

QPageLayout PageOfFile(const QLocale& locale, QPageLayout::Orientation orientation) {
    constexpr double margin = 36; // points
    const bool letter =
        std::ranges::find(LetterCountries, locale.territory()) != LetterCountries.end() ||
        locale.measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4), orientation,
            QMarginsF(margin, margin, margin, margin)};
}

} // namespace quend::printing
