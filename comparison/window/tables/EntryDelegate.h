#pragma once

#include "CompareNames.h"

#include <QString>
#include <QStyledItemDelegate>

#include <functional>
#include <optional>

class QKeyEvent;

namespace quend::compare {

/// Edits amounts in a table, and shows a text that is cut off in the tooltip. Does not judge an
/// entry: the model's setData does.
class EntryDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The object name of the editors.
    static QString EditorName() { return QStringLiteral("txtEntry"); }

    /// Characters that may be typed; at first all.
    void AllowKeys(std::function<bool(QChar)> allows) { m_allows = std::move(allows); }
    /// False for a key that types a character that is not allowed.
    bool Allows(const QKeyEvent& event) const;

    /// Whether the model has refused the text in the editor.
    bool WasRefused() const { return m_refused.has_value(); }
    void ForgetRefusal() { m_refused.reset(); }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// Leaves an entry alone that has begun.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Stores an entry that was changed. A refused one is not tried again until it changes or is
    /// entered by key, so that a message about it is not repeated when the message takes the focus.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<bool(QChar)> m_allows;
    mutable std::optional<QString> m_refused; ///< Qt's interface of editors is const
};

} // namespace quend::compare
