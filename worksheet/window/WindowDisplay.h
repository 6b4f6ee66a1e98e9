#pragma once

#include "WindowNames.h"
#include "WorksheetDisplay.h"

#include <functional>

namespace quend::window {

class ControlMap;

/// Shows the worksheet in the controls of the window.
class WindowDisplay : public WorksheetDisplay {
public:
    struct Notices {
        std::function<void()> raised;          ///< an intended payment has been raised
        std::function<void()> refused;         ///< an intended payment was refused
        std::function<void(SortOrder)> sorted; ///< the new order of the rows
        std::function<void()> offerShown;      ///< an offer was recalculated, even if that failed
        std::function<void()> changed; ///< a value or the order of the rows may have changed
    };
    WindowDisplay(const ControlMap& controls, Notices notices);

    void ShowText(Field field, const QString& text) override;
    void ShowTicked(Field field, bool ticked) override;
    void ShowDate(Field field, Date date) override;
    void ShowMark(Field field, Mark mark) override;
    void ShowToolTip(Field field, bool shown) override;
    void ShowSortOrder(SortOrder order) override;
    void PaymentRaised() override { m_notices.raised(); }
    void PaymentRefused() override { m_notices.refused(); }

private:
    const ControlMap* m_controls;
    Notices m_notices;
};

} // namespace quend::window
