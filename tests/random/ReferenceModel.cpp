// How the results follow from the inputs.

#include "ReferenceModel.h"

#include "Language.h"
#include "TextNumbers.h"

#include <QScopeGuard>

#include <algorithm>
#include <exception>
#include <numeric>
#include <utility>

using Plain::Count;
using Plain::TooLarge;

void ReferenceModel::Expect(int text, const QString& rest) {
    expected.append(GetResourceText(text) + rest);
}

void ReferenceModel::ExpectFailure(int number, bool never) {
    const QString start = QStringLiteral("errn=%1  src=").arg(number);
    const int meaning = never ? TextNumber::NeverRepaid : TextNumber::NumberTooLarge;
    expected.append(number == 6 ? GetResourceText(meaning) + u'\n' + start : start);
}

void ReferenceModel::Guard(const std::function<void()>& action) {
    try {
        action();
    } catch (const Plain::NeverRepaid&) {
        ExpectFailure(6, true);
    } catch (const TooLarge&) {
        ExpectFailure(6);
    } catch (const Forms::NoNumber&) {
        ExpectFailure(13);
    }
}

void ReferenceModel::GuardAgain(const std::function<void()>& action) {
    const bool wasDirty = std::exchange(dirty, false);
    const QStringList before = expected;
    qsizetype refusals = 0; // of intended payments, which are always reported
    Guard([&] {
        const auto count = qScopeGuard([&] { refusals = expected.size() - before.size(); });
        action();
    });
    if (!dirty) {
        expected = expected.first(before.size() + refusals);
    }
    dirty = dirty || wasDirty;
}

bool ReferenceModel::Try(const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const TooLarge&) {
        return false;
    }
}

/// Runs all parts, even after one has failed. The first failure is reported.
void ReferenceModel::Recalculate(unsigned parts) {
    std::exception_ptr first;
    const auto run = [&](const std::function<void()>& step) {
        try {
            step();
        } catch (const TooLarge&) {
            first = first ? first : std::current_exception();
        }
    };
    if ((parts & Escrow) != 0) {
        run([&] { RecalculateEscrow(); });
        parts |= Offers | Payment | Schedule;
    }
    if ((parts & Offers) != 0) {
        for (const std::size_t index : order) {
            run([&] { RecalculateOffer(index); });
        }
    }
    if ((parts & Payment) != 0) {
        run([&] { RecalculatePayment(); });
    }
    if ((parts & Schedule) != 0) {
        run([&] { RecalculateSchedule(); });
    }
    if (first) {
        std::rethrow_exception(first);
    }
}

void ReferenceModel::RecalculateEscrow() {
    loan.escrow = 0;
    loan.escrow = Plain::MonthlyEscrow(loan.taxes, loan.insurance);
}

Count ReferenceModel::Principal(const ModelOffer& offer) const {
    const Count points =
        offer.financed ? Plain::Whole(Plain::Units(loan.amount) * offer.points / 100) : 0;
    return Plain::Sum(loan.amount, points);
}

Count ReferenceModel::LeastPayment(const ModelOffer& offer) const {
    const Count pAndI =
        Plain::PrincipalAndInterest(Principal(offer), offer.rate, offer.term, offer.frequency);
    return pAndI == 0 ? 0 : Plain::Sum(pAndI, Plain::EscrowOf(offer.frequency, loan.escrow));
}

Count ReferenceModel::PaymentOf(int row) const {
    try {
        return LeastPayment(OfferIn(row));
    } catch (const TooLarge&) {
        return 0;
    }
}

/// An intended payment that is too low becomes the computed one.
bool ReferenceModel::Raise(ModelOffer& offer) {
    const Count least = LeastPayment(offer);
    const Count pAndI =
        Plain::PrincipalAndInterest(Principal(offer), offer.rate, offer.term, offer.frequency);
    if (pAndI == 0 || least <= offer.actual) {
        return false;
    }
    Put(offer.actual, least);
    return true;
}

void ReferenceModel::MarkRaised(std::size_t index) {
    raised.insert(index);
    noticeComes = true;
}

Plain::Repaid ReferenceModel::Payoff(const ModelOffer& offer) const {
    const Count principal = Principal(offer);
    if (principal == 0 || offer.rate == 0 || offer.frequency.isNull() || offer.actual == 0) {
        return {};
    }
    return Plain::Repay({principal, offer.rate, offer.actual,
                         Plain::EscrowOf(offer.frequency, loan.escrow), offer.frequency, Today},
                        false);
}

Plain::Repaid ReferenceModel::RunPayoff(ModelOffer& offer) {
    offer.interest = 0;
    const Plain::Repaid repaid = Payoff(offer);
    offer.interest = repaid.interest;
    return repaid;
}

/// Uses only the inputs.
ModelResults ReferenceModel::ResultsOf(const ModelOffer& offer) const {
    ModelResults results;
    try {
        results.pAndI =
            Plain::PrincipalAndInterest(Principal(offer), offer.rate, offer.term, offer.frequency);
        results.payment = LeastPayment(offer);
        const Plain::Repaid repaid = Payoff(offer);
        results.payoff = repaid.date;
        results.interest = repaid.interest;
    } catch (const TooLarge&) {
        results.failed = true;
    }
    return results;
}

void ReferenceModel::RecalculateOffer(std::size_t index) {
    ModelOffer& offer = offers.at(index);
    if (Raise(offer)) {
        MarkRaised(index);
    }
    RunPayoff(offer);
}

void ReferenceModel::RecalculatePayment() {
    missing.clear();
    const bool none = current.amount == 0 && current.term == 0 && current.rate == 0;
    if (current.amount == 0 && !none) {
        missing.insert(FieldId::CurLoanAmount);
    }
    if (current.term == 0 && !none) {
        missing.insert(FieldId::CurLoanTerm);
    }
    if (current.rate == 0 && !none) {
        missing.insert(FieldId::CurInterestRate);
    }
    if (!none && current.frequency.isNull()) {
        Put(current.frequency, QChar(u'M'));
    }
    if (none || !missing.empty()) {
        return Put(current.payment, Count{0});
    }
    try {
        const Count pAndI = Plain::PrincipalAndInterest(current.amount, current.rate, current.term,
                                                        current.frequency);
        Put(current.payment, Plain::Sum(pAndI, loan.escrow));
    } catch (const TooLarge&) {
        current.payment = 0;
        throw;
    }
}

void ReferenceModel::RecalculateSchedule() {
    current.payoff = {};
    current.left = current.interestLeft = 0;
    if (current.balance == 0 || current.actual == 0) {
        return;
    }
    const Plain::Repaid repaid =
        Plain::Repay({current.balance, current.rate, current.actual,
                      Plain::EscrowOf(current.actualFrequency, loan.escrow),
                      current.actualFrequency, current.next},
                     true);
    current.payoff = repaid.date;
    current.left = repaid.paid;
    current.interestLeft = repaid.interest;
}

void ReferenceModel::NoticeIsDue() {
    if (!noticeComes) {
        return;
    }
    noticeComes = false;
    if (!noticeShown) {
        noticeShown = true;
        Expect(TextNumber::PaymentRaised);
    }
    raised.clear();
}

void ReferenceModel::GrowTo(std::size_t rows) {
    while (offers.size() < std::min(rows, MostRows)) {
        order.push_back(offers.size());
        offers.emplace_back();
    }
}

void ReferenceModel::EnterRow(int row) {
    if (Place(row) + 1 == offers.size()) {
        GrowTo(offers.size() + 1);
    }
}

namespace {

bool HasEntry(const ModelOffer& offer) {
    return offer.points != 0 || offer.interest != 0 || offer.term != 0 || offer.actual != 0 ||
           !offer.who.isEmpty();
}

} // namespace

/// Repeats passes until one changes nothing.
template <class KeyOf>
void ReferenceModel::SortBy(char by, KeyOf keyOf) {
    std::vector<decltype(keyOf(offers.front()))> keys;
    for (ModelOffer& offer : offers) {
        keys.push_back(keyOf(offer));
    }
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (bool changed = true; changed;) {
        changed = false;
        for (std::size_t i = 0; i + 1 < order.size(); ++i) {
            if (keys.at(order[i]) > keys.at(order[i + 1])) {
                std::swap(order[i], order[i + 1]);
                changed = true;
            }
        }
    }
    sorted = by;
    ShowOffers();
}

void ReferenceModel::SortByPayoff() {
    SortBy('P', [this](ModelOffer& offer) {
        Plain::Repaid repaid;
        Try([&] { repaid = RunPayoff(offer); });
        const QDate without = HasEntry(offer) ? QDate(9999, 12, 30) : QDate(9999, 12, 31);
        return repaid.date.isNull() ? without : repaid.date;
    });
}

void ReferenceModel::SortByInterest() {
    SortBy('I', [](const ModelOffer& offer) -> Count {
        const Count without = (HasEntry(offer) ? 999'999'998LL : 999'999'999LL) * 10'000;
        return offer.interest == 0 ? without : offer.interest;
    });
}

/// Shows the stored payments; raises nothing.
void ReferenceModel::ShowOffers() {
    for (ModelOffer& offer : offers) {
        ShowOffer(offer);
    }
}

void ReferenceModel::ShowOffer(ModelOffer& offer) {
    Try([&] {
        static_cast<void>(LeastPayment(offer));
        RunPayoff(offer);
    });
}
