#pragma once

#include "OfferOrder.h"
#include "WindowNames.h"

#include <QObject>

namespace quend::window {

class LenderEdit;
class Loan;

/// The commands on offers: sorting by a heading and opening the lender dialog. Both first store the
/// field being edited, and do nothing if it is refused.
class OfferCommands : public QObject {
    Q_OBJECT

public:
    /// The window outlives this object.
    explicit OfferCommands(Loan& window);

    /// Shows by which heading the rows are sorted.
    void ShowSortOrder(SortOrder order) const;
    /// Opens the lender dialog of this row when the field asks for it.
    void Watch(const LenderEdit& txtWho, Row row);

    void cmdPayoffDate_Click();
    void cmdInterest_Click();
    void txtWho_DblClick(int index);

private:
    void Run(void (OfferCommands::*sort)());

    Loan* m_window;
};

} // namespace quend::window
