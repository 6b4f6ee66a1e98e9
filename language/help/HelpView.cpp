#include "HelpView.h"

#include "HelpCollection.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>

#include <algorithm>
#include <cmath>
#include <optional>

namespace quend::help {

namespace {

/// Where a section begins, in pixels from the start of the page.
std::optional<int> SectionTop(const QTextDocument& page, const QString& name) {
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            if (part.fragment().charFormat().anchorNames().contains(name)) {
                return static_cast<int>(page.documentLayout()->blockBoundingRect(block).top());
            }
        }
    }
    return std::nullopt;
}

void SetRoomBelow(const QTextDocument& page, double room) {
    QTextFrameFormat format = page.rootFrame()->frameFormat();
    if (format.bottomMargin() != room) {
        format.setBottomMargin(room);
        page.rootFrame()->setFrameFormat(format);
    }
}

} // namespace

QColor LinkColour(const QPalette& palette, QPalette::ColorRole background) {
    constexpr int half = 128;
    const QColor link = palette.color(QPalette::Link);
    const bool darkOnDark =
        palette.color(background).lightness() < half && link.lightness() <= half;
    return darkOnDark ? QColor(122, 184, 255) : link;
}

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    setTabChangesFocus(false); // Tab moves between links
    // Images are scaled before it is known whether the page needs a scroll bar.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    ColourLinks();
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
        m_section = page.fragment(); // source() is still the previous page
        FitSection(true);
    });
}

bool HelpView::IsAtSection() const { return verticalScrollBar()->value() == m_sectionTop; }

/// A page cannot scroll past its end, so add space for the last sections below it.
void HelpView::FitSection(bool scroll) {
    const double margin = document()->documentMargin();
    const auto top = SectionTop(*document(), m_section);
    m_sectionTop = top.value_or(0);
    const double below = document()->size().height() -
                         document()->rootFrame()->frameFormat().bottomMargin() - m_sectionTop;
    const double room = top ? std::ceil(viewport()->height() - below) : margin;
    SetRoomBelow(*document(), std::max(room, margin));
    if (scroll) {
        verticalScrollBar()->setValue(m_sectionTop);
    }
}

void HelpView::resizeEvent(QResizeEvent* event) {
    const bool scroll = IsAtSection();
    QTextBrowser::resizeEvent(event);
    FitSection(scroll);
}

void HelpView::ColourLinks() {
    document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1 }").arg(LinkColour(palette(), QPalette::Base).name()));
}

void HelpView::changeEvent(QEvent* event) {
    const bool scroll = IsAtSection();
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FitSection(scroll);
    }
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        ColourLinks();
        reload();
    }
}

void HelpView::SetCollection(const HelpCollection* collection) {
    m_collection = collection;
    clearHistory();
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
    const QByteArray bytes =
        m_collection ? m_collection->Data(source().resolved(name)) : QByteArray();
    if (type != QTextDocument::ImageResource) {
        return bytes;
    }
    QImage picture = QImage::fromData(bytes);
    const double room = viewport()->width() - 2 * document()->documentMargin();
    if (room > 0 && picture.width() > room) {
        picture.setDevicePixelRatio(picture.width() / room);
    }
    return picture;
}

} // namespace quend::help
