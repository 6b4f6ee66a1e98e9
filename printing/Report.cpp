#include "Report.h"

#include "WrapLenderText.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quend::printing {

namespace {

constexpr int SeparatorPen = 5;
constexpr double FooterPoints = 6;
/// The font shrinks with a window that is wider than the page, but not below this size.
constexpr double LeastTypePoints = 6;
/// The total padding above and below a text of several lines, in window units.
constexpr double LinesPadding = 4;
/// The distance of the lender's lines from the right edge, in twips.
constexpr double LenderGap = 28;

bool StandsRight(Side side) { return side == Side::Right; }

} // namespace

Report::Report(ReportInput form, QSizeF space, const TextMetrics& metrics)
    : m_form(std::move(form)), m_page(space, metrics) {
    Prepare();
}

void Report::Prepare() {
    TakeScaleFactor();
    m_page.SetFamily(m_form.fontFamily);
    m_page.SetType(FooterPoints, false);
    m_page.SetItalic(true);
    m_footerReserve = 2 * m_page.TextHeight();
    m_page.SetItalic(false);
    TakeLabelFont(lblLoanName());
    m_page.SetOffsetX(0);
}

void Report::TakeScaleFactor() { m_page.SetScaleFactor(m_page.ScaleWidth() / m_form.width); }

/// On a page at least as wide as the window the font keeps its size.
double Report::TypeScale() const {
    const double natural = TwipsPerPoint / m_form.pixelsPerPoint;
    return std::min(1.0, m_page.ScaleFactor() / natural);
}

double Report::WidestWindow(double scaleWidth, double points, double pixelsPerPoint) {
    const double leastTypeScale = std::min(1.0, LeastTypePoints / points);
    return scaleWidth * pixelsPerPoint / (TwipsPerPoint * leastTypeScale);
}

void Report::TakeLabelFont(const FormLabel& label) {
    const double points =
        std::max(label.points * TypeScale(), std::min(label.points, LeastTypePoints));
    m_page.SetType(points, label.bold);
}

/// A caption in its label's font, where the window shows it.
void Report::PrintCaption(const FormLabel& label, double top) {
    TakeLabelFont(label);
    const PrintFont font = m_page.Font();
    const double width = label.place.width();
    const QString caption = m_page.FitInto(label.caption, width * m_page.ScaleFactor());
    double x = label.place.left();
    if (label.side == Side::Right) {
        x = label.place.right() - m_page.TextWidth(caption) / m_page.ScaleFactor();
    }
    m_page.PrintLabel(x, top, caption, label.place.height(), label.side == Side::Centre, width);
    m_page.SetFont(font);
}

void Report::PrintEntry(const FormEntry& entry) {
    PrintCaption(entry.label, entry.label.place.top());
    const QRectF& box = entry.field;
    m_page.PrintBox(box.left(), box.top(), box.width(), box.height());
    m_page.PrintTextInBox(box.left(), box.top(), box.width(), box.height(), entry.text,
                          StandsRight(entry.side));
}

void Report::PrintEntries(const std::vector<FormEntry>& entries) {
    for (const FormEntry& entry : entries) {
        PrintEntry(entry);
    }
}

/// If the column had room for fewer letters, a lender's text would get one line for each.
bool Report::HasRoomForARow() const {
    const double lender = m_page.RoomInBox(m_form.columns.back().width + m_form.scrollBarWidth);
    return m_page.ScaleFactor() > 0 &&
           lender - LenderGap >= m_page.TextWidth(QStringLiteral("mmm")) &&
           m_form.offersTop + HeightOf(1) <= RowLimit();
}

bool Report::DrawNext() {
    (this->*Sections.at(m_sectionsDrawn))();
    return ++m_sectionsDrawn < Sections.size();
}

void Report::PrintLoanHeader() {
    PrintCaption(m_form.current, m_form.current.place.top());
    PrintEntries(m_form.header);
    for (const QLineF& line : m_form.lines) {
        m_page.PrintLine(line.x1(), line.y1(), line.x2(), line.y2(), SeparatorPen);
    }
}

void Report::PrintCurrentLoanFirstHalf() { PrintEntries(m_form.currentFirstHalf); }

void Report::PrintCurrentLoanSecondHalf() { PrintEntries(m_form.currentSecondHalf); }

void Report::PrintOffers() {
    m_lenderColumnWidth = m_form.columns.back().width + m_form.scrollBarWidth;
    TakeScaleFactor();
    m_rowTop = m_form.headings.front().place.top();
    PrintColumnHeaders();
    m_rowTop = m_form.offersTop;
    m_page.SetOffsetX(m_form.offersLeft);
    for (const FormRow& row : m_form.rows) {
        PrintRow(row);
    }
}

void Report::PrintColumnHeaders() {
    for (const FormLabel& heading : m_form.headings) {
        PrintCaption(heading, m_rowTop);
    }
}

/// The lender's box includes the width of the scroll bar, which is not printed, so that a line that
/// fits the column fits the box.
double Report::ColumnWidth(std::size_t column) const {
    return column + 1 == m_form.columns.size() ? m_lenderColumnWidth
                                               : m_form.columns.at(column).width;
}

QString Report::LenderTextOf(const FormRow& row) const {
    QString text = row.back();
    while (text.endsWith(u' ')) {
        text.chop(1);
    }
    const double room = m_page.RoomInBox(m_lenderColumnWidth) - LenderGap;
    const auto width = [this](const QString& line) { return m_page.TextWidth(line); };
    const QStringList lines = text.split(LineBreak);
    const bool fits =
        std::ranges::all_of(lines, [&](const auto& line) { return width(line) < room; });
    return fits ? text : WrapLenderText(text, room, width);
}

/// The line height of the window's font or, if greater, of the paper's font.
double Report::LineHeight() const {
    return std::max(m_form.fontHeight, m_page.TextHeight() / m_page.ScaleFactor());
}

double Report::HeightOf(qsizetype lines) const {
    const double padding = lines > 1 ? LinesPadding : 0;
    return std::max(LineHeight() * static_cast<double>(lines) + padding, m_form.fieldHeight);
}

/// The lowest end of the rows on a page.
double Report::RowLimit() const {
    return (m_page.ScaleHeight() - m_footerReserve) / m_page.ScaleFactor();
}

void Report::PrintRow(const FormRow& row) {
    FormRow texts = row;
    texts.back() = LenderTextOf(row);
    m_rowHeight = HeightOf(texts.back().count(LineBreak) + 1);
    if (m_rowTop + m_rowHeight > RowLimit()) {
        StartNewPage();
        PrintHighRow(texts);
    }
    PrintRowPart(texts);
}

/// Prints a row higher than a page, except its last part, which then fits on the current page.
void Report::PrintHighRow(FormRow& texts) {
    QStringList lines = texts.back().split(LineBreak);
    while (lines.size() > 1 && m_rowTop + HeightOf(lines.size()) > RowLimit()) {
        const auto fitting = static_cast<qsizetype>(
            std::floor((RowLimit() - m_rowTop - LinesPadding) / LineHeight()));
        const qsizetype taken = std::clamp<qsizetype>(fitting, 1, lines.size() - 1);
        texts.back() = lines.mid(0, taken).join(LineBreak);
        m_rowHeight = HeightOf(taken);
        PrintRowPart(texts);
        lines.remove(0, taken);
        std::ranges::fill(texts, QString());
        StartNewPage();
    }
    texts.back() = lines.join(LineBreak);
    m_rowHeight = HeightOf(lines.size());
}

void Report::PrintRowPart(FormRow& texts) {
    for (std::size_t column = 0; column < m_form.columns.size(); ++column) {
        m_page.PrintBox(m_form.columns.at(column).left, m_rowTop, ColumnWidth(column), m_rowHeight);
    }
    for (std::size_t column = 0; column < m_form.columns.size(); ++column) {
        const FormColumn& place = m_form.columns.at(column);
        m_page.PrintTextInBox(place.left, m_rowTop, ColumnWidth(column), m_rowHeight,
                              texts.at(column), StandsRight(place.side));
    }
    m_rowTop += m_rowHeight;
}

void Report::StartNewPage() {
    PrintPageFooter();
    m_page.NewPage();
    TakeScaleFactor();
    TakeLabelFont(lblLoanName());
    m_page.SetOffsetX(0);
    PrintEntry(m_form.header.front());
    PrintPageNumber();
    m_rowTop = m_form.header.at(1).label.place.top();
    PrintColumnHeaders();
    m_rowTop += m_form.headings.front().place.height();
    m_page.SetOffsetX(m_form.offersLeft);
}

void Report::PrintPageNumber() {
    const QString text = QStringLiteral("Page ") + QString::number(m_page.PageNumber());
    const double x = (m_page.ScaleWidth() - m_page.TextWidth(text)) / m_page.ScaleFactor();
    const QRectF& line = lblLoanName().place;
    m_page.PrintLabel(x, line.top(), text, line.height());
}

void Report::PrintPageFooter() {
    m_page.SetType(FooterPoints, false);
    m_page.SetItalic(true);
    const QString text = m_page.FitInto(m_form.legalNotice, m_page.ScaleWidth());
    m_page.PrintAt({(m_page.ScaleWidth() - m_page.TextWidth(text)) / 2,
                    m_page.ScaleHeight() - m_page.TextHeight()},
                   text);
    m_page.SetItalic(false);
    TakeLabelFont(lblLoanName());
}

} // namespace quend::printing
