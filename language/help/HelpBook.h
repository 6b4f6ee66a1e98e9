#pragma once

#include <QByteArray>
#include <QList>
#include <QModelIndex>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QAbstractItemModel;

/// One help file, opened: its pages, their topics, and models of its contents and index. Shows
/// nothing itself, and does not know what reads the file: CompiledBook does.
class HelpBook {
public:
    struct FoundPage {
        QString title;
        QUrl page;
    };
    /// Who is told what is done behind the scenes. Either may be empty.
    struct Reader {
        std::function<void()> contentsListed;
        std::function<void()> searched;
    };

    HelpBook() = default;
    HelpBook(const HelpBook&) = delete;
    HelpBook& operator=(const HelpBook&) = delete;
    HelpBook(HelpBook&&) = delete;
    HelpBook& operator=(HelpBook&&) = delete;
    virtual ~HelpBook() = default;

    virtual const QString& File() const = 0;
    /// There is one reader at a time; an empty one is told nothing.
    virtual void TellReader(Reader reader) = 0;

    /// Both stay the book's own.
    virtual QAbstractItemModel* Contents() = 0;
    virtual QAbstractItemModel* Keywords() = 0;
    /// The page of an entry of the contents.
    virtual QUrl PageOfChapter(const QModelIndex& chapter) const = 0;

    /// Where a page is, named as in a link, such as "points.html#t1030".
    virtual QUrl Page(const QString& name) const = 0;
    /// The place of a topic; empty for a number that has none.
    virtual QUrl PageOfTopic(int topic) const = 0;
    /// The page that a keyword of the index leads to.
    virtual QUrl PageOfKeyword(const QString& keyword) const = 0;
    /// Empty for what is not in the book.
    virtual QByteArray Data(const QUrl& page) const = 0;

    QUrl FirstPage() const;
    bool Has(const QUrl& page) const;
    /// A topic by itself, as HTML: its heading and what stands under it, up to the next heading.
    QString TopicText(int topic) const;

    /// Reads the whole book for Find.
    virtual void PrepareToFind() = 0;
    /// Looks for pages; the last query asked for while the book is busy is the one that counts.
    virtual void Find(const QString& query) = 0;
    /// Of the last search, the best first.
    virtual QList<FoundPage> Found(int most) = 0;
};

/// Opens a help file. Throws Failure in words of its own when it is missing or damaged.
using BookOpener = std::function<std::shared_ptr<HelpBook>(const QString& file)>;
