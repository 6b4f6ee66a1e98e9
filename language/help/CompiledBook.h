#pragma once

#include "HelpBook.h"

#include <QTemporaryDir>
#include <QtHelp/QHelpEngine>

/// A help file as the toolkit compiles it, read by the toolkit's engine. What the engine has to
/// write, it writes to a folder that goes with the book.
class CompiledBook : public HelpBook {
public:
    /// Throws Failure with the toolkit's description when the file is missing or damaged.
    explicit CompiledBook(const QString& file);
    CompiledBook(const CompiledBook&) = delete;
    CompiledBook& operator=(const CompiledBook&) = delete;
    CompiledBook(CompiledBook&&) = delete;
    CompiledBook& operator=(CompiledBook&&) = delete;
    ~CompiledBook() override;

    const QString& File() const override { return m_file; }
    void TellReader(Reader reader) override { m_reader = std::move(reader); }
    QAbstractItemModel* Contents() override;
    QAbstractItemModel* Keywords() override;
    QUrl PageOfChapter(const QModelIndex& chapter) const override;
    QUrl Page(const QString& name) const override;
    QUrl PageOfTopic(int topic) const override;
    QUrl PageOfKeyword(const QString& keyword) const override;
    QByteArray Data(const QUrl& page) const override;
    void PrepareToFind() override;
    void Find(const QString& query) override;
    QList<FoundPage> Found(int most) override;

private:
    void Open();
    void Listen();
    void OnIdle();

    QString m_file;
    QTemporaryDir m_folder;
    QHelpEngine m_engine;
    QString m_space;
    Reader m_reader;
    bool m_busy = false; ///< reading or looking for pages, in a thread of the toolkit's own
    QString m_next;
};
