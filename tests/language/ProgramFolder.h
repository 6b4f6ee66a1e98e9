#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A program's folder of the test's own, filled with components that the build made.
/// Each test takes a new one, because a library once loaded stays loaded under its path.
class ProgramFolder {
public:
    QString Path() const { return m_folder.path(); }
    QString PathOf(const QString& file) const { return m_folder.filePath(file); }

    void PutEnglish(const QString& file = QStringLiteral("Loan000.Resources.so")) const;
    void PutSpanish(const QString& file = QStringLiteral("Loan40a.Resources.so")) const;
    void PutThird(const QString& file = QStringLiteral("Loan407.Resources.so")) const;
    void PutAll() const;
    void PutBytes(const QString& file, const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};

/// A whole file, which must exist.
QByteArray BytesOf(const QString& path);
/// Where the build put the Spanish component.
QString BuiltSpanishComponent();
