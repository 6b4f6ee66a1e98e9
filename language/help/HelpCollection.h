#pragma once

#include <QByteArray>
#include <QList>
#include <QModelIndex>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QAbstractItemModel;

namespace quend::help {

/// An open help file: its pages, their topics, and models of its contents and index. Shows nothing,
/// and does not read the file: CompiledHelp does.
class HelpCollection {
public:
    struct FoundPage {
        QString title;
        QUrl page;
    };
    /// Callbacks for background work. Either may be empty.
    struct Reader {
        std::function<void()> contentsListed;
        std::function<void()> searched;
    };

    virtual ~HelpCollection() = default;

    virtual const QString& File() const = 0;
    /// One reader; pass {} to unsubscribe.
    virtual void SetReader(Reader reader) = 0;

    /// The collection owns both models.
    virtual QAbstractItemModel* Contents() = 0;
    virtual QAbstractItemModel* Keywords() = 0;
    /// The page of an entry in the contents.
    virtual QUrl PageOfChapter(const QModelIndex& chapter) const = 0;

    /// The URL of a page, named as in a link, such as "points.html#t1030".
    virtual QUrl Page(const QString& name) const = 0;
    /// The URL of a topic; empty for an unknown number.
    virtual QUrl PageOfTopic(int topic) const = 0;
    /// The page that a keyword of the index leads to.
    virtual QUrl PageOfKeyword(const QString& keyword) const = 0;
    /// Empty for pages that are not in the collection.
    virtual QByteArray Data(const QUrl& page) const = 0;

    QUrl FirstPage() const;
    bool Has(const QUrl& page) const;
    /// One topic as HTML: its heading and the text below it, up to the next heading.
    QString TopicText(int topic) const;

    /// Indexes the whole collection for Find.
    virtual void PrepareToFind() = 0;
    /// Searches pages; of the queries made while the collection is busy, only the last one runs.
    virtual void Find(const QString& query) = 0;
    /// Results of the last search, best first.
    virtual QList<FoundPage> Found(int most) = 0;
};

/// Opens a help file. Throws Failure with its own description if the file is missing or damaged.
using HelpOpener = std::function<std::shared_ptr<HelpCollection>(const QString& file)>;

} // namespace quend::help
