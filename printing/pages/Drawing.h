#pragma once

#include "PrintedPage.h"
#include "TextMetrics.h"

#include <functional>
#include <memory>

namespace quend::printing {

/// The paper that a document is drawn for.
struct Paper {
    QSizeF space;                         ///< the printable part of a page, in twips
    const TextMetrics* metrics = nullptr; ///< must outlive the drawing
    PrintFont font;                       ///< of ordinary text
    QString legalNotice;                  ///< on the last page; may be empty
};

/// A document being drawn on pages in memory, section by section, so that the user can cancel in
/// between. Decides neither when it is drawn nor whether it is printed.
class Drawing {
public:
    virtual ~Drawing() = default;
    /// Whether a page has space for it. Otherwise it is refused, and nothing is drawn.
    virtual bool Fits() const = 0;
    /// Whether paper in landscape orientation would show it larger or on fewer pages.
    virtual bool PrefersLandscape() const { return false; }
    /// Draws the next section; false if that was the last one, and then it is not called again.
    virtual bool DrawNext() = 0;
    /// Draws what belongs on the last page, once, after the last section.
    virtual void Finish() = 0;
    virtual const PrintedPages& Pages() const = 0;
};

/// Begins a document, which must own everything that it draws: the window it is read from may
/// change before it is drawn to the end.
using DrawDocument = std::function<std::unique_ptr<Drawing>(const Paper& paper)>;

/// Draws the document at once and returns its pages.
PrintedPages DrawWhole(Drawing& drawing);

} // namespace quend::printing
