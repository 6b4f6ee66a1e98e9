#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QRect>

#include <span>
#include <vector>

class QWidget;

namespace quend::model {
class DisplayFormats;
}

namespace quend::window {

class ControlMap;

/// A heading belongs to one column; the first one to the tick box and the points beside it.
struct OfferHeading {
    const char* control;
    FieldId first;
    FieldId last;
};

/// The headings above the columns of OfferFields(), from left to right.
std::span<const OfferHeading> OfferHeadings();

/// The column positions of the offers. Each column is as wide as its values and headings need; the
/// rest of the width is distributed. Headings and rows use the same columns. Does not scroll.
class OfferColumns {
public:
    /// `headings` holds the headings of the columns; `sampleRow` any row of fields.
    OfferColumns(QWidget& headings, const ControlMap& controls);

    /// Measures again; call after a change of font, language or locale.
    void Measure(const DisplayFormats& formats);

    /// The minimum width that shows every column whole.
    int MinimumWidth() const;
    int RowHeight() const { return m_rowHeight; }

    /// Distributes a width; the columns keep their positions until the next call.
    void Share(int width);
    void PlaceHeadings() const;
    void PlaceRow(Row row, int height) const;

private:
    struct Column {
        FieldId field = FieldId::Who;
        int least = 0;
        int left = 0;
        int width = 0;
    };
    QRect SpanOf(FieldId first, FieldId last) const;
    const Column& ColumnOf(FieldId field) const;

    QWidget* m_headings;
    const ControlMap* m_controls;
    std::vector<Column> m_columns;
    int m_rowHeight = 0;
};

} // namespace quend::window
