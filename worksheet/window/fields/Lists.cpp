#include "Lists.h"

#include "Frequency.h"
#include "LoanTypes.h"
#include "WindowNames.h"

#include <QComboBox>

namespace quend::window {

namespace {

void FillEmpty(QComboBox& list, const QStringList& texts) {
    if (list.count() == 0) {
        list.addItems(texts);
        list.setCurrentIndex(-1);
    }
}

} // namespace

void FillFrequencyList(QComboBox& list) { FillEmpty(list, FrequencyTexts()); }

void FillLoanTypeList(QComboBox& list) { FillEmpty(list, LoanTypeTexts()); }

} // namespace quend::window
