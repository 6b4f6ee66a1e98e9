#include "WhatsThisMode.h"

#include "HelpTopic.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

namespace quend::help {

namespace {

/// The child of this widget at the position, or the widget itself; null if the position is outside.
QWidget* PartAt(QWidget* widget, const QPoint& at) {
    if (widget == nullptr || !widget->rect().contains(widget->mapFromGlobal(at))) {
        return nullptr;
    }
    QWidget* child = widget->childAt(widget->mapFromGlobal(at));
    return child != nullptr ? child : widget;
}

QWidget* WidgetOf(const QObject* window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window) {
            return widget;
        }
    }
    return nullptr;
}

/// The widget at a screen position: first in an open menu or list, then in the window that received
/// the click, which may not be the one below the mouse while a menu is open. Null outside both.
QWidget* WidgetAt(const QObject* window, const QPoint& at) {
    if (QWidget* part = PartAt(QApplication::activePopupWidget(), at)) {
        return part;
    }
    QWidget* part = PartAt(WidgetOf(window), at);
    return part != nullptr ? part : QApplication::widgetAt(at);
}

/// Whether a press on the entry opens a menu that is still closed.
bool Opens(const QAction* entry) {
    return entry != nullptr && entry->menu() != nullptr && !entry->menu()->isVisible();
}

bool IsButton(const QObject* object) {
    return qobject_cast<const QAbstractButton*>(object) != nullptr;
}

void ClosePopups() {
    constexpr int most = 10; // menus within menus
    for (int i = 0; i < most && QApplication::activePopupWidget(); ++i) {
        QApplication::activePopupWidget()->close();
    }
}

/// The entry of an open menu that this key would trigger; null if there is none or it opens a menu.
QAction* EntryOfKey(const QMenu& menu, const QKeyEvent& event) {
    QAction* entry = nullptr;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter ||
        event.key() == Qt::Key_Space) {
        entry = menu.activeAction();
    } else {
        const QKeySequence key(QKeyCombination(Qt::ALT, static_cast<Qt::Key>(event.key())));
        for (QAction* action : menu.actions()) {
            entry = QKeySequence::mnemonic(action->text()) == key ? action : entry;
        }
    }
    return entry != nullptr && entry->menu() == nullptr ? entry : nullptr;
}

/// A widget whose window remains when menus close.
QWidget& Lasting(QWidget& widget) {
    QWidget* window = widget.window();
    while (window->windowType() == Qt::Popup && window->parentWidget()) {
        window = window->parentWidget()->window();
    }
    return *window;
}

} // namespace

WhatsThisMode::~WhatsThisMode() { End(); }

void WhatsThisMode::Begin() {
    if (m_on) {
        return;
    }
    m_on = true;
    m_pressed = false;
    QApplication::setOverrideCursor(Qt::WhatsThisCursor);
    qApp->installEventFilter(this);
}

void WhatsThisMode::End() {
    if (m_on) {
        m_on = false;
        qApp->removeEventFilter(this);
        QApplication::restoreOverrideCursor();
    }
}

bool WhatsThisMode::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    // Windows receive these events before the control does and before the focus changes.
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return watched->isWindowType() && OnPress(watched, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return watched->isWindowType() && OnRelease(watched, *static_cast<QMouseEvent*>(event));
    case QEvent::ContextMenu:
        return true;
    case QEvent::KeyPress:
        return OnKey(watched, *static_cast<QKeyEvent*>(event));
    case QEvent::Shortcut:
        return OnShortcut(watched);
    case QEvent::ApplicationDeactivate:
        End();
        return false;
    default:
        return false;
    }
}

bool WhatsThisMode::OnPress(const QObject* receiver, const QMouseEvent& event) {
    const QPoint at = event.globalPosition().toPoint();
    const QWidget* widget = WidgetAt(receiver, at);
    if (!widget) {
        End();
        return false;
    }
    if (Opens(EntryAt(*widget, widget->mapFromGlobal(at)))) {
        return false;
    }
    m_pressed = true;
    return true;
}

bool WhatsThisMode::OnRelease(const QObject* receiver, const QMouseEvent& event) {
    const QPoint at = event.globalPosition().toPoint();
    QWidget* widget = WidgetAt(receiver, at);
    // A menu may be opened and an entry chosen in one gesture, with the button held down.
    const auto* menu = qobject_cast<const QMenu*>(widget);
    const QAction* entry = menu != nullptr ? EntryAt(*menu, menu->mapFromGlobal(at)) : nullptr;
    const bool draggedTo = entry != nullptr && !Opens(entry);
    if (!m_pressed && !draggedTo) {
        return false;
    }
    if (widget) {
        AskAt(*widget, at);
    } else {
        End();
    }
    return true;
}

bool WhatsThisMode::OnKey(QObject* watched, const QKeyEvent& event) {
    const auto* menu = qobject_cast<const QMenu*>(QApplication::activePopupWidget());
    if (event.key() == Qt::Key_Escape) {
        End();
        return menu == nullptr;
    }
    if (menu) {
        QAction* entry = EntryOfKey(*menu, event);
        if (entry) {
            AskAbout(*entry);
        }
        return entry != nullptr;
    }
    const bool presses = event.key() == Qt::Key_Space && IsButton(watched);
    if (presses) {
        AskAbout(*watched);
    }
    return presses;
}

/// The access key of a button, or the shortcut of a menu entry, such as Ctrl+S.
bool WhatsThisMode::OnShortcut(QObject* watched) {
    const auto* entry = qobject_cast<QAction*>(watched);
    const bool acts = IsButton(watched) || (entry != nullptr && entry->menu() == nullptr);
    if (acts) {
        AskAbout(*watched);
    }
    return acts;
}

void WhatsThisMode::AskAt(QWidget& widget, const QPoint& at) {
    Ask(TopicAt(widget, widget.mapFromGlobal(at)), at, widget);
}

void WhatsThisMode::AskAbout(QObject& object) {
    auto* widget = qobject_cast<QWidget*>(&object);
    QWidget* asked = widget ? widget : QApplication::activeWindow();
    if (asked) {
        Ask(TopicOf(&object), asked->mapToGlobal(asked->rect().center()), *asked);
    }
}

void WhatsThisMode::Ask(int topic, const QPoint& at, QWidget& asked) {
    QWidget& window = Lasting(asked);
    End();
    ClosePopups();
    Q_EMIT Asked(topic, at, &window);
}

} // namespace quend::help
