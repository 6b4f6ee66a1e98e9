#include "Answer.h"

#include "CompareTextNumbers.h"
#include "Failure.h"
#include "FigureTexts.h"
#include "Frequency.h"
#include "Language.h"
#include "LoanSchedule.h"
#include "Sentences.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace quend::compare {

namespace {

using namespace TextNumber;

/// From here on, differences are clear without cents.
constexpr Money LeastInWholeUnits = Money::FromTenThousandths(1'000'000);

bool Contains(const CheaperStretch& stretch, int month) {
    return stretch.fromMonth <= month && (!stretch.untilMonth || month < *stretch.untilMonth);
}

/// An offer and what it has cost by the horizon, as shown.
struct Cost {
    int place = 0;
    Money amount;
};

Cost CostOf(const ComparedWorksheet& worksheet, int place) {
    return {place, FiguresOf(worksheet, place)->costByHorizon.RoundedToCents()};
}

/// The cheapest of the offers beside the one that costs least.
std::optional<Cost> NextTo(const ComparedWorksheet& worksheet, int cheapest) {
    std::optional<Cost> next;
    for (int place = 1; place <= static_cast<int>(worksheet.input.offers.size()); ++place) {
        if (place == cheapest || FiguresOf(worksheet, place) == nullptr) {
            continue;
        }
        const Cost cost = CostOf(worksheet, place);
        if (!next || cost.amount < next->amount) {
            next = cost;
        }
    }
    return next;
}

/// What keeping the loan held today has cost by the horizon; none where it takes no part.
std::optional<Money> CostOfCurrent(const ComparedWorksheet& worksheet) {
    const auto& current = worksheet.result.current;
    if (!current || !current->costByHorizon) {
        return std::nullopt;
    }
    return current->costByHorizon->RoundedToCents();
}

/// Writes the answer where an offer takes part.
class Answer {
public:
    Answer(const ComparedWorksheet& worksheet, const DisplayFormats& formats)
        : m_worksheet(&worksheet), m_say(formats),
          m_kept(Duration(worksheet.input.years * MonthsPerYear, formats)),
          m_least(CostOf(worksheet, *worksheet.result.cheapestByHorizon)),
          m_next(NextTo(worksheet, m_least.place)), m_current(CostOfCurrent(worksheet)),
          m_wholeUnits(FindWholeUnits()) {}

    QStringList Written() {
        if (m_current && *m_current < m_least.amount) {
            AddCurrentCheapest();
        } else {
            AddOfferCheapest();
        }
        AddPaysMore();
        AddOtherStretches();
        if (m_current) {
            AddSinceWhen();
            AddBorrowed();
            AddNextPayment();
        }
        return m_sentences;
    }

private:
    template <typename... Values>
    void Add(int number, const Values&... values) {
        m_sentences.append(m_say(number, values...));
    }

    QString Name(int place) const { return NameOfLoan(*m_worksheet, place); }
    int Horizon() const { return m_worksheet->input.years * MonthsPerYear; }

    bool FindWholeUnits() const;
    QString Amount(Money amount) const {
        return m_wholeUnits ? m_say.Formats().WholeCurrency(amount)
                            : m_say.Formats().Currency(amount);
    }

    void AddOfferCheapest();
    void AddCurrentCheapest();
    void AddPaysMore();
    void AddOtherStretches();
    void AddStretch(const CheaperStretch& stretch, int place);
    void AddSinceWhen();
    void AddBorrowed();
    void AddNextPayment();

    const ComparedWorksheet* m_worksheet;
    Sentences m_say;
    QString m_kept;
    Cost m_least;
    std::optional<Cost> m_next;
    std::optional<Money> m_current;
    bool m_wholeUnits;
    QStringList m_sentences;
};

bool Answer::FindWholeUnits() const {
    std::vector<Money> amounts{m_least.amount};
    if (m_next) {
        amounts.push_back(m_next->amount - m_least.amount);
    }
    if (m_current) {
        amounts.push_back(*m_current - m_least.amount);
    }
    return std::ranges::all_of(amounts, [](Money amount) {
        return amount.IsZero() || amount >= LeastInWholeUnits || amount <= -LeastInWholeUnits;
    });
}

void Answer::AddOfferCheapest() {
    const QString name = Name(m_least.place);
    const QString cost = Amount(m_least.amount);
    const bool isNextMore = m_next && m_next->amount > m_least.amount;
    const bool isCurrentMore = m_current && *m_current > m_least.amount;
    const QString nextName = m_next ? Name(m_next->place) : QString();
    const QString nextMore = isNextMore ? Amount(m_next->amount - m_least.amount) : QString();
    const QString currentMore = isCurrentMore ? Amount(*m_current - m_least.amount) : QString();
    if (isNextMore && isCurrentMore) {
        Add(CompareLeastOfAll, m_kept, name, cost, nextMore, nextName, currentMore);
        return;
    }
    if (!m_next) {
        Add(CompareOnlyOffer, m_kept, name, cost);
    } else if (isNextMore) {
        Add(CompareLeast, m_kept, name, cost, nextMore, nextName);
    } else {
        Add(CompareLeastTie, m_kept, name, cost, nextName);
    }
    if (isCurrentMore) {
        Add(CompareCurrentMore, currentMore);
    } else if (m_current) {
        m_sentences.append(GetResourceText(CompareCurrentAsMuch));
    }
}

void Answer::AddCurrentCheapest() {
    const QString name = Name(m_least.place);
    const QString cost = Amount(m_least.amount);
    Add(m_next ? CompareCurrentLeast : CompareCurrentLess, m_kept, Amount(*m_current),
        Amount(m_least.amount - *m_current), name);
    if (!m_next) {
        Add(CompareOfferCosts, name, cost);
    } else if (m_next->amount > m_least.amount) {
        Add(CompareOffersLeast, name, cost, Amount(m_next->amount - m_least.amount),
            Name(m_next->place));
    } else {
        Add(CompareOffersTie, name, cost, Name(m_next->place));
    }
}

void Answer::AddPaysMore() {
    const int place = m_least.place;
    const auto index = static_cast<std::size_t>(place) - 1;
    if (m_worksheet->input.choice != PaymentChoice::Intended) {
        return;
    }
    const Frequency& frequency = *FindFrequency(m_worksheet->input.offers[index].frequency);
    const Money more = FiguresOf(*m_worksheet, place)->paymentCompared -
                       *m_worksheet->result.offers[index].payment;
    const Money monthly =
        Money::FromDoubleInCents(more.ToDouble() * frequency.periodsPerYear / MonthsPerYear);
    if (monthly > Money()) {
        Add(ComparePaysMore, Name(place), m_say.ShortAmount(monthly));
    }
}

void Answer::AddOtherStretches() {
    const std::vector<CheapestOffer>& cheapest = m_worksheet->result.cheapest;
    for (std::size_t i = 0; i < cheapest.size(); ++i) {
        const int place = cheapest[i].offer;
        CheaperStretch stretch{cheapest[i].fromMonth, std::nullopt};
        if (i + 1 < cheapest.size()) {
            stretch.untilMonth = cheapest[i + 1].fromMonth;
        }
        if (place == m_least.place) {
            continue;
        }
        if (!Contains(stretch, Horizon())) {
            AddStretch(stretch, place);
        } else if (CostOf(*m_worksheet, place).amount != m_least.amount) {
            // The stretches change only with a clear difference.
            Add(CompareHardlyMore, Name(place));
        }
    }
}

void Answer::AddStretch(const CheaperStretch& stretch, int place) {
    const QString from = Duration(stretch.fromMonth, m_say.Formats());
    if (!stretch.untilMonth) {
        Add(CompareCheapestFromOn, from, Name(place));
        return;
    }
    const int last = *stretch.untilMonth - 1;
    const QString until = Duration(last, m_say.Formats());
    if (last == stretch.fromMonth) {
        Add(CompareCheapestAt, from, Name(place));
    } else if (stretch.fromMonth == 1) {
        Add(CompareCheapestUpTo, until, Name(place));
    } else {
        Add(CompareCheapestBetween, from, until, Name(place));
    }
}

void Answer::AddSinceWhen() {
    const auto& cheaper = FiguresOf(*m_worksheet, m_least.place)->cheaper;
    if (!cheaper) {
        return;
    }
    // A small difference does not end a stretch; it then would contradict the first sentence.
    const bool isInside = std::ranges::any_of(
        *cheaper, [&](const CheaperStretch& stretch) { return Contains(stretch, Horizon()); });
    if (isInside != (m_least.amount <= *m_current)) {
        return;
    }
    const QString name = Name(m_least.place);
    if (cheaper->empty()) {
        Add(CompareAlwaysMore, name);
    } else if (cheaper->front().fromMonth == 1 && !cheaper->front().untilMonth) {
        Add(CompareAlwaysLess, name);
    } else {
        Add(CompareNoMoreThanCurrent, name, *cheaper);
    }
}

void Answer::AddBorrowed() {
    const Money more = m_worksheet->input.amount - m_worksheet->input.current.balance;
    if (more > Money()) {
        Add(CompareBorrowMore, m_say.ShortAmount(more));
    } else if (more < Money()) {
        Add(CompareBorrowLess, m_say.ShortAmount(-more));
    }
}

void Answer::AddNextPayment() {
    const ComparisonInput& input = m_worksheet->input;
    const Date next = input.current.nextPayment;
    const Date from = CurrentAccruesFrom(input);
    if (!next.IsNone() && next < input.today) {
        Add(CompareNextPaymentPassed, next);
    } else if (from > input.today) {
        Add(CompareAccruesFrom, from, next);
    }
}

/// Where no offer takes part.
QStringList WhatToEnter(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    QStringList sentences;
    if (const std::optional<Money> current = CostOfCurrent(worksheet)) {
        const Sentences say(formats);
        sentences.append(say(CompareCurrentAlone,
                             Duration(worksheet.input.years * MonthsPerYear, formats),
                             say.ShortAmount(*current)));
    }
    const bool hasOffers =
        std::ranges::any_of(worksheet.rows, [&](int place) { return !IsBlank(worksheet, place); });
    sentences.append(GetResourceText(worksheet.input.amount <= Money() ? CompareEnterAmount
                                     : hasOffers                       ? CompareNoneComplete
                                                                       : CompareEnterOffers));
    return sentences;
}

} // namespace

QStringList AnswerOf(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    const std::optional<int> cheapest = worksheet.result.cheapestByHorizon;
    if (!cheapest) {
        return WhatToEnter(worksheet, formats);
    }
    try {
        return Answer(worksheet, formats).Written();
    } catch (const OverflowFailure&) {
        const Sentences say(formats);
        return {say(CompareOnlyOffer, Duration(worksheet.input.years * MonthsPerYear, formats),
                    NameOfLoan(worksheet, *cheapest), CostOf(worksheet, *cheapest).amount)};
    }
}

} // namespace quend::compare
