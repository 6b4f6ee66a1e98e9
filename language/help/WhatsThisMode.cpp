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

namespace {

/// What is there of this widget, itself where it is bare; null when it is elsewhere.
QWidget* PartAt(QWidget* widget, const QPoint& at) {
    if (!widget || !widget->rect().contains(widget->mapFromGlobal(at))) {
        return nullptr;
    }
    QWidget* child = widget->childAt(widget->mapFromGlobal(at));
    return child ? child : widget;
}

QWidget* WidgetOf(const QObject* window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window) {
            return widget;
        }
    }
    return nullptr;
}

/// What is there on the screen. A menu or list that is open comes first, then the window that was
/// told of the click, which may stand in for another one while a menu is open. Null beside them.
QWidget* WidgetAt(const QObject* window, const QPoint& at) {
    if (QWidget* part = PartAt(QApplication::activePopupWidget(), at)) {
        return part;
    }
    QWidget* part = PartAt(WidgetOf(window), at);
    return part ? part : QApplication::widgetAt(at);
}

/// The name of a menu that is still closed: a press there opens it.
bool OpensMenu(const QWidget& widget, const QPoint& at) {
    const auto* bar = qobject_cast<const QMenuBar*>(&widget);
    const QAction* entry = bar ? bar->actionAt(bar->mapFromGlobal(at)) : nullptr;
    return entry && entry->menu() && !entry->menu()->isVisible();
}

/// An entry of a menu that opens another one.
bool OpensSubmenu(const QWidget& widget, const QPoint& at) {
    const auto* menu = qobject_cast<const QMenu*>(&widget);
    const QAction* entry = menu ? menu->actionAt(menu->mapFromGlobal(at)) : nullptr;
    return entry && entry->menu() && !entry->menu()->isVisible();
}

void ClosePopups() {
    constexpr int most = 10; // menus within menus
    for (int i = 0; i < most && QApplication::activePopupWidget(); ++i) {
        QApplication::activePopupWidget()->close();
    }
}

/// The entry of an open menu that this key would set off; null for none, and for one that opens a
/// menu.
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
    return entry && !entry->menu() ? entry : nullptr;
}

/// A widget whose window stays when menus close.
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
    // Windows get these before they choose the control, and before the focus follows.
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

bool WhatsThisMode::OnPress(const QObject* told, const QMouseEvent& event) {
    const QPoint at = event.globalPosition().toPoint();
    const QWidget* widget = WidgetAt(told, at);
    if (!widget) {
        End();
        return false;
    }
    if (OpensMenu(*widget, at) || OpensSubmenu(*widget, at)) {
        return false;
    }
    m_pressed = true;
    return true;
}

bool WhatsThisMode::OnRelease(const QObject* told, const QMouseEvent& event) {
    const QPoint at = event.globalPosition().toPoint();
    QWidget* widget = WidgetAt(told, at);
    // A menu may be opened and an entry chosen in one move, with the button held down.
    const auto* menu = qobject_cast<const QMenu*>(widget);
    const bool draggedTo =
        menu && menu->actionAt(menu->mapFromGlobal(at)) && !OpensSubmenu(*menu, at);
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
        return !menu;
    }
    if (menu) {
        QAction* entry = EntryOfKey(*menu, event);
        if (entry) {
            AskAbout(*entry);
        }
        return entry != nullptr;
    }
    const bool presses = event.key() == Qt::Key_Space && qobject_cast<QAbstractButton*>(watched);
    if (presses) {
        AskAbout(*watched);
    }
    return presses;
}

/// The access key of a button, or the keys of a menu entry, such as Ctrl+S.
bool WhatsThisMode::OnShortcut(QObject* watched) {
    const auto* entry = qobject_cast<QAction*>(watched);
    const bool acts = qobject_cast<QAbstractButton*>(watched) || (entry && !entry->menu());
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
