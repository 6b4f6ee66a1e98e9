#include "ProgramFolder.h"

#include <QFile>

#include <gtest/gtest.h>

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QString BuiltSpanishComponent() {
    return QStringLiteral(QUEND_PROGRAM_DIR "/Loan40a.Resources.so");
}

void ProgramFolder::PutEnglish(const QString& file) const {
    PutBytes(file, BytesOf(QStringLiteral(QUEND_PROGRAM_DIR "/Loan000.Resources.so")));
}

void ProgramFolder::PutSpanish(const QString& file) const {
    PutBytes(file, BytesOf(BuiltSpanishComponent()));
}

void ProgramFolder::PutThird(const QString& file) const {
    PutBytes(file, BytesOf(QStringLiteral(QUEND_THIRD_LANGUAGE_DIR "/Loan407.Resources.so")));
}

void ProgramFolder::PutAll() const {
    PutEnglish();
    PutSpanish();
    PutThird();
}

void ProgramFolder::PutBytes(const QString& file, const QByteArray& bytes) const {
    QFile target(PathOf(file));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly)) << file.toStdString();
    ASSERT_EQ(bytes.size(), target.write(bytes));
}
