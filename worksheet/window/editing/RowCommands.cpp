#include "RowCommands.h"

#include "ControlMap.h"
#include "FailureReport.h"
#include "FocusTranslator.h"
#include "Loan.h"
#include "LoanForm.h"
#include "OfferRows.h"
#include "Worksheet.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace quend::window {

/// One command, in the menu and in the context menus.
struct RowCommands::Entry {
    QAction* Ui::Loan::*action;
    void (RowCommands::*run)(Row);
    bool (RowCommands::*can)(Row) const;
};

const std::array<RowCommands::Entry, 4>& RowCommands::Entries() {
    static constexpr std::array<Entry, 4> entries{{
        {&Ui::Loan::mnuEditClearOffer, &RowCommands::mnuEditClearOffer_Click,
         &RowCommands::CanClear},
        {&Ui::Loan::mnuEditDuplicateOffer, &RowCommands::mnuEditDuplicateOffer_Click,
         &RowCommands::CanDuplicate},
        {&Ui::Loan::mnuEditMoveUp, &RowCommands::mnuEditMoveUp_Click, &RowCommands::CanMoveUp},
        {&Ui::Loan::mnuEditMoveDown, &RowCommands::mnuEditMoveDown_Click,
         &RowCommands::CanMoveDown},
    }};
    return entries;
}

RowCommands::RowCommands(Loan& window, const ControlMap& controls, const FocusTranslator& focus)
    : m_window(&window), m_controls(&controls), m_focus(&focus) {
    for (const Entry& entry : Entries()) {
        QAction* action = window.Form().*entry.action;
        action->setEnabled(true);
        connect(action, &QAction::triggered, this, [this, &entry] { Run(entry, RowWithFocus()); });
    }
    // While the menu is closed the keys must work, whatever row was the last with the focus.
    connect(window.Form().mnuEdit, &QMenu::aboutToShow, this, &RowCommands::ShowEntries);
    connect(window.Form().mnuEdit, &QMenu::aboutToHide, this, [this] {
        for (const Entry& entry : Entries()) {
            (m_window->Form().*entry.action)->setEnabled(true);
        }
    });
}

void RowCommands::Watch(Row row, QWidget& controls) {
    controls.setProperty("row", row.value);
    controls.installEventFilter(this);
}

void RowCommands::AddTo(QMenu& menu, Row row) {
    menu.addSeparator();
    for (const Entry& entry : Entries()) {
        QAction* action = menu.addAction((m_window->Form().*entry.action)->text(), this,
                                         [this, &entry, row] { Run(entry, row); });
        action->setEnabled((this->*entry.can)(row));
    }
}

bool RowCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ContextMenu) {
        return false;
    }
    auto* menu = new QMenu(qobject_cast<QWidget*>(watched)); // deletes itself
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddTo(*menu, Row{watched->property("row").toInt()});
    menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
}

/// A menu that was opened by keys has the focus itself.
std::optional<Row> RowCommands::RowWithFocus() const {
    const auto focused = m_controls->FieldOf(m_window->focusWidget());
    const auto field = focused ? focused : m_focus->Edited();
    return field && field->row != Field::NoRow ? std::optional(field->row) : std::nullopt;
}

void RowCommands::ShowEntries() {
    const auto row = RowWithFocus();
    for (const Entry& entry : Entries()) {
        (m_window->Form().*entry.action)->setEnabled(row && (this->*entry.can)(*row));
    }
}

void RowCommands::Run(const Entry& entry, std::optional<Row> row) {
    m_window->Report().Guard([&] {
        if (row && m_window->Commit() && (this->*entry.can)(*row)) {
            (this->*entry.run)(*row);
            m_window->Reenter();
        }
    });
}

bool RowCommands::CanClear(Row row) const {
    Worksheet& sheet = m_window->GetWorksheet();
    return !sheet.IsBlank(sheet.OfferIndexOfRow(row));
}

bool RowCommands::CanDuplicate(Row row) const {
    const OfferRows& rows = m_window->Rows();
    return CanClear(row) && (m_window->GetWorksheet().FirstBlankOffer() ||
                             rows.HighestOfferRow() < rows.OfferRowCap());
}

bool RowCommands::CanMoveUp(Row row) const { return CanMove(row, -1); }
bool RowCommands::CanMoveDown(Row row) const { return CanMove(row, 1); }

bool RowCommands::CanMove(Row row, int by) const {
    Worksheet& sheet = m_window->GetWorksheet();
    const OfferIndex offer = sheet.OfferIndexOfRow(row);
    const OfferIndex other{offer.value + static_cast<std::size_t>(by)}; // wraps below the first
    return other.value < sheet.OfferCount() && !(sheet.IsBlank(offer) && sheet.IsBlank(other));
}

void RowCommands::mnuEditClearOffer_Click(Row row) {
    Worksheet& sheet = m_window->GetWorksheet();
    sheet.ClearOffer(sheet.OfferIndexOfRow(row));
}

void RowCommands::mnuEditDuplicateOffer_Click(Row row) {
    Worksheet& sheet = m_window->GetWorksheet();
    if (!sheet.FirstBlankOffer()) {
        m_window->Rows().AddOfferRow();
    }
    const OfferIndex blank = sheet.FirstBlankOffer().value();
    sheet.CopyOffer(sheet.OfferIndexOfRow(row), blank);
    Enter({FieldId::InterestRate, sheet.RowOfOffer(blank)});
}

void RowCommands::mnuEditMoveUp_Click(Row row) { Move(row, -1); }
void RowCommands::mnuEditMoveDown_Click(Row row) { Move(row, 1); }

/// The focus goes with the offer.
void RowCommands::Move(Row row, int by) {
    Worksheet& sheet = m_window->GetWorksheet();
    const OfferIndex offer = sheet.OfferIndexOfRow(row);
    const OfferIndex other{offer.value + static_cast<std::size_t>(by)};
    sheet.ExchangeOffers(offer, other);
    const auto field = m_controls->FieldOf(m_window->focusWidget());
    if (field && field->row == row) {
        Enter({field->id, sheet.RowOfOffer(other)});
    }
}

void RowCommands::Enter(Field field) {
    m_window->Reenter(); // leaving a field compares its text with the value that it now has
    m_controls->ControlOf(field)->setFocus(Qt::OtherFocusReason);
    m_window->Rows().ShowOfferRow(field.row);
}

} // namespace quend::window
