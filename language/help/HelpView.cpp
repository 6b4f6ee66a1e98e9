#include "HelpView.h"

#include "HelpBook.h"
#include "LinkColour.h"

#include <QEvent>
#include <QImage>

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    setTabChangesFocus(false); // the tab key goes from link to link
    // Pictures are made to fit before it is known whether the page is longer than the view.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    ColourLinks();
}

void HelpView::ColourLinks() {
    document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1 }").arg(LinkColour(palette(), QPalette::Base).name()));
}

void HelpView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        ColourLinks();
        reload();
    }
}

void HelpView::SetBook(const HelpBook* book) {
    m_book = book;
    clearHistory();
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
    const QByteArray bytes = m_book ? m_book->Data(source().resolved(name)) : QByteArray();
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
