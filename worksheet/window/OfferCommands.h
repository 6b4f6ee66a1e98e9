#pragma once

#include "OfferOrder.h"

#include <QObject>

class LenderEdit;
class Loan;

/// What can be done to the offers besides typing into them: the headings that sort them, and the
/// dialog of a lender. Both first store the field being edited, and do nothing where it is refused.
class OfferCommands : public QObject {
    Q_OBJECT

public:
    /// The window outlives the commands.
    explicit OfferCommands(Loan& window);

    /// Tells which heading the rows are sorted by.
    void ShowSortOrder(SortOrder order) const;
    /// Opens the dialog when this field, of the lender in this row, asks for it.
    void Watch(const LenderEdit& txtWho, Row row);

    void cmdPayoffDate_Click();
    void cmdInterest_Click();
    void txtWho_DblClick(int index);

private:
    void Run(void (OfferCommands::*sort)());

    Loan* m_window;
};
