#pragma once

#include "Date.h"
#include "Field.h"
#include "Mark.h"
#include "ModelNames.h"
#include "OfferOrder.h"

#include <QString>

namespace quend::model {

/// Shows which field, text and mark the worksheet passes. Decides and computes nothing. The window
/// implements it; a test may record the calls instead.
class WorksheetDisplay {
public:
    virtual ~WorksheetDisplay() = default;

    /// The text of a field, already in its display format; for a list, the text to choose.
    virtual void ShowText(Field field, const QString& text) = 0;
    virtual void ShowTicked(Field field, bool ticked) = 0;
    virtual void ShowDate(Field field, Date date) = 0;
    virtual void ShowMark(Field field, Mark mark) = 0;
    /// Whether the field shows its tooltip; it may be hidden for a moment.
    virtual void ShowToolTip(Field field, bool shown) = 0;

    /// The new order of the rows.
    virtual void ShowSortOrder(SortOrder order) = 0;

    /// An intended payment has been raised and marked; remove the mark after a while.
    virtual void PaymentRaised() = 0;
    /// An intended payment was refused: tell the user once for each refusal.
    virtual void PaymentRefused() = 0;
};

} // namespace quend::model
