#include "PreviewDialog.h"

#include "EditTextNumbers.h"
#include "PagePainter.h"
#include "PrintingNames.h"
#include "SystemPrinter.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QPrinter>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

namespace quend::printing {

namespace {

/// Qt's actions have no names, but the texts that it looks up for them.
QAction* ActionOf(const QPrintPreviewDialog& dialog, const char* source) {
    const QString text = QCoreApplication::translate("QPrintPreviewDialog", source);
    for (QAction* action : dialog.findChildren<QAction*>()) {
        if (action->text() == text) {
            return action;
        }
    }
    return nullptr;
}

} // namespace

PreviewDialog::PreviewDialog(QPrinter& printer, const Preview& preview, const Words& words,
                             QWidget& parent)
    : QPrintPreviewDialog(&printer, &parent), m_printer(&printer), m_preview(&preview) {
    setObjectName(QStringLiteral("Preview"));
    setWindowTitle(preview.title);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setProperty("helpTopic", preview.helpTopic);
    TakeOverPrint();
    NameForReaders(words);
    TakeSpace(parent);
    connect(this, &QPrintPreviewDialog::paintRequested, this,
            [this](QPrinter* paper) { PaintPages(*paper, m_preview->draw(PageSpaceOf(*paper))); });
}

void PreviewDialog::TakeOverPrint() {
    if (QAction* print = ActionOf(*this, "Print")) {
        print->disconnect(this);
        print->setShortcut(QKeySequence::Print);
        connect(print, &QAction::triggered, this, &PreviewDialog::Print);
    }
}

/// Qt's tool bar has two fields without names, and buttons that the Tab key passes over.
void PreviewDialog::NameForReaders(const Words& words) {
    const auto* bar = findChild<QToolBar*>();
    if (bar == nullptr) {
        return;
    }
    for (auto* button : bar->findChildren<QToolButton*>()) {
        button->setFocusPolicy(Qt::TabFocus);
    }
    for (auto* field : bar->findChildren<QLineEdit*>()) {
        field->setAccessibleName(words(TextNumber::PreviewPage));
    }
    for (auto* zoom : bar->findChildren<QComboBox*>()) {
        zoom->setAccessibleName(words(TextNumber::PreviewZoom));
        zoom->lineEdit()->setAccessibleName(words(TextNumber::PreviewZoom));
    }
}

/// Qt's own size shows little more than the tool bar.
void PreviewDialog::TakeSpace(const QWidget& parent) {
    constexpr QSize enough(900, 1000);
    resize(enough.boundedTo(parent.screen()->availableSize() * 9 / 10));
}

void PreviewDialog::Print() {
    if (m_preview->print(*this)) {
        accept();
    } else {
        ShowOrientation();
    }
}

/// The dialogs of printing may have turned the page although nothing was printed. Shows it again,
/// too.
void PreviewDialog::ShowOrientation() {
    const bool upright = m_printer->pageLayout().orientation() == QPageLayout::Portrait;
    if (QAction* action = ActionOf(*this, upright ? "Portrait" : "Landscape")) {
        action->trigger();
    }
}

} // namespace quend::printing
