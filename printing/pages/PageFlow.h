#pragma once

#include "Drawing.h"
#include "PageDrawing.h"

namespace quend::printing {

/// Fills pages from top to bottom with lines of text and whatever else takes a height. Each page
/// begins with the document's title, further ones with a page number, too; the foot of each is kept
/// free for the legal notice. All lengths in twips.
class PageFlow {
public:
    PageFlow(const Paper& paper, const QString& title);

    PageDrawing& Page() { return m_page; }
    const PrintedPages& Pages() const { return m_page.Pages(); }
    double Width() const { return m_page.ScaleWidth(); }
    double Top() const { return m_top; }
    /// The height that is left on this page.
    double SpaceLeft() const { return m_bottom - m_top; }
    /// The height that is left on a further page below its title.
    double SpaceOfNextPage() const { return m_bottom - NextPageTop(); }
    /// Whether nothing but the title is on this page.
    bool IsFresh() const { return m_fresh; }

    /// The title as the first page has it.
    void PrintTitle();
    /// A heading within the page, or a paragraph; pages break between its lines. Blank ones are
    /// left out.
    void PrintHeading(const QString& text);
    /// Of one line, with the gaps around it.
    double HeightOfHeading() const;
    void PrintParagraph(const QString& text);
    /// Goes down by a height that has been drawn.
    void Take(double height);
    /// Half a line of blank space.
    void SkipGap() { m_top += Gap(); }
    void NewPage();
    void PrintLegalNotice();

    /// In the paper's type, of one line.
    double LineHeight() const;
    double Gap() const { return LineHeight() / 2; }

private:
    double NextPageTop() const { return LineHeight() + Gap(); }
    PrintFont TypeOf(double scale, bool bold) const;
    void PrintLines(const QString& text);

    QString m_title;
    PrintFont m_font;
    QString m_legalNotice;
    PageDrawing m_page;
    double m_top = 0;
    double m_bottom = 0;
    bool m_fresh = true;
};

} // namespace quend::printing
