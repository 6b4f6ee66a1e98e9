#pragma once

#include "Drawing.h"

#include <QRectF>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

class QPainter;

namespace quend::printing {

/// A table with a title and paragraphs above it, as plain values.
struct TableOnPaper {
    struct Cell {
        std::size_t row = 0;
        std::size_t column = 0;

        friend auto operator<=>(const Cell&, const Cell&) = default;
    };

    QString title = {};          ///< repeated at the head of each page
    QStringList paragraphs = {}; ///< wrapped to the page
    QStringList headings = {};   ///< one a column, repeated on each page
    std::vector<bool> rightAligned = {};
    std::vector<QStringList> rows = {}; ///< missing cells are blank, surplus ones are left out
    std::vector<Cell> bold = {};        ///< cells in bold type, in any order
};

/// Paints a picture into a rectangle whose unit is 1/96 inch, like a screen of ordinary resolution.
/// The painter has the paper's font, in pixels, and a black pen. Other fonts must be sized in
/// pixels, too.
using PaintInto = std::function<void(QPainter& painter, const QRectF& place)>;

/// A picture with a title and paragraphs above it and, if there are headings, a table below it,
/// which is under its own title.
struct PictureOnPaper {
    QString title = {};
    QStringList paragraphs = {};
    PaintInto paint = {}; ///< called once, in the first section
    TableOnPaper table = {};
};

/// Draws the table in the paper's type. A column is as wide as its content; one of long texts is
/// limited to a part of the page, and the texts are wrapped to a few lines and then end in "…".
/// If the columns are wider than the page, the type shrinks, but not below 6 points (or its own
/// size, if that is less). If they are still wider, the first column and the first ones of the
/// others come on the first pages, the first column and further ones on the next, and so on.
///
/// Pages after the first show the title and a page number, and the headings above further rows. A
/// section is a part of the rows. A page too small for the headings and a row does not fit.
std::unique_ptr<Drawing> DrawingOf(TableOnPaper table, const Paper& paper);

/// Draws the picture as wide as the page.
std::unique_ptr<Drawing> DrawingOf(PictureOnPaper picture, const Paper& paper);

} // namespace quend::printing
