#include "HelpBook.h"

#include "Failure.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtHelp/QHelpLink>
#include <QtHelp/QHelpSearchEngine>

#include <chrono>
#include <utility>

namespace {

constexpr int HelpFailure = 5;
const QLatin1String WelcomePage("welcome.html");

Failure Damaged(const QString& description) {
    return {HelpFailure, "Help", description.toStdString()};
}

QUrl FirstOf(const QList<QHelpLink>& links) { return links.isEmpty() ? QUrl() : links[0].url; }

} // namespace

HelpBook::HelpBook(const QString& file)
    : m_file(QFileInfo(file).absoluteFilePath()),
      m_engine(m_folder.filePath(QStringLiteral("collection.qhc"))) {
    Open();
    const QHelpSearchEngine* search = m_engine.searchEngine();
    QObject::connect(search, &QHelpSearchEngine::indexingFinished, search, [this] { OnIdle(); });
    QObject::connect(search, &QHelpSearchEngine::searchingFinished, search, [this] { OnIdle(); });
}

/// The toolkit's engine must not go while its thread is about to begin.
HelpBook::~HelpBook() {
    m_next.clear();
    const QDeadlineTimer patience(std::chrono::seconds(2));
    while (m_busy && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    }
}

void HelpBook::PrepareToFind() {
    m_busy = true;
    m_engine.searchEngine()->reindexDocumentation();
}

void HelpBook::Find(const QString& query) {
    if (m_busy) {
        m_next = query;
    } else {
        m_busy = true;
        m_engine.searchEngine()->search(query);
    }
}

void HelpBook::OnIdle() {
    m_busy = false;
    if (const QString next = std::exchange(m_next, {}); !next.isEmpty()) {
        Find(next);
    }
}

void HelpBook::Open() {
    m_engine.setReadOnly(false);
    if (!m_engine.setupData() || !m_engine.registerDocumentation(m_file)) {
        const QString why = m_engine.error(); // none for some kinds of damage
        throw Damaged(why.isEmpty() ? QStringLiteral("The help file %1 is damaged").arg(m_file)
                                    : why);
    }
    m_space = QHelpEngineCore::namespaceName(m_file);
    if (Data(FirstPage()).isEmpty()) {
        throw Damaged(QStringLiteral("The help file %1 has no pages").arg(m_file));
    }
}

QUrl HelpBook::Page(const QString& name) const {
    const QUrl folder(QStringLiteral("qthelp://%1/help/").arg(m_space));
    return folder.resolved(QUrl(name));
}

QUrl HelpBook::FirstPage() const { return Page(WelcomePage); }

QUrl HelpBook::PageOfTopic(int topic) const {
    return FirstOf(m_engine.documentsForIdentifier(QString::number(topic)));
}

QUrl HelpBook::PageOfKeyword(const QString& keyword) const {
    return FirstOf(m_engine.documentsForKeyword(keyword));
}

bool HelpBook::Has(const QUrl& page) const { return !Data(page).isEmpty(); }

QByteArray HelpBook::Data(const QUrl& page) const {
    return m_engine.fileData(page.adjusted(QUrl::RemoveFragment));
}

QString HelpBook::TopicText(int topic) const {
    const QString page = QString::fromUtf8(Data(PageOfTopic(topic)));
    const QRegularExpression section(
        QStringLiteral("<h2><a name=\"t%1\"></a>(.*?)</h2>(.*?)(?=<h2>|</body>)").arg(topic),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch found = section.match(page);
    return found.hasMatch()
               ? QStringLiteral("<p><b>%1</b></p>%2").arg(found.captured(1), found.captured(2))
               : QString();
}
