#pragma once

class QComboBox;

namespace quend::window {

/// Fill a list with the texts of the current language. A list that is not empty is not changed.
void FillFrequencyList(QComboBox& list);
void FillLoanTypeList(QComboBox& list);

} // namespace quend::window
