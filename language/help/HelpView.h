#pragma once

#include <QTextBrowser>

class HelpBook;

/// Shows pages of a help book. Links lead to pages of the book and nowhere else; a picture that is
/// wider than the view is made to fit. The section that was asked for is at the top, the last ones
/// of a page too, and stays there when the view changes its size or its type.
class HelpView : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpView(QWidget* parent = nullptr);

    /// The book outlives the view, or is replaced before it goes. Null: no page.
    void SetBook(const HelpBook* book);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Whether the view is where the section put it, and was not scrolled since.
    bool IsAtSection() const;
    void FitSection(bool scroll);
    void ColourLinks();

    const HelpBook* m_book = nullptr;
    QString m_section;    ///< the name of the section asked for
    int m_sectionTop = 0; ///< in pixels from the start of the page
};
