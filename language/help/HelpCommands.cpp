#include "HelpCommands.h"

#include "FailureReport.h"
#include "HelpTopic.h"
#include "HelpView.h"
#include "HelpWindow.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "MessageQueue.h"
#include "TextNumbers.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>
#include <QUrl>
#include <QWhatsThis>

#include <utility>

namespace quend::help {

namespace {

/// The object that help is requested for: the active entry of an open menu, else the focus widget.
const QObject* AskedAbout() {
    const QWidget* popup = QApplication::activePopupWidget();
    if (const auto* menu = qobject_cast<const QMenu*>(popup)) {
        const QAction* entry = menu->activeAction();
        return entry ? static_cast<const QObject*>(entry) : menu;
    }
    const QWidget* focus = QApplication::focusWidget();
    return popup ? popup : focus ? focus : QApplication::activeWindow();
}

/// The window to show help beside.
QWidget& ActiveWindow(Loan& loan) {
    QWidget* active = QApplication::activeWindow();
    return active ? *active : loan;
}

} // namespace

HelpCommands::HelpCommands(Loan& window, HelpOpener open)
    : m_loan(&window), m_open(std::move(open)) {
    const Ui::Loan& form = window.Form();
    form.mnuHelpContents->setEnabled(true);
    form.mnuHelpSearch->setEnabled(true);
    form.cmdWhatsThis->setEnabled(true);
    connect(form.mnuHelpContents, &QAction::triggered, this, &HelpCommands::mnuHelpContents_Click);
    connect(form.mnuHelpSearch, &QAction::triggered, this, &HelpCommands::mnuHelpSearch_Click);
    connect(form.cmdWhatsThis, &QPushButton::clicked, this, &HelpCommands::cmdWhatsThis_Click);
    connect(&m_whatsThis, &WhatsThisMode::Asked, this, &HelpCommands::ShowWhatsThis);
    // Queued, because the signal arrives before the language has changed.
    connect(form.mnuToolsLanguage, &QMenu::triggered, this, &HelpCommands::FollowLanguage,
            Qt::QueuedConnection);
    qApp->installEventFilter(this);
}

HelpCommands::~HelpCommands() = default;

void HelpCommands::mnuHelpContents_Click() {
    Try([this] { Window().Open(HelpWindow::Side::Contents, *m_loan); });
}

void HelpCommands::mnuHelpSearch_Click() {
    Try([this] { Window().Open(HelpWindow::Side::Search, *m_loan); });
}

void HelpCommands::cmdWhatsThis_Click() {
    Try([this] { m_whatsThis.Begin(); });
}

bool HelpCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WhatsThisClicked) {
        FollowLink(static_cast<QWhatsThisClickedEvent*>(event)->href());
        return true;
    }
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() != Qt::Key_F1 || (key.modifiers() & ~Qt::ShiftModifier) != 0) {
        return false;
    }
    if (!key.isAutoRepeat()) {
        if ((key.modifiers() & Qt::ShiftModifier) != 0) {
            cmdWhatsThis_Click();
        } else {
            OnHelpKey();
        }
    }
    return true;
}

void HelpCommands::OnHelpKey() {
    m_whatsThis.End();
    const QObject* asked = AskedAbout();
    const int topic = asked ? TopicOf(asked) : 0;
    while (QWidget* popup = QApplication::activePopupWidget()) {
        if (!popup->close()) {
            break;
        }
    }
    ShowTopic(topic);
}

/// For a control without a topic, shows the first page.
void HelpCommands::ShowTopic(int topic) {
    Try([this, topic] {
        const QUrl page = Collection().PageOfTopic(topic);
        Window().Open(page.isEmpty() ? Collection().FirstPage() : page, ActiveWindow(*m_loan));
    });
}

void HelpCommands::ShowWhatsThis(int topic, const QPoint& at, QWidget* window) {
    Try([&] {
        const QString text = Collection().TopicText(topic);
        if (!text.isEmpty()) {
            const QUrl page = Collection().PageOfTopic(topic);
            const QString link = page.fileName() + u'#' + page.fragment();
            const QColor colour = LinkColour(QToolTip::palette(), QPalette::ToolTipBase);
            const QString more = QStringLiteral("<p><a href=\"%1\">%2</a></p>")
                                     .arg(link, GetResourceText(TextNumber::HelpMore));
            QWhatsThis::showText(
                at,
                QStringLiteral("<style>a { color: %1 }</style>").arg(colour.name()) + text + more,
                window);
        }
    });
}

void HelpCommands::FollowLink(const QString& link) {
    QWhatsThis::hideText();
    Try([this, &link] { Window().Open(Collection().Page(link), ActiveWindow(*m_loan)); });
}

/// Help that is not visible follows when it is opened next.
void HelpCommands::FollowLanguage() {
    if (m_help && m_help->isVisible()) {
        Try([this] { Window(); });
    }
}

void HelpCommands::Try(const std::function<void()>& help) const {
    m_loan->Report().Guard(help, FailureDescription);
}

HelpCollection& HelpCommands::Collection() {
    const QString file = QFileInfo(Language::Instance().HelpFile()).absoluteFilePath();
    if (!m_collection || m_collection->File() != file) {
        m_collection = m_open(file);
    }
    return *m_collection;
}

HelpWindow& HelpCommands::Window() {
    Collection();
    if (!m_help) {
        m_help = std::make_unique<HelpWindow>(HelpPlace{});
    }
    m_help->SetCollection(m_collection);
    return *m_help;
}

} // namespace quend::help
