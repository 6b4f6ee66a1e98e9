#pragma once

#include "PrintedPage.h"

#include <QByteArray>
#include <QPageLayout>
#include <QString>

class QLocale;

namespace quend::printing {

struct PdfSettings {
    QString title;
    QString creator; ///< the program's name
    QPageLayout layout;
    int resolution = 1200; ///< dots per inch
};

/// The pages as a PDF document; empty if they cannot be painted.
QByteArray PdfOf(const PrintedPages& pages, const PdfSettings& settings);

/// The printable part of a page, in twips.
QSizeF SpaceOf(const QPageLayout& layout);

/// The page of a document that is saved to a file: the paper of the locale's country, with margins
/// of half an inch.
QPageLayout PageOfFile(const QLocale& locale, QPageLayout::Orientation orientation);

} // namespace quend::printing
