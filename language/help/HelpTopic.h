#pragma once

class QAction;
class QObject;
class QPoint;
class QWidget;

namespace quend::help {

/// The help topics of controls. Forms set them by the dynamic property "helpTopic".

/// The topic of a control, menu or entry; if it has none, that of its nearest parent with one. 0 if
/// there is none.
int TopicOf(const QObject* object);

/// The entry at a position of a menu or menu bar; null if there is none.
QAction* EntryAt(const QWidget& widget, QPoint at);

/// The topic at this position of a widget; in menus and menu bars, that of the entry there.
int TopicAt(const QWidget& widget, QPoint at);

} // namespace quend::help
