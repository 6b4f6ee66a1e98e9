#include "Frequency.h"

#include "Failure.h"
#include "Language.h"

#include <algorithm>

namespace quend::calc {

const Frequency* FindFrequency(QStringView code) {
    const auto* const row =
        std::find_if(Frequencies.begin(), Frequencies.end(), [code](const Frequency& frequency) {
            return code.size() == 1 && code.front() == QChar(frequency.code);
        });
    return row == Frequencies.end() ? nullptr : row;
}

double PeriodsOfTerm(const Frequency& frequency, int termMonths) {
    if (frequency.wholePeriodsPerMonth == 0) {
        return termMonths / 12.0 * frequency.periodsPerYear;
    }
    int periods = 0;
    if (__builtin_mul_overflow(termMonths, frequency.wholePeriodsPerMonth, &periods)) {
        throw OverflowFailure("PeriodsOfTerm");
    }
    return periods;
}

Money EscrowShare(QStringView code, Money monthlyEscrow) {
    const Frequency* const frequency = FindFrequency(code);
    if (frequency != nullptr && !frequency->halvesEscrow) {
        return monthlyEscrow;
    }
    return Money::FromDouble(monthlyEscrow.ToDouble() / 2.0);
}

QString FrequencyCodeToText(const QString& code) {
    const Frequency* const frequency = FindFrequency(code);
    return frequency == nullptr ? QString() : GetResourceText(frequency->textNumber);
}

QString FrequencyTextToCode(const QString& text) {
    if (text.isEmpty()) {
        return {};
    }
    const auto* const row =
        std::find_if(Frequencies.begin(), Frequencies.end(), [&text](const Frequency& frequency) {
            return text == GetResourceText(frequency.textNumber);
        });
    return row == Frequencies.end() ? QString() : row->Code();
}

QStringList FrequencyTexts() {
    QStringList texts;
    for (const Frequency& frequency : Frequencies) {
        texts.append(GetResourceText(frequency.textNumber));
    }
    return texts;
}

} // namespace quend::calc
