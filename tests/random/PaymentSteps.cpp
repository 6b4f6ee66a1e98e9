// Intended payments of offers that can be computed, and existing values entered again: the program
// may then raise an intended payment although nothing else changes.

#include "QuendNames.h"
#include "RandomUser.h"

#include <QComboBox>

#include <vector>

using namespace Qt::StringLiterals;

/// A visible row whose offer has a payment.
std::optional<Row> RandomUser::ComputedRow(unsigned number) const {
    std::vector<Row> rows;
    for (Row row{0}; row.value < static_cast<int>(m_model.offers.size()); ++row.value) {
        if (m_model.PaymentOf(row.value) > 0 &&
            IsVisible(*Control({FieldId::ActualPayment, row}))) {
            rows.push_back(row);
        }
    }
    return rows.empty() ? std::nullopt : std::optional(rows.at(number % rows.size()));
}

/// Replaces the whole text.
void RandomUser::Retype(Field field, const QString& text) {
    Enter(field);
    if (m_edited != field) {
        return;
    }
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    TypeText(text);
    m_text = Look().text;
    Tab(0, 0);
}

void RandomUser::PickAgain(Field field) {
    const auto& list = *qobject_cast<QComboBox*>(Control(field));
    const auto count = static_cast<unsigned>(list.count());
    auto entry = static_cast<unsigned>(list.currentIndex());
    while (entry % 5 == 0) { // ChooseFrom cancels for these
        entry += count;
    }
    ChooseFrom(field, entry);
}

/// Too low, exact, a cent less, a cent more.
void RandomUser::Intend(unsigned a, unsigned b) {
    const std::optional<Row> row = ComputedRow(a);
    if (!row) {
        return FillOffer(a, b);
    }
    constexpr Plain::Count cent = 100;
    const Plain::Count cents = Plain::ToCents(m_model.PaymentOf(row->value));
    const std::array texts{u"0"_s, u"1"_s, m_model.forms.Number(cents),
                           m_model.forms.Number(cents - cent), m_model.forms.Number(cents + cent)};
    Retype({FieldId::ActualPayment, *row}, texts.at(b % texts.size()));
}

void RandomUser::ClearIntended(unsigned a, unsigned b) {
    const std::optional<Row> row = ComputedRow(a);
    if (!row) {
        return FillOffer(a, b);
    }
    if (b % 3 == 0 && !m_model.IsTicked(row->value)) {
        Tick(static_cast<unsigned>(row->value), 0);
    }
    Retype({FieldId::ActualPayment, *row}, {});
}

void RandomUser::EnterAgain(unsigned a, unsigned b) {
    const std::optional<Row> row = ComputedRow(a);
    if (!row) {
        return;
    }
    const auto again = [this](Field field) { Retype(field, u'0' + m_model.EntryText(field)); };
    switch (b % 5) {
    case 0:
        return PickAgain({FieldId::Frequency, *row});
    case 1:
        return again({FieldId::InterestRate, *row});
    case 2:
        return again({FieldId::LoanAmount});
    case 3:
        return Retype({FieldId::ActualPayment, *row}, u"1"_s);
    default: // past the tick box, and back
        Enter({FieldId::Points, *row});
        Tab(3, 0);
        Tab(0, 0);
    }
}

/// Leaves a state that loading must restore or correct: only a tick, or an offer without its term.
void RandomUser::LeaveOut(unsigned a, unsigned b) {
    const std::optional<Row> row = ComputedRow(a);
    if (a % 2 == 0 || !row) {
        return Tick(b, 0);
    }
    Retype({FieldId::LoanTerm}, QString::number(1 + b % 30));
    Retype({FieldId::Term, *row}, {});
}
