#include "PageFlow.h"

#include "FitText.h"

namespace quend::printing {

namespace {

constexpr double NoticePoints = 6;
/// Sizes of type as multiples of the paper's.
constexpr double TitleScale = 1.4;
constexpr double HeadingScale = 1.1;

} // namespace

PageFlow::PageFlow(const Paper& paper, const QString& title)
    : m_title(title), m_font(paper.font), m_legalNotice(paper.legalNotice),
      m_page(paper.space, *paper.metrics) {
    m_page.SetTitle(title);
    m_page.SetFont({.family = m_font.family, .points = NoticePoints, .italic = true});
    // It depends on the font that was set before.
    // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer)
    m_bottom = m_page.ScaleHeight() - 2 * m_page.TextHeight();
    m_page.SetFont(m_font);
}

PrintFont PageFlow::TypeOf(double scale, bool bold) const {
    PrintFont font = m_font;
    font.points *= scale;
    font.bold = bold;
    return font;
}

double PageFlow::LineHeight() const { return m_page.HeightOf(m_font); }

void PageFlow::PrintLines(const QString& text) {
    const double height = m_page.TextHeight();
    const PrintFont font = m_page.Font();
    for (const QString& line : LinesOfText(text, Width(), m_page.Measure())) {
        if (height > SpaceLeft() && !m_fresh) {
            NewPage();
            m_page.SetFont(font);
        }
        m_page.PrintAt({0, m_top}, line);
        Take(height);
    }
}

void PageFlow::PrintTitle() {
    m_page.SetFont(TypeOf(TitleScale, true));
    PrintLines(m_title);
    m_page.SetFont(m_font);
    SkipGap();
}

void PageFlow::PrintHeading(const QString& text) {
    if (!text.isEmpty()) {
        SkipGap();
        m_page.SetFont(TypeOf(HeadingScale, true));
        PrintLines(text);
        m_page.SetFont(m_font);
        SkipGap();
    }
}

double PageFlow::HeightOfHeading() const {
    return 2 * Gap() + m_page.HeightOf(TypeOf(HeadingScale, true));
}

void PageFlow::PrintParagraph(const QString& text) {
    if (!text.isEmpty()) {
        m_page.SetFont(m_font);
        PrintLines(text);
        SkipGap();
    }
}

void PageFlow::Take(double height) {
    m_top += height;
    m_fresh = false;
}

/// The title gives way to the page number.
void PageFlow::NewPage() {
    m_page.NewPage();
    m_page.SetFont(TypeOf(1, true));
    const QString number = QStringLiteral("Page ") + QString::number(m_page.PageNumber());
    const double numberWidth = m_page.TextWidth(number);
    const double space = Width() - numberWidth - LineHeight();
    const QString title = m_title.simplified();
    m_page.PrintAt({0, 0}, m_page.TextWidth(title) <= space
                               ? title
                               : CutToWidth(title, space, m_page.Measure()));
    m_page.PrintAt({Width() - numberWidth, 0}, number);
    m_page.SetFont(m_font);
    m_top = NextPageTop();
    m_fresh = true;
}

void PageFlow::PrintLegalNotice() {
    m_page.SetFont({.family = m_font.family, .points = NoticePoints, .italic = true});
    const QString text = m_page.FitInto(m_legalNotice, Width());
    m_page.PrintAt(
        {(Width() - m_page.TextWidth(text)) / 2, m_page.ScaleHeight() - m_page.TextHeight()}, text);
    m_page.SetFont(m_font);
}

} // namespace quend::printing
