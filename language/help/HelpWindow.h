#pragma once

#include "HelpNames.h"

#include <QRect>
#include <QSortFilterProxyModel>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <memory>

namespace Ui {
class HelpWindow;
}

class QModelIndex;

namespace quend::help {

class HelpCollection;

/// The initial geometry of the help window in 1024ths of the screen, so that it is beside the main
/// window and covers the lower right of any screen.
struct HelpPlace {
    static constexpr int Units = 1024;

    int x = 400;
    int y = 400;
    int width = 620;
    int height = 620;

    /// In the pixels of this screen.
    QRect On(const QRect& screen) const {
        return {screen.x() + x * screen.width() / Units, screen.y() + y * screen.height() / Units,
                width * screen.width() / Units, height * screen.height() / Units};
    }
};

/// The window that shows a help collection: its contents, its index and a search beside the page.
/// It is independent of the main window and does not keep the program running. It does not choose
/// the collection and uses the language only for its own captions.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    enum class Side { Contents, Index, Search };

    /// Opens at this place on its screen.
    explicit HelpWindow(const HelpPlace& place);
    Q_DISABLE_COPY_MOVE(HelpWindow)
    ~HelpWindow() override;

    /// Replaces the collection and updates the captions. Keeps the page of the same name, or shows
    /// the first page if the new collection has none.
    void SetCollection(std::shared_ptr<HelpCollection> collection);

    /// Brings the window to the front, on the screen of `beside`, with the focus on that pane.
    /// Contents also shows the collection's first page; a search starts empty.
    /// A modal dialog would block the window, so it then becomes transient for the dialog.
    void Open(Side side, QWidget& beside);
    /// The same with this page; the pane does not change.
    void Open(const QUrl& page, QWidget& beside);

    /// The current page.
    QUrl PageInView() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Wire();
    void ShowTexts();
    void Raise(QWidget& beside);
    void BelongTo(const QWidget* dialog);
    void Place(const QWidget& beside);
    void FitSide();
    void UnfoldContents();
    void EnterSide();
    void ShowPage(const QUrl& page);
    void ShowKeyword(const QModelIndex& keyword);
    void ListKeywords(const QString& start);
    void Find();
    void ClearFound();
    void ListFound();

    std::unique_ptr<Ui::HelpWindow> m_ui;
    HelpPlace m_place;
    bool m_placed = false;
    bool m_sideSet = false; ///< by the user
    std::shared_ptr<HelpCollection> m_collection;
    QSortFilterProxyModel m_keywords;
};

} // namespace quend::help
