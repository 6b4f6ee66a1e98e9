#pragma once

#include "CompareNames.h"
#include "TablePages.h"

#include <QString>
#include <QStringList>

namespace quend::compare {

class FigureTable;

/// The shown columns of a table, as they are shown, for paper.
printing::TableOnPaper PaperTableOf(const FigureTable& table, const QString& title,
                                    const QStringList& paragraphs);

} // namespace quend::compare
