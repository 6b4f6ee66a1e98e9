#pragma once

class QComboBox;

/// Fill a list with the texts of the current language. A list that is not empty is not changed.
void FillFrequencyList(QComboBox& list);
void FillLoanTypeList(QComboBox& list);
