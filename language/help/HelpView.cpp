#include "HelpView.h"

#include "HelpBook.h"

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    setTabChangesFocus(false); // the tab key goes from link to link
}

void HelpView::SetBook(const HelpBook* book) {
    m_book = book;
    clearHistory();
}

QVariant HelpView::loadResource(int /*type*/, const QUrl& name) {
    return m_book ? m_book->Data(source().resolved(name)) : QByteArray();
}
