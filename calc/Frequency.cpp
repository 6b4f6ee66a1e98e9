#include "Frequency.h"

#include "Failure.h"
#include "Language.h"
#include "Overflow.h"

#include <algorithm>

namespace quend::calc {

const Frequency* FindFrequency(const FrequencyCode& code) {
    const auto* const row = std::find_if(
        Frequencies.begin(), Frequencies.end(), [&text = code.Text()](const Frequency& frequency) {
            return text.size() == 1 && text.front() == QChar(frequency.code);
        });
    return row == Frequencies.end() ? nullptr : row;
}

double PeriodsOfTerm(const Frequency& frequency, Months term) {
    if (frequency.wholePeriodsPerMonth == 0) {
        return term.InYears() * frequency.periodsPerYear;
    }
    int periods = 0;
    if (ProductOverflows(term.count, frequency.wholePeriodsPerMonth, periods)) {
        throw OverflowFailure("PeriodsOfTerm");
    }
    return periods;
}

Money EscrowShare(const FrequencyCode& code, Money monthlyEscrow) {
    const Frequency* const frequency = FindFrequency(code);
    if (frequency != nullptr && !frequency->halvesEscrow) {
        return monthlyEscrow;
    }
    return Money::FromDouble(monthlyEscrow.ToDouble() / 2.0);
}

QString FrequencyCodeToText(const FrequencyCode& code) {
    const Frequency* const frequency = FindFrequency(code);
    return frequency == nullptr ? QString() : GetResourceText(frequency->textNumber);
}

FrequencyCode FrequencyTextToCode(const QString& text) {
    if (text.isEmpty()) {
        return {};
    }
    const auto* const row =
        std::find_if(Frequencies.begin(), Frequencies.end(), [&text](const Frequency& frequency) {
            return text == GetResourceText(frequency.textNumber);
        });
    return row == Frequencies.end() ? FrequencyCode() : row->Code();
}

QStringList FrequencyTexts() {
    QStringList texts;
    for (const Frequency& frequency : Frequencies) {
        texts.append(GetResourceText(frequency.textNumber));
    }
    return texts;
}

} // namespace quend::calc
