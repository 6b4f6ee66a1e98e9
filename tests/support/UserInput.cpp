#include "UserInput.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QTest>
#include <QWindow>

QWidget& UserInput::Control(QStringView name) const {
    if (auto* control = UsersWindow().findChild<QWidget*>(name.toString())) {
        return *control;
    }
    QStringList names;
    for (const QWidget* control : UsersWindow().findChildren<QWidget*>()) {
        if (!control->objectName().isEmpty()) {
            names.append(control->objectName());
        }
    }
    names.sort();
    throw std::runtime_error("no control " + name.toString().toStdString() + "; there are " +
                             names.join(u' ').toStdString());
}

QString UserInput::Text(QStringView name) const {
    const QWidget& control = Control(name);
    const char* property = qobject_cast<const QComboBox*>(&control) ? "currentText" : "text";
    return control.property(property).toString();
}

QString UserInput::FocusName() {
    const QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

void UserInput::Click(const QWidget& control, QPoint at) {
    QTest::mouseClick(control.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      control.mapTo(control.window(), at));
}

void UserInput::DoubleClick(const QWidget& control) {
    QTest::mouseDClick(control.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       control.mapTo(control.window(), control.rect().center()));
}

void UserInput::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(UsersWindow().windowHandle(), key, modifiers);
}

void UserInput::PressText(Qt::Key key, QStringView text, Qt::KeyboardModifiers modifiers) {
    QTest::sendKeyEvent(QTest::Click, UsersWindow().windowHandle(), key, text.toString(),
                        modifiers);
}

void UserInput::Type(QStringView text) {
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, UsersWindow().windowHandle(),
                            static_cast<Qt::Key>(character.toUpper().unicode()), QString(character),
                            Qt::NoModifier);
    }
}

void UserInput::Paste(QStringView text) {
    QGuiApplication::clipboard()->setText(text.toString());
    Press(Qt::Key_V, Qt::ControlModifier);
}

void UserInput::Activate() {
    UsersWindow().activateWindow();
    if (!QTest::qWaitForWindowActive(&UsersWindow())) {
        throw std::runtime_error("the window does not become active");
    }
}

void UserInput::Settle() {
    constexpr int rounds = 6; // an event, its posted message, the consequences, and back
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}
