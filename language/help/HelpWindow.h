#pragma once

#include "HelpPlace.h"

#include <QSortFilterProxyModel>
#include <QString>
#include <QUrl>
#include <QWidget>

#include <memory>

namespace Ui {
class HelpWindow;
}

class HelpBook;
class QModelIndex;

/// The window that shows a help book: its contents, its index and a search beside the page. It
/// stands beside the main window and does not keep the program alive. It neither chooses the book
/// nor knows the language but for its own captions.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    enum class Side { Contents, Index, Search };

    /// Opens at this place of the screen that it is shown on.
    explicit HelpWindow(const HelpPlace& place);
    HelpWindow(const HelpWindow&) = delete;
    HelpWindow& operator=(const HelpWindow&) = delete;
    HelpWindow(HelpWindow&&) = delete;
    HelpWindow& operator=(HelpWindow&&) = delete;
    ~HelpWindow() override;

    /// Takes another book and renews the captions. The page of the same name stays in view; in a
    /// book that has none, its first page.
    void SetBook(std::shared_ptr<HelpBook> book);

    /// Brings the window to the front, on the screen of `beside`, with the keyboard on that side.
    /// Contents shows the book's first page, too; a search begins without words.
    /// A dialog that waits for its answer would block it, so it then belongs to the dialog.
    void Open(Side side, QWidget& beside);
    /// The same with this page, its side staying as it is.
    void Open(const QUrl& page, QWidget& beside);

    /// The page in view.
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
    std::shared_ptr<HelpBook> m_book;
    QSortFilterProxyModel m_keywords;
};
