#include "OptionsFixture.h"

#include "Language.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QTest>
#include <QWindow>

#include <stdexcept>

OptionsDialog::OptionsDialog() {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
}

void OptionsDialog::Open(const Settings& settings, int language) {
    Language::Instance().LoadLanguage(language);
    m_dialog = std::make_unique<frmOptions>(settings, m_messages, m_pictures, nullptr);
    m_dialog->show();
    m_dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(m_dialog.get())) {
        throw std::runtime_error("the dialog does not become active");
    }
}

QWidget& OptionsDialog::Control(QStringView name) const {
    if (auto* control = m_dialog->findChild<QWidget*>(name.toString())) {
        return *control;
    }
    throw std::runtime_error("no control " + name.toString().toStdString());
}

QString OptionsDialog::Text(QStringView name) const {
    return Control(name).property("text").toString();
}

QString OptionsDialog::FocusName() {
    const QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

void OptionsDialog::Click(QStringView name) {
    const QWidget& control = Control(name);
    QTest::mouseClick(m_dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      control.mapTo(m_dialog.get(), control.rect().center()));
}

void OptionsDialog::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(m_dialog->windowHandle(), key, modifiers);
}

void OptionsDialog::Type(QStringView text) {
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, m_dialog->windowHandle(),
                            static_cast<Qt::Key>(character.toUpper().unicode()), QString(character),
                            Qt::NoModifier);
    }
}

void OptionsDialog::Paste(QStringView text) {
    QGuiApplication::clipboard()->setText(text.toString());
    Press(Qt::Key_V, Qt::ControlModifier);
}

void OptionsDialog::TypeInto(QStringView name, QStringView text) {
    Control(name).setFocus(Qt::TabFocusReason);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Type(text);
}

QStringList OptionsDialog::SettledMessages() {
    constexpr int rounds = 6;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    return m_door.Texts();
}

QString OptionsDialog::Picture(QStringView file, QSize size) const {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(qRgb(200, 30, 40));
    EXPECT_TRUE(picture.save(PathOf(file))) << file.toString().toStdString();
    return PathOf(file);
}

QString OptionsDialog::File(QStringView file, const QByteArray& bytes) const {
    QFile out(PathOf(file));
    EXPECT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
    return PathOf(file);
}
