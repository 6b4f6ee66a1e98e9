#pragma once

#include <QIdentityProxyModel>
#include <QTreeView>
#include <QUrl>

class HelpBook;

/// The contents of a help book as a tree, unfolded. Its mark follows the page in view; it shows no
/// page itself.
class HelpContents : public QTreeView {
    Q_OBJECT

public:
    explicit HelpContents(QWidget* parent = nullptr);

    /// The book outlives the tree, or is replaced before it goes. Null: no contents.
    void SetBook(HelpBook* book);
    /// To be called again once the book has listed its contents.
    void Unfold();
    /// Marks the chapter of this page. Where several lead to it, a mark that is on one of them
    /// stays, and else the innermost has it.
    void MarkPage(const QUrl& page);

Q_SIGNALS:
    void PageChosen(const QUrl& page);

private:
    /// The tree is one column without a heading. Unnamed, because the toolkit shows screen readers
    /// the column's number as a heading even where the headings are hidden.
    class Model : public QIdentityProxyModel {
    public:
        QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    };

    void Choose(const QModelIndex& chapter);
    /// Without the place in the page.
    QUrl PageOf(const QModelIndex& chapter) const;

    HelpBook* m_book = nullptr;
    Model m_model;
    QUrl m_page; ///< the page in view
};
