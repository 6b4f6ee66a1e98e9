#pragma once

#include <QIdentityProxyModel>
#include <QTreeView>
#include <QUrl>

namespace quend::help {

class HelpCollection;

/// The contents of a help collection as an expanded tree. The selection follows the current page;
/// the tree does not show pages.
class HelpContents : public QTreeView {
    Q_OBJECT

public:
    explicit HelpContents(QWidget* parent = nullptr);

    /// The collection must outlive the tree or be replaced before it is destroyed. Null: no
    /// contents.
    void SetCollection(HelpCollection* collection);
    /// Call again when the collection has listed its contents.
    void Unfold();
    /// Selects the chapter of this page. If several chapters link to it, keeps a selection that is
    /// one of them, else selects the innermost.
    void MarkPage(const QUrl& page);

Q_SIGNALS:
    void PageChosen(const QUrl& page);

private:
    /// The tree is one column without a heading. The heading is empty, because Qt reports the
    /// column's number to screen readers even if headings are hidden.
    class Model : public QIdentityProxyModel {
    public:
        QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    };

    void Choose(const QModelIndex& chapter);
    /// Without the fragment.
    QUrl PageOf(const QModelIndex& chapter) const;

    HelpCollection* m_collection = nullptr;
    Model m_model;
    QUrl m_page; ///< the current page
};

} // namespace quend::help
