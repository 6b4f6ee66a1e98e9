#pragma once

#include "ComparePage.h"
#include "CompareWorld.h"

#include <QLocale>

namespace quend::compare {

/// Asks for a file and writes the page to it: as a table for spreadsheets, separated as the locale
/// does it or otherwise, or as a PDF. Returns why it was not written, in the current language;
/// empty if it was, or the user cancelled.
QString ExportPage(const ComparePage& page, QWidget& parent, const CompareWorld& world,
                   const QLocale& locale);

} // namespace quend::compare
