#include "OfferCommands.h"

#include "FailureReport.h"
#include "LenderEdit.h"
#include "Loan.h"
#include "LoanForm.h"
#include "SortButton.h"
#include "Worksheet.h"
#include "dlgWho.h"

namespace quend::window {

OfferCommands::OfferCommands(Loan& window) : m_window(&window) {
    connect(window.Form().cmdPayoffDate, &SortButton::clicked, this,
            [this] { Run(&OfferCommands::cmdPayoffDate_Click); });
    connect(window.Form().cmdInterest, &SortButton::clicked, this,
            [this] { Run(&OfferCommands::cmdInterest_Click); });
}

void OfferCommands::ShowSortOrder(SortOrder order) const {
    m_window->Form().cmdPayoffDate->SetActive(order == SortOrder::PayoffDate);
    m_window->Form().cmdInterest->SetActive(order == SortOrder::Interest);
}

void OfferCommands::Watch(const LenderEdit& txtWho, Row row) {
    // Queued, so that the field has finished handling the click or key.
    connect(
        &txtWho, &LenderEdit::DblClick, this,
        [this, row] { m_window->Report().Guard([&] { txtWho_DblClick(row.value); }); },
        Qt::QueuedConnection);
}

/// An access key sorts without leaving the edited field, which then shows another offer's value.
void OfferCommands::Run(void (OfferCommands::*sort)()) {
    m_window->Report().Guard([&] {
        if (m_window->Commit()) {
            (this->*sort)();
            m_window->Reenter();
        }
    });
}

/// All rows change at once, not one by one.
void OfferCommands::cmdPayoffDate_Click() {
    QWidget* rows = m_window->Form().picCanvas;
    m_window->GetWorksheet().SortByPayoffDate();
    rows->setUpdatesEnabled(false);
    m_window->GetWorksheet().ShowOffers();
    rows->setUpdatesEnabled(true);
}

void OfferCommands::cmdInterest_Click() {
    m_window->GetWorksheet().SortByInterest();
    m_window->GetWorksheet().ShowOffers();
}

void OfferCommands::txtWho_DblClick(int index) {
    if (!m_window->Commit()) {
        return;
    }
    Worksheet& worksheet = m_window->GetWorksheet();
    dlgWho(worksheet, worksheet.OfferIndexOfRow(Row{index}), *m_window, m_window->Report()).exec();
    worksheet.Show({FieldId::Who, Row{index}});
}

} // namespace quend::window
