#include "WindowSize.h"

#include "ControlMap.h"
#include "DisplayFormats.h"
#include "FieldWidth.h"
#include "OfferColumns.h"
#include "OfferRows.h"
#include "ui_Loan.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>

namespace quend::window {

WindowSize::WindowSize(QMainWindow& window, const Ui::Loan& form, const ControlMap& controls,
                       OfferColumns& columns, OfferRows& rows, const DisplayFormats& formats)
    : m_window(&window), m_form(&form), m_controls(&controls), m_columns(&columns), m_rows(&rows),
      m_formats(&formats) {}

void WindowSize::Measure() {
    for (const FieldRule& rule : LoanFields()) {
        if (auto* edit = m_controls->ControlOf<QLineEdit>({rule.id})) {
            edit->setMinimumWidth(LeastFieldWidth(rule.id, edit->fontMetrics(), *m_formats));
        } else if (rule.IsChoice()) {
            // Qt keeps the minimum width of the first font.
            QWidget* list = m_controls->ControlOf({rule.id});
            list->setMinimumWidth(list->sizeHint().width());
        }
    }
    m_columns->Measure(*m_formats);
    const int shown = m_rows->LoansDisplayed().value + 1;
    m_form->picScroll->setMinimumSize(m_columns->MinimumWidth(), shown * m_columns->RowHeight());
    // For both: otherwise the higher one would need space above and below the other.
    m_form->picScroll->setMaximumHeight(shown * m_columns->RowHeight() * 3 / 2);
    m_form->vsbLoans->setMaximumHeight(m_form->picScroll->maximumHeight());
    m_rows->Layout();
    m_form->scrWindow->updateGeometry();
}

void WindowSize::MeasureAgain() {
    const bool showedAll = m_form->scrWindow->ShowsAll();
    Measure();
    if (showedAll) {
        const QSize missing = m_form->scrWindow->Missing();
        ResizeBy(missing.expandedTo(QSize(0, 0)));
    }
}

void WindowSize::FitHeight() { ResizeBy({0, m_form->scrWindow->Missing().height()}); }

/// Does not grow beyond the screen, unless it is larger already. A maximized or full-screen window
/// keeps its size.
void WindowSize::ResizeBy(QSize change) {
    if (!m_window->isMaximized() && !m_window->isFullScreen()) {
        const QSize frame = m_window->frameGeometry().size() - m_window->size();
        const QSize available = m_window->screen()->availableGeometry().size();
        const QSize most = (available - frame).expandedTo(m_window->size());
        m_window->resize((m_window->size() + change).boundedTo(most));
    }
}

} // namespace quend::window
