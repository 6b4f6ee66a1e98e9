#pragma once

#include <QTextBrowser>

class HelpBook;

/// Shows pages of a help book. Links lead to pages of the book and nowhere else; a picture that is
/// wider than the view is made to fit.
class HelpView : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpView(QWidget* parent = nullptr);

    /// The book outlives the view, or is replaced before it goes. Null: no page.
    void SetBook(const HelpBook* book);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void ColourLinks();

    const HelpBook* m_book = nullptr;
};
