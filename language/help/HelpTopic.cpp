#include "HelpTopic.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPoint>
#include <QVariant>
#include <QWidget>

namespace quend::help {

namespace {

int OwnTopicOf(const QObject& object) { return object.property("helpTopic").toInt(); }

} // namespace

int TopicOf(const QObject* object) {
    for (; object; object = object->parent()) {
        if (const int topic = OwnTopicOf(*object)) {
            return topic;
        }
        // An entry that opens a menu has the menu's topic.
        const auto* entry = qobject_cast<const QAction*>(object);
        if (entry && entry->menu()) {
            return TopicOf(entry->menu());
        }
    }
    return 0;
}

QAction* EntryAt(const QWidget& widget, QPoint at) {
    if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
        return menu->actionAt(at);
    }
    const auto* bar = qobject_cast<const QMenuBar*>(&widget);
    return bar ? bar->actionAt(at) : nullptr;
}

int TopicAt(const QWidget& widget, QPoint at) {
    const QAction* entry = EntryAt(widget, at);
    if (entry && entry->menu()) {
        return TopicOf(entry->menu());
    }
    const int topic = entry ? OwnTopicOf(*entry) : 0;
    return topic != 0 ? topic : TopicOf(&widget);
}

} // namespace quend::help
