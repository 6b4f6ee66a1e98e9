#include "CompiledHelp.h"

#include "Failure.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QtHelp/QHelpContentModel>
#include <QtHelp/QHelpIndexModel>
#include <QtHelp/QHelpLink>
#include <QtHelp/QHelpSearchEngine>

#include <chrono>
#include <utility>

namespace quend::help {

namespace {

constexpr int HelpFailure = 5;

Failure Damaged(const QString& description) {
    return {HelpFailure, "Help", description.toStdString()};
}

QUrl FirstOf(const QList<QHelpLink>& links) { return links.isEmpty() ? QUrl() : links[0].url; }

void Notify(const std::function<void()>& reader) {
    if (reader) {
        reader();
    }
}

} // namespace

CompiledHelp::CompiledHelp(const QString& file)
    : m_file(QFileInfo(file).absoluteFilePath()),
      m_engine(m_folder.filePath(QStringLiteral("collection.qhc"))) {
    Open();
    Listen();
}

void CompiledHelp::Listen() {
    const QHelpContentModel* contents = m_engine.contentModel();
    QObject::connect(contents, &QHelpContentModel::contentsCreated, contents,
                     [this] { Notify(m_reader.contentsListed); });
    const QHelpSearchEngine* search = m_engine.searchEngine();
    QObject::connect(search, &QHelpSearchEngine::indexingFinished, search, [this] { OnIdle(); });
    QObject::connect(search, &QHelpSearchEngine::searchingFinished, search, [this] {
        OnIdle();
        Notify(m_reader.searched);
    });
}

/// Qt's help engine must not be destroyed while its thread is about to start.
CompiledHelp::~CompiledHelp() {
    m_reader = {};
    m_next.clear();
    const QDeadlineTimer patience(std::chrono::seconds(2));
    while (m_busy && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    }
}

QAbstractItemModel* CompiledHelp::Contents() { return m_engine.contentModel(); }

QAbstractItemModel* CompiledHelp::Keywords() { return m_engine.indexModel(); }

QUrl CompiledHelp::PageOfChapter(const QModelIndex& chapter) const {
    const QHelpContentItem* item = m_engine.contentModel()->contentItemAt(chapter);
    return item ? item->url() : QUrl();
}

void CompiledHelp::PrepareToFind() {
    m_busy = true;
    m_engine.searchEngine()->reindexDocumentation();
}

void CompiledHelp::Find(const QString& query) {
    if (m_busy) {
        m_next = query;
    } else {
        m_busy = true;
        m_engine.searchEngine()->search(query);
    }
}

QList<HelpCollection::FoundPage> CompiledHelp::Found(int most) {
    QList<FoundPage> pages;
    for (const QHelpSearchResult& found : m_engine.searchEngine()->searchResults(0, most)) {
        pages.append({found.title(), found.url()});
    }
    return pages;
}

void CompiledHelp::OnIdle() {
    m_busy = false;
    if (const QString next = std::exchange(m_next, {}); !next.isEmpty()) {
        Find(next);
    }
}

void CompiledHelp::Open() {
    m_engine.setReadOnly(false);
    if (!m_engine.setupData() || !m_engine.registerDocumentation(m_file)) {
        const QString why = m_engine.error(); // empty for some kinds of damage
        throw Damaged(why.isEmpty() ? QStringLiteral("The help file %1 is damaged").arg(m_file)
                                    : why);
    }
    m_space = QHelpEngineCore::namespaceName(m_file);
    if (Data(FirstPage()).isEmpty()) {
        throw Damaged(QStringLiteral("The help file %1 has no pages").arg(m_file));
    }
}

QUrl CompiledHelp::Page(const QString& name) const {
    const QUrl folder(QStringLiteral("qthelp://%1/help/").arg(m_space));
    return folder.resolved(QUrl(name));
}

QUrl CompiledHelp::PageOfTopic(int topic) const {
    return FirstOf(m_engine.documentsForIdentifier(QString::number(topic)));
}

QUrl CompiledHelp::PageOfKeyword(const QString& keyword) const {
    return FirstOf(m_engine.documentsForKeyword(keyword));
}

QByteArray CompiledHelp::Data(const QUrl& page) const {
    return m_engine.fileData(page.adjusted(QUrl::RemoveFragment));
}

} // namespace quend::help
