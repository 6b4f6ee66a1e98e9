#pragma once

#include <QPoint>
#include <QString>
#include <QStringView>
#include <QWidget>

#include <stdexcept>

/// The actions of a user in a window, and what it shows. Keys and clicks go through the window
/// system; controls are found by name.
class UserInput {
public:
    Q_DISABLE_COPY_MOVE(UserInput)

protected:
    UserInput() = default;
    virtual ~UserInput() = default;
    /// The window on the screen.
    virtual QWidget& UsersWindow() const = 0;

    /// The control of this name. If there is none, throws with the existing names.
    QWidget& Control(QStringView name) const;
    template <class Kind>
    Kind& Get(QStringView name) const {
        if (auto* control = qobject_cast<Kind*>(&Control(name))) {
            return *control;
        }
        throw std::runtime_error("of another kind: " + name.toString().toStdString());
    }
    /// The text of a field, list, label or button.
    QString Text(QStringView name) const;
    /// The name of the control with the focus.
    static QString FocusName();

    /// Clicks the middle of a control, or a place in it.
    void Click(QStringView name) { Click(Control(name)); }
    static void Click(const QWidget& control) { Click(control, control.rect().center()); }
    static void Click(const QWidget& control, QPoint at);
    /// Double-clicks the middle of a control.
    static void DoubleClick(const QWidget& control);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Presses a key that types this text, with or without modifiers.
    void PressText(Qt::Key key, QStringView text, Qt::KeyboardModifiers modifiers);
    void Tab() { Press(Qt::Key_Tab); }
    void BackTab() { Press(Qt::Key_Backtab, Qt::ShiftModifier); }
    /// Types key by key; only characters that keys can produce.
    void Type(QStringView text);
    /// Replaces the selection.
    void Paste(QStringView text);

    /// Throws when the window does not become active within a short time.
    void Activate();
    /// Processes all pending events.
    static void Settle();
};
