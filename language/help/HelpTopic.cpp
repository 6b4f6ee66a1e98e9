#include "HelpTopic.h"

#include "Captions.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPoint>
#include <QTableView>
#include <QVariant>
#include <QWidget>

namespace quend::help {

namespace {

int OwnTopicOf(const QObject& object) { return object.property("helpTopic").toInt(); }

int TopicOfColumn(const QAbstractItemModel& model, int column) {
    return column < 0 ? 0
                      : model.headerData(column, Qt::Horizontal, language::HelpTopicRole).toInt();
}

/// The topic of the current cell's column, if the object is a table.
int TopicOfCurrent(const QObject& object) {
    const auto* table = qobject_cast<const QTableView*>(&object);
    return table != nullptr && table->model() != nullptr
               ? TopicOfColumn(*table->model(), table->currentIndex().column())
               : 0;
}

/// The topic of the column at a position of the viewport of a table or of its header.
int TopicOfColumnAt(const QWidget& widget, QPoint at) {
    const QObject* const view = widget.parent();
    if (const auto* header = qobject_cast<const QHeaderView*>(view)) {
        return header->model() != nullptr
                   ? TopicOfColumn(*header->model(), header->logicalIndexAt(at))
                   : 0;
    }
    const auto* table = qobject_cast<const QTableView*>(view);
    return table != nullptr && table->model() != nullptr
               ? TopicOfColumn(*table->model(), table->columnAt(at.x()))
               : 0;
}

} // namespace

int TopicOf(const QObject* object) {
    for (; object; object = object->parent()) {
        if (const int topic = TopicOfCurrent(*object)) {
            return topic;
        }
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
    const int topic = entry ? OwnTopicOf(*entry) : TopicOfColumnAt(widget, at);
    return topic != 0 ? topic : TopicOf(&widget);
}

} // namespace quend::help
