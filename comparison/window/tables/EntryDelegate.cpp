#include "EntryDelegate.h"

#include "TableText.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

namespace quend::compare {

namespace {

bool EntersText(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Tab ||
           key.key() == Qt::Key_Backtab;
}

} // namespace

bool EntryDelegate::Allows(const QKeyEvent& event) const {
    const QString text = event.text();
    const bool isCommand = (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
    return !m_allows || isCommand || text.isEmpty() || !text.front().isPrint() ||
           m_allows(text.front());
}

QWidget* EntryDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                     const QModelIndex& index) const {
    m_refused.reset();
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(EditorName());
    edit->setFrame(false);
    edit->setAttribute(Qt::WA_InputMethodEnabled, false);
    edit->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
    edit->setAccessibleName(HeadingIn(*index.model(), index.column()));
    edit->setAccessibleDescription(index.model()->headerData(index.row(), Qt::Vertical).toString());
    return edit;
}

void EntryDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* edit = qobject_cast<QLineEdit*>(editor);
    if (!edit->isModified()) {
        edit->setText(index.data(Qt::EditRole).toString());
    }
}

void EntryDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
    const auto* edit = qobject_cast<const QLineEdit*>(editor);
    const QString text = edit->text();
    if (!edit->isModified() || text == m_refused) {
        return;
    }
    m_refused.reset();
    if (!model->setData(index, text, Qt::EditRole)) {
        m_refused = text;
    }
}

bool EntryDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                              const QStyleOptionViewItem& option, const QModelIndex& index) {
    const bool isCut =
        event->type() == QEvent::ToolTip && sizeHint(option, index).width() > option.rect.width();
    if (!isCut) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    QString tip;
    for (const int role : {Qt::DisplayRole, Qt::ToolTipRole}) {
        // Escaped: a lender may be called "<b>".
        if (const QString text = index.data(role).toString(); !text.isEmpty()) {
            tip += QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
        }
    }
    QToolTip::showText(event->globalPos(), tip, view);
    return true;
}

bool EntryDelegate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (!Allows(key)) {
            return true;
        }
        if (EntersText(key)) {
            m_refused.reset();
        }
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

} // namespace quend::compare
