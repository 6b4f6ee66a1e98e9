#pragma once

class QByteArray;
class QString;
class QWidget;

namespace quend::storage {

/// A file of the user for what a window keeps, such as its geometry; separate from the settings of
/// the program.
QString UserFile(const QString& name);

/// What a window keeps besides its geometry, at most so many bytes. A failure is not reported;
/// nothing is kept then, or nothing is read.
QByteArray KeptBytes(const QString& file, int most = 10'000);
void KeepBytes(const QByteArray& bytes, const QString& file);

/// Resizes a window to its size hint, limited by the space on the screen for it and its title bar.
void FitToScreen(QWidget& window);

/// Saves and restores the window geometry, in the byte format of Qt. A geometry that is missing,
/// unreadable or impossible leaves the window where it is, or moves it onto a screen. A failure to
/// save is not reported.
void RestoreGeometry(QWidget& window, const QString& file);
void SaveGeometry(const QWidget& window, const QString& file);

} // namespace quend::storage
