#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>
#include <QtHelp/QHelpEngine>

/// One help file, opened: its pages, their topics and the toolkit's models of its contents and
/// index. Shows nothing itself. What the toolkit has to write, it writes to a folder that goes with
/// the book.
class HelpBook {
public:
    /// Throws Failure with the toolkit's description when the file is missing or damaged.
    explicit HelpBook(const QString& file);
    HelpBook(const HelpBook&) = delete;
    HelpBook& operator=(const HelpBook&) = delete;
    HelpBook(HelpBook&&) = delete;
    HelpBook& operator=(HelpBook&&) = delete;
    ~HelpBook();

    const QString& File() const { return m_file; }
    QHelpEngine& Engine() { return m_engine; }

    /// Where a page is, named as in a link, such as "points.html#t1030".
    QUrl Page(const QString& name) const;
    QUrl FirstPage() const;
    /// The place of a topic; empty for a number that has none.
    QUrl PageOfTopic(int topic) const;
    /// The page that a keyword of the index leads to.
    QUrl PageOfKeyword(const QString& keyword) const;
    bool Has(const QUrl& page) const;
    /// Empty for what is not in the book.
    QByteArray Data(const QUrl& page) const;

    /// A topic by itself, as HTML: its heading and what stands under it, up to the next heading.
    QString TopicText(int topic) const;

private:
    void Open();

    QString m_file;
    QTemporaryDir m_folder;
    QHelpEngine m_engine;
    QString m_space;
};
