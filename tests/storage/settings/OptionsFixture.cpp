#include "OptionsFixture.h"

#include "Language.h"

#include <QFile>
#include <QImage>

OptionsDialog::OptionsDialog() {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
}

void OptionsDialog::Open(const Settings& settings, int language) {
    Language::Instance().LoadLanguage(language);
    m_dialog = std::make_unique<frmOptions>(settings, m_messages, m_pictures, nullptr);
    m_dialog->show();
    Activate();
}

void OptionsDialog::TypeInto(QStringView name, QStringView text) {
    Control(name).setFocus(Qt::TabFocusReason);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Type(text);
}

QStringList OptionsDialog::SettledMessages() {
    Settle();
    return m_boxes.Texts();
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
