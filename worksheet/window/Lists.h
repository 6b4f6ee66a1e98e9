#pragma once

class QComboBox;

/// Fill a list with the texts of the language in use. A list that holds entries is left alone.
void FillFrequencyList(QComboBox& list);
void FillLoanTypeList(QComboBox& list);
