#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A temporary program folder for a test, filled with components from the build. Each test uses a
/// new folder, because a loaded library stays loaded under its path.
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

/// Reads a whole file, which must exist.
QByteArray BytesOf(const QString& path);
/// The Spanish component that the build made.
QString BuiltSpanishComponent();
