#pragma once

class QSettings;
class QString;
class QWidget;

/// Removes a file that holds anything but a place as KeepPlace writes it; to be called before the
/// toolkit opens it. From any other file the toolkit would build values of the kinds and sizes that
/// it names, of a hundred gigabytes if it says so.
void DropForeignPlace(const QString& file);

/// Where the window stood and how large it was, kept by the toolkit's own means, apart from the
/// settings of the program.
void RestorePlace(QWidget& window, const QSettings& kept);
void KeepPlace(const QWidget& window, QSettings& kept);
