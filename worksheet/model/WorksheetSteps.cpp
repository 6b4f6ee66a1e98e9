// Records the steps of a worksheet, restores its states, and changes whole offers.

#include "ModelNames.h"
#include "Worksheet.h"

#include <algorithm>
#include <utility>

namespace quend::model {

bool operator==(const WorksheetState& one, const WorksheetState& other) {
    return one.loan == other.loan && one.current == other.current &&
           std::ranges::equal(one.offers, other.offers, &CLoan::HasSameEntries);
}

bool SameToSave(WorksheetState one, const WorksheetState& other) {
    one.loan.name = other.loan.name;
    return one == other;
}

Worksheet::Step::Step(Worksheet& sheet, std::optional<StepName> name) : m_sheet(&sheet) {
    if (name) {
        sheet.m_step = *name;
    }
    if (sheet.m_onStep && !sheet.m_inStep && !sheet.m_deferred) {
        m_before = sheet.State();
        m_name = name;
        sheet.m_inStep = true;
    }
}

Worksheet::Step::~Step() {
    if (!m_before) {
        return;
    }
    m_sheet->m_inStep = false;
    WorksheetState after = m_sheet->State();
    if (*m_before != after) {
        m_sheet->m_onStep(
            {m_name.value_or(m_sheet->m_step), *std::move(m_before), std::move(after)});
    }
}

void Worksheet::OnStep(std::function<void(WorksheetStep)> step, std::function<void()> emptied) {
    m_onStep = std::move(step);
    m_onEmptied = std::move(emptied);
}

CLoan Worksheet::BlankOffer() {
    CLoan blank(*this);
    blank.SetStartingAmount(m_loan.amount);
    return blank;
}

bool Worksheet::IsBlank(OfferIndex offer) {
    return m_offers.at(offer.value).HasSameEntries(BlankOffer());
}

WorksheetState Worksheet::State() {
    WorksheetState state{m_loan, m_current, m_offers};
    const CLoan blank = BlankOffer();
    while (!state.offers.empty() && state.offers.back().HasSameEntries(blank)) {
        state.offers.pop_back();
    }
    return state;
}

void Worksheet::Restore(const WorksheetState& state) {
    m_loan = state.loan;
    m_current = state.current;
    const CLoan blank = BlankOffer();
    for (std::size_t i = 0; i < m_offers.size(); ++i) {
        m_offers[i] = i < state.offers.size() ? state.offers[i] : blank;
    }
    ClearRaisedMarks();
    ShowAll();
    ShowMissing();
    m_display->ShowToolTip({FieldId::CurPayoffDate}, false);
    m_dirty = !m_saved || !SameToSave(*m_saved, state);
}

void Worksheet::ShowAll() {
    for (const FieldRule& rule : LoanFields()) {
        Show({rule.id});
    }
    for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
        ShowRow(row);
    }
}

void Worksheet::MarkUnsaved() {
    m_saved.reset();
    m_dirty = true;
}

void Worksheet::ClearDirty() {
    m_dirty = false;
    m_saved = State();
}

void Worksheet::ReplaceOffer(OfferIndex offer, const CLoan& other) {
    m_offers.at(offer.value) = other;
    m_raised.erase(offer);
    m_dirty = true;
    const Row row = RowOfOffer(offer);
    m_display->ShowMark({FieldId::ActualPayment, row}, Mark::None);
    ShowRow(row);
}

void Worksheet::ClearOffer(OfferIndex offer) {
    const Step step(*this, StepName{StepKind::ClearOffer, FieldId::InterestRate, offer});
    ReplaceOffer(offer, BlankOffer());
}

std::optional<OfferIndex> Worksheet::FirstBlankOffer() {
    for (Row row{0}; row <= HighestOfferRow(); ++row.value) {
        if (IsBlank(OfferIndexOfRow(row))) {
            return OfferIndexOfRow(row);
        }
    }
    return std::nullopt;
}

void Worksheet::CopyOffer(OfferIndex from, OfferIndex to) {
    const Step step(*this, StepName{StepKind::DuplicateOffer, FieldId::InterestRate, from});
    ReplaceOffer(to, CLoan(Offer(from)));
}

void Worksheet::ExchangeOffers(OfferIndex offer, OfferIndex other) {
    const Step step(*this, StepName{StepKind::MoveOffer, FieldId::InterestRate, offer});
    const CLoan moved = Offer(offer);
    ReplaceOffer(offer, CLoan(Offer(other)));
    ReplaceOffer(other, moved);
}

} // namespace quend::model
