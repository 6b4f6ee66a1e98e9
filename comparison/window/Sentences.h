#pragma once

#include "CompareNames.h"
#include "FigureTexts.h"
#include "Language.h"

#include <QString>

#include <cstdint>

namespace quend::compare {

/// Fills the places of texts with values, all at once: a lender's name may contain "%1".
class Sentences {
public:
    explicit Sentences(const DisplayFormats& formats) : m_formats(&formats) {}

    const DisplayFormats& Formats() const { return *m_formats; }

    template <typename... Values>
    QString operator()(int number, const Values&... values) const {
        const QString text = GetResourceText(number);
        const QString sentence = text.arg(TextOf(FigureValue(values), *m_formats)...);
        // A lender's name that is written from right to left must not turn the sentence round.
        const bool isTurned = sentence.isRightToLeft() && !text.isRightToLeft();
        return isTurned ? LeftToRightMark + sentence : sentence;
    }

    /// Without decimals where the amount has none.
    QString ShortAmount(Money amount) const {
        constexpr std::int64_t PerUnit = 10'000;
        return amount.RoundedToCents().TenThousandths() % PerUnit == 0
                   ? m_formats->WholeCurrency(amount)
                   : m_formats->Currency(amount);
    }

private:
    static constexpr QChar LeftToRightMark{0x200E};

    const DisplayFormats* m_formats;
};

} // namespace quend::compare
