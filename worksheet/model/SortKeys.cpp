#include "SortKeys.h"

#include "CLoan.h"
#include "Failure.h"

namespace quend::model {

namespace {

/// The keys of offers without a result: partly filled ones sort before the blank rows.
template <class Key>
struct KeysWithout {
    Key partlyFilled;
    Key blank;
};

constexpr KeysWithout<Date> NoDate{Date::FromDays(Date::Last().Days() - 1), Date::Last()};
constexpr KeysWithout<Money> NoInterest{Money::FromTenThousandths(999'999'998'0000),
                                        Money::FromTenThousandths(999'999'999'0000)};

/// A rate, a frequency or a tick alone does not count as an entry.
bool HasEntry(const CLoan& offer) {
    return !offer.Points().IsZero() || !offer.Interest().IsZero() || !offer.Term().IsZero() ||
           !offer.ActualPayment().IsZero() || !offer.Who().isEmpty();
}

template <class Key>
Key KeyWithout(const CLoan& offer, const KeysWithout<Key>& keys) {
    return HasEntry(offer) ? keys.partlyFilled : keys.blank;
}

Date PayoffDateOf(CLoan& offer) {
    try {
        return offer.PayoffDate();
    } catch (const Failure&) { // reported when it was entered
        return {};
    }
}

} // namespace

Date PayoffDateKey(CLoan& offer) {
    const Date payoff = PayoffDateOf(offer);
    return payoff.IsNone() ? KeyWithout(offer, NoDate) : payoff;
}

Money InterestKey(const CLoan& offer) {
    return offer.Interest().IsZero() ? KeyWithout(offer, NoInterest) : offer.Interest();
}

} // namespace quend::model
