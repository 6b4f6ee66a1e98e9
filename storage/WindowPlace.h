#pragma once

class QSettings;
class QWidget;

/// Where the window stood and how large it was, kept by the toolkit's own means, apart from the
/// settings of the program.
void RestorePlace(QWidget& window, const QSettings& kept);
void KeepPlace(const QWidget& window, QSettings& kept);
