#pragma once

#include "ComparedWorksheet.h"
#include "PrintedPage.h"
#include "TextMetrics.h"

#include <QSizeF>
#include <QString>
#include <QWidget>

namespace quend::compare {

class FigureTable;

/// A page of the comparison window. It shows figures and computes none of them.
class ComparePage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows the worksheet, which must live until the next call. Keeps what the user selected.
    virtual void Show(const ComparedWorksheet& worksheet) = 0;
    /// Shows everything again in the current language.
    virtual void RenewLanguage() = 0;
    /// What is copied and exported.
    virtual FigureTable& Table() = 0;
    virtual QString Title() const = 0;
    /// On pages of this printable space, in twips.
    virtual printing::PrintedPages Draw(QSizeF space,
                                        const printing::TextMetrics& metrics) const = 0;
};

} // namespace quend::compare
