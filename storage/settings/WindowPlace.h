#pragma once

class QString;
class QWidget;

namespace quend::storage {

/// The user's file for the window geometry, separate from the settings of the program.
QString UserPlace();

/// Resizes a window to its size hint, limited by the space on the screen for it and its title bar.
void FitToScreen(QWidget& window);

/// Saves and restores the window geometry, in the byte format of Qt. A geometry that is missing,
/// unreadable or impossible leaves the window where it is, or moves it onto a screen. A failure to
/// save is not reported.
void RestoreGeometry(QWidget& window, const QString& file);
void SaveGeometry(const QWidget& window, const QString& file);

} // namespace quend::storage
