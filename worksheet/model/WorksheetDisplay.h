#pragma once

#include "Date.h"
#include "Field.h"
#include "Mark.h"
#include "OfferOrder.h"

#include <QString>

/// Shows what a worksheet tells it to: which field, which text, which mark. Decides nothing and
/// computes nothing. The window is one; a test may record instead.
class WorksheetDisplay {
public:
    virtual ~WorksheetDisplay() = default;

    /// The text of a field, already in its display format; for a list, the text to choose.
    virtual void ShowText(Field field, const QString& text) = 0;
    virtual void ShowTicked(Field field, bool ticked) = 0;
    virtual void ShowDate(Field field, Date date) = 0;
    virtual void ShowMark(Field field, Mark mark) = 0;
    /// Whether the field shows its tooltip or, for a moment, none.
    virtual void ShowToolTip(Field field, bool shown) = 0;

    /// What the rows are ordered by from now on.
    virtual void ShowSortOrder(SortOrder order) = 0;

    /// An intended payment has been raised and marked; the mark is to go after a while.
    virtual void PaymentRaised() = 0;
    /// An intended payment was refused: the user is to be told, once for each refusal.
    virtual void PaymentRefused() = 0;
};
