// Saving and loading worksheets.

#include "Language.h"
#include "QuendNames.h"
#include "ReferenceModel.h"
#include "TextNumbers.h"

using Plain::Count;

void ReferenceModel::Clear() {
    const std::size_t rows = offers.size();
    loan = {};
    current = {};
    offers.assign(rows, {});
    order.clear();
    for (std::size_t i = 0; i < rows; ++i) {
        order.push_back(i);
    }
    sorted = 0;
    raised.clear();
    missing.clear();
    nameMissing = false;
    dirty = false;
}

QStringList ReferenceModel::Names() const {
    QStringList names;
    for (const auto& [folded, page] : saved) {
        names.append(page.name);
    }
    return names;
}

namespace {

bool IsWorthKeeping(const ModelOffer& offer) {
    return !offer.who.isEmpty() || offer.actual != 0 || offer.financed || offer.rate != 0 ||
           offer.points != 0 || offer.costs != 0;
}

} // namespace

/// A number after it was saved as text.
double ReferenceModel::AsKept(double number) const { return forms.ReadReal(forms.Number(number)); }

SavedWorksheet ReferenceModel::Page() const {
    SavedWorksheet page{loan.name, loan, current, {}};
    page.current.rate = AsKept(page.current.rate * 100) / 100; // saved in percent
    for (ModelOffer offer : offers) {
        if (IsWorthKeeping(offer)) {
            offer.rate = AsKept(offer.rate * 100) / 100;
            offer.points = AsKept(offer.points);
            page.offers.push_back(offer);
        }
    }
    return page;
}

void ReferenceModel::Save() {
    saved.insert_or_assign(FoldedName(loan.name), Page());
    dirty = false;
}

/// The intended payment is loaded first, so that it is not checked yet. The rate is loaded after
/// the term: an offer without a term gets the default one.
bool ReferenceModel::LoadOffer(int row, const ModelOffer& kept) {
    ModelOffer& offer = OfferIn(row);
    offer = kept;
    offer.interest = 0;
    offer.rate = 0;
    SetRate(offer, kept.rate);
    return Try([&] { RecalculateOffer(order.at(Place(row))); });
}

void ReferenceModel::Load(const QString& name) {
    const SavedWorksheet page = saved.at(FoldedName(name));
    Clear();
    loan = page.loan;
    loan.name = name;
    loan.escrow = 0;
    current = page.current;
    current.payoff = {};
    current.left = current.interestLeft = 0;
    bool sound = Try([&] { RecalculateEscrow(); });
    sound &= Try([&] { RecalculateSchedule(); });
    GrowTo(page.offers.size());
    for (std::size_t i = 0; i < page.offers.size(); ++i) {
        sound &= LoadOffer(static_cast<int>(i), page.offers[i]);
    }
    sound &= Try([&] { RecalculatePayment(); });
    current.payment = page.current.payment; // as saved
    if (!sound) {
        Expect(TextNumber::ValuesNotLoaded);
    }
    dirty = false;
}
