#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include <QWidget>

#include "ComparedWorksheet.h"
#include "Drawing.h"

#include <QString>

#include <memory>

namespace quend::compare {

class FigureTable;

/// A page of the comparison window. It shows figures and computes none of them.
class ComparePage : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows the worksheet, which must live until the next call. Keeps what the user selected.
    virtual void Show(const ComparedWorksheet& worksheet) = 0;
    /// What is copied and exported.
    virtual const FigureTable& Table() const = 0;
    virtual QString Title() const = 0;
    /// The page on paper. The result owns all that it draws.
    virtual std::unique_ptr<printing::Drawing> Draw(const printing::Paper& paper) const = 0;
};

} // namespace quend::compare
