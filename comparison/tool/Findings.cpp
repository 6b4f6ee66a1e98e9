#include "Findings.h"

#include "CommandTextNumbers.h"
#include "Language.h"
#include "LeftOutText.h"
#include "LoanSchedule.h"
#include "Overflow.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace quend::tool {

namespace {

const OfferComparison& OfferAt(const ComparedWorksheet& worksheet, int place) {
    return worksheet.result.offers.at(static_cast<std::size_t>(place) - 1);
}

/// How two amounts differ, in either direction.
class Difference {
public:
    Difference(Money left, Money right)
        : m_isMore(left > right),
          m_isOutOfRange(DifferenceOverflows(std::max(left, right).TenThousandths(),
                                             std::min(left, right).TenThousandths(), m_count)) {}

    /// Too large to be an amount: nothing is said then.
    bool IsOutOfRange() const { return m_isOutOfRange; }
    /// To the cent, as differences are said.
    bool IsNone() const { return Size().RoundedToCents().IsZero(); }
    bool IsMore() const { return m_isMore; }
    Money Size() const { return Money::FromTenThousandths(m_count); }

private:
    std::int64_t m_count = 0;
    bool m_isMore;
    bool m_isOutOfRange;
};

/// The sentences about the offer that costs least by the horizon.
class AboutTheLeast {
public:
    AboutTheLeast(const ComparedWorksheet& worksheet, const DisplayFormats& formats, int place)
        : m_worksheet(&worksheet), m_formats(&formats), m_place(place), m_cost(CostOf(place)) {}

    QStringList Sentences() const {
        QStringList sentences{GetResourceText(TextNumber::CostsLeast)
                                  .arg(NameOfLoan(*m_worksheet, m_place), Amount(m_cost))};
        if (const std::optional<int> next = Next()) {
            sentences.append(AgainstNext(*next));
        }
        const auto& current = m_worksheet->result.current;
        if (current && current->costByHorizon) {
            sentences.append(AgainstCurrent(*current->costByHorizon));
        }
        return sentences;
    }

private:
    Money CostOf(int place) const { return OfferAt(*m_worksheet, place).figures->costByHorizon; }
    QString Amount(Money amount) const { return m_formats->Currency(amount); }

    /// The first of those that cost least besides.
    std::optional<int> Next() const {
        std::optional<int> next;
        for (const int place : m_worksheet->rows) {
            const bool takesPart = OfferAt(*m_worksheet, place).figures.has_value();
            if (place != m_place && takesPart && (!next || CostOf(place) < CostOf(*next))) {
                next = place;
            }
        }
        return next;
    }

    QString AgainstNext(int place) const {
        const QString name = NameOfLoan(*m_worksheet, place);
        const Difference difference(CostOf(place), m_cost);
        if (difference.IsOutOfRange()) {
            return {};
        }
        return difference.IsNone()
                   ? GetResourceText(TextNumber::NextCostsAsMuch).arg(name)
                   : GetResourceText(TextNumber::LessThanNext).arg(Amount(difference.Size()), name);
    }

    QString AgainstCurrent(Money current) const {
        const Difference difference(current, m_cost);
        if (difference.IsOutOfRange()) {
            return {};
        }
        if (difference.IsNone()) {
            return GetResourceText(TextNumber::CurrentCostsAsMuch);
        }
        const int text =
            difference.IsMore() ? TextNumber::LessThanCurrent : TextNumber::CurrentCostsLess;
        return GetResourceText(text).arg(Amount(difference.Size()));
    }

    const ComparedWorksheet* m_worksheet;
    const DisplayFormats* m_formats;
    int m_place;
    Money m_cost;
};

/// How much more or less than the balance of the loan held today is borrowed.
QStringList AboutTheAmount(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    const auto& current = worksheet.result.current;
    if (!current || !current->costByHorizon) {
        return {};
    }
    const Difference difference(worksheet.input.amount, worksheet.input.current.balance);
    if (difference.IsOutOfRange() || difference.IsNone()) {
        return {};
    }
    const int text = difference.IsMore() ? TextNumber::WantsMore : TextNumber::WantsLess;
    return {GetResourceText(text).arg(formats.Currency(difference.Size()))};
}

QStringList AboutTheTimes(const ComparedWorksheet& worksheet) {
    const std::vector<CheapestOffer>& cheapest = worksheet.result.cheapest;
    QStringList sentences;
    for (std::size_t i = 0; i < cheapest.size(); ++i) {
        const QString name = NameOfLoan(worksheet, cheapest[i].offer);
        if (i + 1 < cheapest.size()) {
            sentences.append(GetResourceText(TextNumber::CostsLeastUpTo)
                                 .arg(name, TimeText(cheapest[i + 1].fromMonth - 1)));
        } else {
            const int text = i == 0 ? TextNumber::CostsLeastAlways : TextNumber::CostsLeastLonger;
            sentences.append(GetResourceText(text).arg(name));
        }
    }
    return sentences;
}

/// Blank offers are passed over, and a loan held today that there is not; empty for a loan that
/// takes part.
QStringList AboutTheLeftOut(const ComparedWorksheet& worksheet) {
    QStringList sentences;
    for (const int place : worksheet.rows) {
        if (!IsBlank(worksheet, place)) {
            sentences.append(LeftOutSentence(worksheet, place));
        }
    }
    if (worksheet.result.current) {
        sentences.append(LeftOutSentence(worksheet, CurrentLoanPlace));
    }
    return sentences;
}

} // namespace

QStringList Findings(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    QStringList sentences;
    if (const std::optional<int> least = worksheet.result.cheapestByHorizon) {
        sentences += AboutTheLeast(worksheet, formats, *least).Sentences();
        sentences += AboutTheAmount(worksheet, formats);
        sentences += AboutTheTimes(worksheet);
    } else {
        sentences.append(GetResourceText(TextNumber::NoOfferCompared));
    }
    sentences += AboutTheLeftOut(worksheet);
    sentences.removeAll(QString());
    return sentences;
}

QString LeftOutSentence(const ComparedWorksheet& worksheet, int place) {
    if (place != CurrentLoanPlace) {
        return LeftOutText(OfferAt(worksheet, place).leftOut, NameOfLoan(worksheet, place));
    }
    const auto& current = worksheet.result.current;
    return current && current->costByHorizon ? QString()
                                             : CurrentLeftOutText(worksheet.input.current);
}

QString TimeText(int months) {
    const int years = months / MonthsPerYear;
    const int rest = months % MonthsPerYear;
    const auto text = [](int number) { return GetResourceText(number); };
    if (rest == 0) {
        return years == 1 ? text(TextNumber::OneYear) : text(TextNumber::Years).arg(years);
    }
    if (years == 0) {
        return rest == 1 ? text(TextNumber::OneMonth) : text(TextNumber::ManyMonths).arg(rest);
    }
    if (years == 1) {
        return rest == 1 ? text(TextNumber::OneYearOneMonth)
                         : text(TextNumber::OneYearMonths).arg(rest);
    }
    return rest == 1 ? text(TextNumber::YearsOneMonth).arg(years)
                     : text(TextNumber::YearsMonths).arg(years).arg(rest);
}

} // namespace quend::tool
