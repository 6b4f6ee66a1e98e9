#pragma once

#include <QPoint>
#include <QString>
#include <QStringView>
#include <QWidget>

#include <stdexcept>

/// What a user does in a window, and sees there. Keys and clicks go through the window system;
/// controls are found by name.
class UserHands {
public:
    UserHands(const UserHands&) = delete;
    UserHands& operator=(const UserHands&) = delete;
    UserHands(UserHands&&) = delete;
    UserHands& operator=(UserHands&&) = delete;

protected:
    UserHands() = default;
    virtual ~UserHands() = default;
    /// The window that is on the screen.
    virtual QWidget& UsersWindow() const = 0;

    /// The control of this name. Throws, naming those there are, when there is none.
    QWidget& Control(QStringView name) const;
    template <class Kind>
    Kind& Get(QStringView name) const {
        if (auto* control = qobject_cast<Kind*>(&Control(name))) {
            return *control;
        }
        throw std::runtime_error("of another kind: " + name.toString().toStdString());
    }
    /// What a field, list, label or button shows.
    QString Text(QStringView name) const;
    /// The name of the control that has the keyboard.
    static QString FocusName();

    /// A click into the middle of a control, or at a place of it.
    void Click(QStringView name) { Click(Control(name)); }
    static void Click(const QWidget& control) { Click(control, control.rect().center()); }
    static void Click(const QWidget& control, QPoint at);
    /// Two quick clicks into the middle of a control.
    static void DoubleClick(const QWidget& control);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// A key that types this text, by itself or with others held.
    void PressText(Qt::Key key, QStringView text, Qt::KeyboardModifiers modifiers);
    void Tab() { Press(Qt::Key_Tab); }
    void BackTab() { Press(Qt::Key_Backtab, Qt::ShiftModifier); }
    /// Key by key, as far as keys give these characters.
    void Type(QStringView text);
    /// Over what is selected.
    void Paste(QStringView text);

    /// Throws when the window does not become active before long.
    void Activate();
    /// Lets everything happen that is on its way.
    static void Settle();
};
