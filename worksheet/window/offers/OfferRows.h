#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QObject>

#include <functional>
#include <map>

class QScrollBar;
class QWidget;

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class ControlMap;
class FailureReport;
class OfferColumns;

/// The rows of the offers and their scrolling: a canvas as high as all rows moves behind a frame as
/// high as the displayed rows. Does not handle the fields in the rows.
class OfferRows : public QObject {
    Q_OBJECT

public:
    struct Place {
        QWidget* picScroll;
        QWidget* picCanvas;
        QScrollBar* vsbLoans;
    };
    OfferRows(Place place, Worksheet& worksheet, ControlMap& controls, OfferColumns& columns,
              const FailureReport& report);

    /// Creates the rows that show without scrolling; `loansDisplayed` is the index of the last of
    /// them.
    void CreateRows(Row loansDisplayed);

    /// Sets the number of displayed rows and adds missing rows. Call Layout afterwards.
    void SetLoansDisplayed(Row loansDisplayed);

    Row HighestOfferRow() const;
    Row LoansDisplayed() const { return m_loansDisplayed; }
    /// The distance between two rows in pixels.
    int OfferRowHeight() const { return m_rowHeight; }

    /// Appends an empty row; does nothing if the maximum is reached.
    void AddOfferRow();
    /// Appends rows until this one exists or the maximum is reached.
    void GrowTo(Row row);
    /// The highest possible row.
    Row OfferRowCap() const { return m_offerRowCap; }
    /// Scrolls a row into the frame.
    void ShowOfferRow(Row row) const;
    /// Scrolls by rows; down is positive. Stops at the first and the last row.
    void ScrollBy(int rows) const;
    /// Places all rows again, after the columns have been measured.
    void Layout();

Q_SIGNALS:
    void RowCreated(int row, QWidget* controls);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool CreateOfferRow(Row row);
    bool HasRoomFor(Row row) const;
    void PlaceRow(Row row);
    void SetMaximum() const;
    void MoveCanvas() const;
    bool CanScrollByWheel(int eighthsOfDegree) const;
    void ScrollByWheel(int eighthsOfDegree);
    void vsbLoans_Change() const;
    void vsbLoans_Scroll() const;

    Place m_place;
    Worksheet* m_worksheet;
    ControlMap* m_controls;
    OfferColumns* m_columns;
    std::map<Row, QWidget*> m_rows;
    Row m_loansDisplayed{0};
    Row m_offerRowCap{15};
    int m_rowHeight = 1;
    int m_wheel = 0;
};

} // namespace quend::window
