#pragma once

#include "ComparedWorksheet.h"

#include <optional>

namespace quend::window {
class Loan;
}

namespace quend::compare {

/// Reads the worksheet of the main window, and compares it when it differs from what was compared
/// last. Changes nothing.
class ComparisonReader {
public:
    explicit ComparisonReader(Loan& window) : m_window(&window) {}

    /// False where nothing differs that a comparison shows.
    bool Read();
    const ComparedWorksheet& Compared() const { return m_compared; }

private:
    Loan* m_window;
    ComparedWorksheet m_compared;
    bool m_hasRead = false;
};

} // namespace quend::compare
