#pragma once

#include "HelpCollection.h"

#include <QTemporaryDir>
#include <QtHelp/QHelpEngine>

namespace quend::help {

/// A compiled Qt help file, read by Qt's help engine. The engine writes to a temporary folder that
/// is removed with the collection.
class CompiledHelp : public HelpCollection {
public:
    /// Throws Failure with Qt's description if the file is missing or damaged.
    explicit CompiledHelp(const QString& file);
    Q_DISABLE_COPY_MOVE(CompiledHelp)
    ~CompiledHelp() override;

    const QString& File() const override { return m_file; }
    void SetReader(Reader reader) override { m_reader = std::move(reader); }
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
    bool m_busy = false; ///< indexing or searching, in a thread of Qt
    QString m_next;
};

} // namespace quend::help
