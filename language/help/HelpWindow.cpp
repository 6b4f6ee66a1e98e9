#include "HelpWindow.h"

#include "Captions.h"
#include "HelpAccess.h"
#include "HelpCollection.h"
#include "Language.h"
#include "TextNumbers.h"
#include "ui_HelpWindow.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaObject>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quend::help {

namespace {

constexpr int MostFound = 100;

/// Matches every word, also as a prefix. Words are quoted, because AND, OR, NOT, NEAR and the
/// characters between words are operators of the search engine.
QString QueryOf(const QString& typed) {
    const QRegularExpression gap(QStringLiteral("[\\W_]+"),
                                 QRegularExpression::UseUnicodePropertiesOption);
    QStringList words = typed.split(gap, Qt::SkipEmptyParts);
    for (QString& word : words) {
        word = u'"' + word + QStringLiteral("\"*");
    }
    return words.join(u' ');
}

} // namespace

HelpWindow::HelpWindow(const HelpPlace& place)
    : m_ui(std::make_unique<Ui::HelpWindow>()), m_place(place) {
    InstallHelpAccess();
    m_ui->setupUi(this);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_ui->splHelp->setStretchFactor(1, 1);
    m_ui->lblNotFound->hide();
    m_keywords.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_keywords.setSortCaseSensitivity(Qt::CaseInsensitive);
    m_keywords.setSortLocaleAware(true);
    m_ui->lstIndex->setModel(&m_keywords);
    ListKeywords({});
    Wire();
}

/// Detach views and models before the collection is destroyed.
HelpWindow::~HelpWindow() {
    if (m_collection) {
        m_collection->SetReader({});
    }
    m_ui->treContents->SetCollection(nullptr);
    m_keywords.setSourceModel(nullptr);
    m_ui->txtPage->SetCollection(nullptr);
}

void HelpWindow::Wire() {
    m_ui->splHelp->installEventFilter(this);
    m_ui->tabHelp->tabBar()->installEventFilter(this);
    connect(m_ui->splHelp, &QSplitter::splitterMoved, this, [this] { m_sideSet = true; });
    connect(m_ui->cmdBack, &QPushButton::clicked, m_ui->txtPage, &QTextBrowser::backward);
    connect(m_ui->cmdForward, &QPushButton::clicked, m_ui->txtPage, &QTextBrowser::forward);
    connect(m_ui->txtPage, &QTextBrowser::backwardAvailable, m_ui->cmdBack, &QWidget::setEnabled);
    connect(m_ui->txtPage, &QTextBrowser::forwardAvailable, m_ui->cmdForward, &QWidget::setEnabled);
    m_ui->cmdBack->setEnabled(false);
    m_ui->cmdForward->setEnabled(false);

    connect(m_ui->treContents, &HelpContents::PageChosen, this, &HelpWindow::ShowPage);
    connect(m_ui->txtPage, &QTextBrowser::sourceChanged, m_ui->treContents,
            &HelpContents::MarkPage);
    connect(m_ui->txtKeyword, &QLineEdit::textEdited, this, &HelpWindow::ListKeywords);
    connect(m_ui->txtKeyword, &QLineEdit::returnPressed, this,
            [this] { ShowKeyword(m_ui->lstIndex->currentIndex()); });
    connect(m_ui->lstIndex, &QListView::activated, this, &HelpWindow::ShowKeyword);
    connect(m_ui->lstIndex, &QListView::clicked, this, &HelpWindow::ShowKeyword);

    connect(m_ui->txtWords, &QLineEdit::returnPressed, this, &HelpWindow::Find);
    connect(m_ui->cmdFind, &QPushButton::clicked, this, &HelpWindow::Find);
    connect(m_ui->lstFound, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* found) {
        if (found) {
            ShowPage(found->data(Qt::UserRole).toUrl());
        }
    });

    const auto key = [this](const QKeySequence& keys, const auto& action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, m_ui->txtPage, action);
    };
    key(QKeySequence::ZoomIn, [this] { m_ui->txtPage->zoomIn(); });
    key(QKeySequence::ZoomOut, [this] { m_ui->txtPage->zoomOut(); });
    key(QKeySequence::Back, [this] { m_ui->txtPage->backward(); });
    key(QKeySequence::Forward, [this] { m_ui->txtPage->forward(); });
}

void HelpWindow::ShowTexts() {
    ApplyTexts(*this, TermUnit::Years);
    m_ui->tabHelp->setTabText(0, GetResourceText(TextNumber::HelpContents));
    m_ui->tabHelp->setTabText(1, GetResourceText(TextNumber::HelpIndex));
    m_ui->tabHelp->setTabText(2, GetResourceText(TextNumber::HelpSearch));
    m_ui->lblNotFound->setText(GetResourceText(TextNumber::HelpNotFound));
}

void HelpWindow::SetCollection(std::shared_ptr<HelpCollection> collection) {
    if (collection == m_collection) {
        return;
    }
    const QUrl before = PageInView();
    ClearFound();
    m_ui->treContents->SetCollection(collection.get());
    m_keywords.setSourceModel(collection->Keywords());
    m_keywords.sort(0);
    m_ui->txtPage->SetCollection(collection.get());
    if (m_collection) {
        m_collection->SetReader({});
    }
    m_collection = std::move(collection);
    m_collection->SetReader(
        {.contentsListed = [this] { UnfoldContents(); }, .searched = [this] { ListFound(); }});
    UnfoldContents();
    m_collection->PrepareToFind();
    Find(); // repeat the search in the new collection

    ShowTexts();
    QUrl same = m_collection->Page(before.fileName());
    same.setFragment(before.fragment());
    ShowPage(!before.isEmpty() && m_collection->Has(same) ? same : m_collection->FirstPage());
}

/// A third of the window, or up to half if the titles of the contents need it.
void HelpWindow::FitSide() {
    if (m_sideSet) {
        return;
    }
    const QTreeView& contents = *m_ui->treContents;
    const int around = m_ui->tabHelp->width() - contents.viewport()->width();
    const int needed = contents.header()->sectionSize(0) + around;
    const int all = m_ui->splHelp->width();
    const int side = std::clamp(needed, all / 3, all / 2);
    m_ui->splHelp->setSizes({side, all - side});
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_ui->splHelp && event->type() == QEvent::Resize) {
        FitSide();
    }
    if (watched == m_ui->tabHelp->tabBar() && event->type() == QEvent::Shortcut) {
        QMetaObject::invokeMethod(this, &HelpWindow::EnterSide, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

void HelpWindow::UnfoldContents() {
    m_ui->treContents->Unfold();
    FitSide();
}

QUrl HelpWindow::PageInView() const { return m_ui->txtPage->source(); }

void HelpWindow::ShowPage(const QUrl& page) {
    if (!page.isEmpty()) {
        m_ui->txtPage->setSource(page);
    }
}

void HelpWindow::ShowKeyword(const QModelIndex& keyword) {
    ShowPage(m_collection->PageOfKeyword(keyword.data().toString()));
}

/// The index of the file also contains topics, which have no text to show.
void HelpWindow::ListKeywords(const QString& start) {
    const QString any = start.isEmpty() ? QStringLiteral(".") : QRegularExpression::escape(start);
    m_keywords.setFilterRegularExpression(
        QRegularExpression(any, QRegularExpression::CaseInsensitiveOption));
    m_ui->lstIndex->setCurrentIndex(m_keywords.index(0, 0));
}

void HelpWindow::ClearFound() {
    m_ui->lstFound->clear();
    m_ui->lblNotFound->hide();
}

void HelpWindow::Find() {
    const QString query = QueryOf(m_ui->txtWords->text());
    if (!query.isEmpty()) {
        m_collection->Find(query);
    }
}

/// Discards the results if the user has left the search meanwhile.
void HelpWindow::ListFound() {
    ClearFound();
    if (QueryOf(m_ui->txtWords->text()).isEmpty()) {
        return;
    }
    for (const HelpCollection::FoundPage& found : m_collection->Found(MostFound)) {
        auto* item = new QListWidgetItem(found.title, m_ui->lstFound);
        item->setData(Qt::UserRole, found.page);
    }
    m_ui->lblNotFound->setVisible(m_ui->lstFound->count() == 0);
    if (m_ui->lstFound->count() > 0) {
        m_ui->lstFound->setCurrentRow(0);
    }
}

void HelpWindow::Open(Side side, QWidget& beside) {
    m_ui->tabHelp->setCurrentIndex(static_cast<int>(side));
    if (side == Side::Contents) {
        ShowPage(m_collection->FirstPage());
    }
    if (side == Side::Search) {
        m_ui->txtWords->clear();
        ClearFound();
    }
    Raise(beside);
    EnterSide();
}

/// Moves the focus to the visible pane, to its field if it has one.
void HelpWindow::EnterSide() {
    QWidget* side = m_ui->tabHelp->currentWidget();
    if (auto* field = side->findChild<QLineEdit*>()) {
        field->setFocus();
        field->selectAll();
    } else {
        m_ui->treContents->setFocus();
    }
}

void HelpWindow::Open(const QUrl& page, QWidget& beside) {
    ShowPage(page);
    Raise(beside);
    m_ui->txtPage->setFocus();
}

void HelpWindow::Raise(QWidget& beside) {
    Place(beside);
    BelongTo(QApplication::activeModalWidget());
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

/// Qt decides when the window is shown whether a dialog blocks it.
void HelpWindow::BelongTo(const QWidget* dialog) {
    winId(); // creates the native window
    QWindow* owner = dialog ? dialog->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != owner) {
        hide();
        windowHandle()->setTransientParent(owner);
    }
}

/// Only once: afterwards the window stays where the user puts it.
void HelpWindow::Place(const QWidget& beside) {
    if (!std::exchange(m_placed, true)) {
        const QRect place = m_place.On(beside.screen()->geometry());
        // Both windows have the same frame.
        const QWindow* framed = beside.window()->windowHandle();
        const QRect within = framed ? place.marginsRemoved(framed->frameMargins()) : place;
        resize(within.size());
        move(place.topLeft());
    }
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace quend::help
