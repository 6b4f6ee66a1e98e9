#pragma once

class QString;
class QWidget;

/// The user's file for the place of the window, apart from the settings of the program.
QString UserPlace();

/// Gives a window the size it asks for, as far as the screen has room for it and its title.
void FitToScreen(QWidget& window);

/// Where the window stood and how large it was, as the toolkit's own bytes. A place that was not
/// kept, cannot be read or that no window can have had leaves the window where it is, or puts it
/// on a screen. A place that cannot be kept is not worth a message.
void RestorePlace(QWidget& window, const QString& file);
void KeepPlace(const QWidget& window, const QString& file);
