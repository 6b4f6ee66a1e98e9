#pragma once

#include "WindowNames.h"

#include <QSize>

class QMainWindow;
namespace Ui {
class Loan;
}

namespace quend::model {
class DisplayFormats;
}

namespace quend::window {

class ControlMap;
class OfferColumns;
class OfferRows;

/// The sizes of the main window: fields as wide as their longest value, an area for the visible
/// offers, and a window that shows both. Does not place the window on the screen.
class WindowSize {
public:
    /// All must outlive this object.
    WindowSize(QMainWindow& window, const Ui::Loan& form, const ControlMap& controls,
               OfferColumns& columns, OfferRows& rows, const DisplayFormats& formats);

    /// Measures fields, columns and rows. Does not resize the window.
    void Measure();
    /// After a change of language, font or style: a window that showed everything still does.
    void MeasureAgain();
    /// Fits the window to a changed number of rows.
    void FitHeight();

private:
    void ResizeBy(QSize change);

    QMainWindow* m_window;
    const Ui::Loan* m_form;
    const ControlMap* m_controls;
    OfferColumns* m_columns;
    OfferRows* m_rows;
    const DisplayFormats* m_formats;
};

} // namespace quend::window
