#include "HelpView.h"

#include "HelpBook.h"

#include <QImage>

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    setTabChangesFocus(false); // the tab key goes from link to link
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
