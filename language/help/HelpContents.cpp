#include "HelpContents.h"

#include "HelpCollection.h"

#include <QHeaderView>

namespace quend::help {

QVariant HelpContents::Model::headerData(int /*section*/, Qt::Orientation /*orientation*/,
                                         int /*role*/) const {
    return {};
}

HelpContents::HelpContents(QWidget* parent) : QTreeView(parent) {
    setModel(&m_model);
    // Titles wider than the pane can be scrolled instead of being cut off.
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QTreeView::activated, this, &HelpContents::Choose);
    connect(this, &QTreeView::clicked, this, &HelpContents::Choose);
}

void HelpContents::SetCollection(HelpCollection* collection) {
    m_collection = collection;
    m_model.setSourceModel(collection ? collection->Contents() : nullptr);
    Unfold();
}

void HelpContents::Unfold() {
    expandAll();
    MarkPage(m_page);
}

void HelpContents::MarkPage(const QUrl& page) {
    m_page = m_collection ? m_collection->Page(page.fileName()) : QUrl(); // a link may be relative
    if (currentIndex().isValid() && PageOf(currentIndex()) == m_page) {
        return;
    }
    QModelIndex found;
    for (QModelIndex chapter = m_model.index(0, 0); chapter.isValid();
         chapter = indexBelow(chapter)) {
        if (PageOf(chapter) == m_page) {
            found = chapter;
        }
    }
    setCurrentIndex(found);
}

void HelpContents::Choose(const QModelIndex& chapter) {
    Q_EMIT PageChosen(m_collection->PageOfChapter(m_model.mapToSource(chapter)));
}

QUrl HelpContents::PageOf(const QModelIndex& chapter) const {
    return m_collection->PageOfChapter(m_model.mapToSource(chapter)).adjusted(QUrl::RemoveFragment);
}

} // namespace quend::help
