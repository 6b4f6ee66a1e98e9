#pragma once

#include "HelpNames.h"
#include "HelpPlace.h"

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

/// The window that shows a help collection: its contents, its index and a search beside the page.
/// It is independent of the main window and does not keep the program running. It does not choose
/// the collection and uses the language only for its own captions.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    enum class Side { Contents, Index, Search };

    /// Opens at this place on its screen.
    explicit HelpWindow(const HelpPlace& place);
    HelpWindow(const HelpWindow&) = delete;
    HelpWindow& operator=(const HelpWindow&) = delete;
    HelpWindow(HelpWindow&&) = delete;
    HelpWindow& operator=(HelpWindow&&) = delete;
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
