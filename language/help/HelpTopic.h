#pragma once

class QObject;
class QPoint;
class QWidget;

/// Which topic of the help explains what: the forms name it by the dynamic property "helpTopic".

/// The topic of a control, menu or entry; without one of its own, that of what it stands in. 0 for
/// none at all.
int TopicOf(const QObject* object);

/// The topic of what is at this place of a widget: in menus and menu bars that of the entry there.
int TopicAt(const QWidget& widget, QPoint at);
