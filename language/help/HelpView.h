#pragma once

#include <QColor>
#include <QPalette>
#include <QTextBrowser>

namespace quend::help {

class HelpCollection;

/// The colour of links on a background of this palette. Few dark palettes define one, and Qt's
/// default blue is unreadable there.
QColor LinkColour(const QPalette& palette, QPalette::ColorRole background);

/// Shows pages of a help collection. Only links to pages of the collection work; an image wider
/// than the view is scaled down. The requested section is at the top, even the last of a page, and
/// stays there when the size or font of the view changes.
class HelpView : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpView(QWidget* parent = nullptr);

    /// The collection must outlive the view or be replaced before it is destroyed. Null: no page.
    void SetCollection(const HelpCollection* collection);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Whether the view is still scrolled to the section.
    bool IsAtSection() const;
    void FitSection(bool scroll);
    void ColourLinks();

    const HelpCollection* m_collection = nullptr;
    QString m_section;    ///< the name of the requested section
    int m_sectionTop = 0; ///< in pixels from the start of the page
};

} // namespace quend::help
