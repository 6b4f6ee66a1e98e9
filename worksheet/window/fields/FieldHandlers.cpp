#include "FieldHandlers.h"

#include "CalendarDate.h"
#include "ControlMap.h"
#include "DatePicker.h"
#include "FieldBehaviour.h"
#include "LoanNameBox.h"
#include "TransferRules.h"
#include "Worksheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>
#include <array>
#include <type_traits>

namespace quend::window {

using enum FieldId;

namespace {

using H = FieldHandlers;

/// The handlers of one control; those of a row take its index first. Null: no such handler.
template <class... Index>
struct Events {
    FieldId field = FieldId::Who;
    void (H::*gotFocus)(Index...) = nullptr;
    bool (H::*keyPress)(Index..., QChar) = nullptr;
    bool (H::*validate)(Index...) = nullptr;
    void (H::*lostFocus)(Index...) = nullptr;
    void (H::*click)(Index...) = nullptr;
    bool (H::*keyDown)(Index..., int) = nullptr;
    bool (H::*keyUp)(Index..., int) = nullptr;
};

constexpr std::array LoanEvents{
    Events<>{.field = LoanName,
             .gotFocus = &H::cboLoanName_GotFocus,
             .lostFocus = &H::cboLoanName_LostFocus},
    Events<>{
        .field = LoanType, .lostFocus = &H::cboLoanType_LostFocus, .click = &H::cboLoanType_Click},
    Events<>{LoanAmount, &H::txtLoanAmount_GotFocus, &H::txtLoanAmount_KeyPress,
             &H::txtLoanAmount_Validate, &H::txtLoanAmount_LostFocus},
    Events<>{LoanTerm, &H::txtLoanTerm_GotFocus, &H::txtLoanTerm_KeyPress, &H::txtLoanTerm_Validate,
             &H::txtLoanTerm_LostFocus},
    Events<>{AnnualTaxes, &H::txtAnnualTaxes_GotFocus, &H::txtAnnualTaxes_KeyPress,
             &H::txtAnnualTaxes_Validate, &H::txtAnnualTaxes_LostFocus},
    Events<>{AnnualInsurance, &H::txtAnnualInsurance_GotFocus, &H::txtAnnualInsurance_KeyPress,
             &H::txtAnnualInsurance_Validate, &H::txtAnnualInsurance_LostFocus},
    Events<>{CurLoanAmount, &H::txtCurLoanAmount_GotFocus, &H::txtCurLoanAmount_KeyPress,
             &H::txtCurLoanAmount_Validate, &H::txtCurLoanAmount_LostFocus},
    Events<>{CurLoanTerm, &H::txtCurLoanTerm_GotFocus, &H::txtCurLoanTerm_KeyPress,
             &H::txtCurLoanTerm_Validate, &H::txtCurLoanTerm_LostFocus},
    Events<>{CurInterestRate, &H::txtCurInterestRate_GotFocus, &H::txtCurInterestRate_KeyPress,
             &H::txtCurInterestRate_Validate, &H::txtCurInterestRate_LostFocus},
    Events<>{CurrentBalance, &H::txtCurrentBalance_GotFocus, &H::txtCurrentBalance_KeyPress,
             &H::txtCurrentBalance_Validate, &H::txtCurrentBalance_LostFocus},
    Events<>{CurActualPayment, &H::txtCurActualPayment_GotFocus, &H::txtCurActualPayment_KeyPress,
             &H::txtCurActualPayment_Validate, &H::txtCurActualPayment_LostFocus},
    Events<>{.field = CurPaymentFrequency,
             .lostFocus = &H::cboCurPaymentFrequency_LostFocus,
             .click = &H::cboCurPaymentFrequency_Click},
    Events<>{.field = ActPaymentFrequency,
             .lostFocus = &H::cboActPaymentFrequency_LostFocus,
             .click = &H::cboActPaymentFrequency_Click},
    Events<>{.field = NextPayment,
             .gotFocus = &H::dtNextPayment_GotFocus,
             .keyPress = &H::dtNextPayment_KeyPress,
             .validate = &H::dtNextPayment_Validate,
             .lostFocus = &H::dtNextPayment_LostFocus,
             .click = &H::dtNextPayment_Change},
};

constexpr std::array OfferEvents{
    Events<int>{.field = FinancePoints,
                .gotFocus = &H::chkPoints_GotFocus,
                .lostFocus = &H::chkPoints_LostFocus,
                .click = &H::chkPoints_Click},
    Events<int>{.field = FieldId::Points,
                .gotFocus = &H::txtPoints_GotFocus,
                .keyPress = &H::txtPoints_KeyPress,
                .validate = &H::txtPoints_Validate,
                .lostFocus = &H::txtPoints_LostFocus,
                .keyDown = &H::txtPoints_KeyDown},
    Events<int>{.field = FieldId::InterestRate,
                .gotFocus = &H::txtInterestRate_GotFocus,
                .keyPress = &H::txtInterestRate_KeyPress,
                .validate = &H::txtInterestRate_Validate,
                .lostFocus = &H::txtInterestRate_LostFocus,
                .keyUp = &H::txtInterestRate_KeyUp},
    Events<int>{.field = FieldId::Term,
                .gotFocus = &H::txtTerm_GotFocus,
                .keyPress = &H::txtTerm_KeyPress,
                .validate = &H::txtTerm_Validate,
                .lostFocus = &H::txtTerm_LostFocus,
                .keyUp = &H::txtTerm_KeyUp},
    Events<int>{.field = FieldId::ActualPayment,
                .gotFocus = &H::txtActualPayment_GotFocus,
                .keyPress = &H::txtActualPayment_KeyPress,
                .validate = &H::txtActualPayment_Validate,
                .lostFocus = &H::txtActualPayment_LostFocus,
                .keyUp = &H::txtActualPayment_KeyUp},
    Events<int>{.field = Frequency,
                .gotFocus = &H::cboFrequency_GotFocus,
                .lostFocus = &H::cboFrequency_LostFocus,
                .click = &H::cboFrequency_Click},
    Events<int>{.field = Who,
                .gotFocus = &H::txtWho_GotFocus,
                .lostFocus = &H::txtWho_LostFocus,
                .keyDown = &H::txtWho_KeyDown},
};

/// Calls the handler that `loan` or `offer` selects in the field's table row; `otherwise` is the
/// result for a control without one.
template <class LoanHandler, class OfferHandler, class... Args>
auto Call(H& handlers, Field field, LoanHandler Events<>::*loan, OfferHandler Events<int>::*offer,
          bool otherwise, Args... args) {
    using Result = std::invoke_result_t<LoanHandler, H&, Args...>;
    if (field.row == Field::NoRow) {
        const auto* events = std::ranges::find(LoanEvents, field.id, &Events<>::field);
        const auto handler = events == LoanEvents.end() ? nullptr : events->*loan;
        return handler ? (handlers.*handler)(args...) : static_cast<Result>(otherwise);
    }
    const auto* events = std::ranges::find(OfferEvents, field.id, &Events<int>::field);
    const auto handler = events == OfferEvents.end() ? nullptr : events->*offer;
    return handler ? (handlers.*handler)(field.row.value, args...) : static_cast<Result>(otherwise);
}

} // namespace

FieldHandlers::FieldHandlers(Worksheet& worksheet, const ControlMap& controls,
                             FieldBehaviour& discipline)
    : m_worksheet(&worksheet), m_controls(&controls), m_discipline(&discipline) {}

void FieldHandlers::GotFocus(Field field) {
    Call(*this, field, &Events<>::gotFocus, &Events<int>::gotFocus, true);
}
bool FieldHandlers::KeyPress(Field field, QChar key) {
    return Call(*this, field, &Events<>::keyPress, &Events<int>::keyPress, true, key);
}
QChar FieldHandlers::DecimalSeparator() const {
    return m_worksheet->Texts().Formats().DecimalSeparator();
}
bool FieldHandlers::Validate(Field field) {
    return Call(*this, field, &Events<>::validate, &Events<int>::validate, true);
}
void FieldHandlers::LostFocus(Field field) {
    Call(*this, field, &Events<>::lostFocus, &Events<int>::lostFocus, true);
}
void FieldHandlers::Click(Field field) {
    Call(*this, field, &Events<>::click, &Events<int>::click, true);
}
bool FieldHandlers::KeyDown(Field field, int key) {
    return Call(*this, field, &Events<>::keyDown, &Events<int>::keyDown, false, key);
}
bool FieldHandlers::KeyUp(Field field, int key) {
    return Call(*this, field, &Events<>::keyUp, &Events<int>::keyUp, false, key);
}

void FieldHandlers::Enter(Field field) { m_discipline->Enter(field); }
void FieldHandlers::EnterRow(int index) { m_discipline->EnterRow(Row{index}); }
bool FieldHandlers::Allows(Field field, QChar key) const {
    return m_discipline->Allows(field, key);
}
bool FieldHandlers::Check(Field field) { return m_discipline->Check(field); }
void FieldHandlers::Leave(Field field) { m_discipline->Leave(field); }
bool FieldHandlers::Move(Field field, int key) { return m_discipline->MoveByArrow(field, key); }

void FieldHandlers::StoreChoice(Field field) { m_worksheet->StoreChoice(field, ChosenText(field)); }
void FieldHandlers::LeaveChoice(Field field) { m_worksheet->LeaveChoice(field, ChosenText(field)); }

QString FieldHandlers::ChosenText(Field field) const {
    return m_controls->ControlOf<QComboBox>(field)->currentText();
}

bool FieldHandlers::IsTicked(Row row) const {
    return m_controls->ControlOf<QCheckBox>({FinancePoints, row})->isChecked();
}

void FieldHandlers::cboLoanName_GotFocus() {
    m_controls->ControlOf<LoanNameBox>({LoanName})->SelectAll();
}
/// A name removes the mark of a missing name.
void FieldHandlers::cboLoanName_LostFocus() {
    m_worksheet->SetLoanName(ChosenText({LoanName}));
    if (!Worksheet::IsEmptyName(m_worksheet->LoanName())) {
        m_controls->ControlOf<LoanNameBox>({LoanName})->SetMark(Mark::None);
    }
}

void FieldHandlers::cboLoanType_Click() { StoreChoice({LoanType}); }
void FieldHandlers::cboLoanType_LostFocus() { LeaveChoice({LoanType}); }

void FieldHandlers::cboCurPaymentFrequency_Click() { StoreChoice({CurPaymentFrequency}); }
void FieldHandlers::cboCurPaymentFrequency_LostFocus() { LeaveChoice({CurPaymentFrequency}); }

void FieldHandlers::cboActPaymentFrequency_Click() { StoreChoice({ActPaymentFrequency}); }
void FieldHandlers::cboActPaymentFrequency_LostFocus() { LeaveChoice({ActPaymentFrequency}); }

void FieldHandlers::dtNextPayment_GotFocus() { Enter({NextPayment}); }
bool FieldHandlers::dtNextPayment_KeyPress(QChar key) { return Allows({NextPayment}, key); }
bool FieldHandlers::dtNextPayment_Validate() { return Check({NextPayment}); }
void FieldHandlers::dtNextPayment_LostFocus() { Leave({NextPayment}); }
void FieldHandlers::dtNextPayment_Change() {
    const auto* picker = m_controls->ControlOf<DatePicker>({NextPayment});
    m_worksheet->SetCurrentNextPayment(FromCalendar(picker->Shown()));
}

void FieldHandlers::txtLoanAmount_GotFocus() { Enter({LoanAmount}); }
bool FieldHandlers::txtLoanAmount_KeyPress(QChar key) { return Allows({LoanAmount}, key); }
bool FieldHandlers::txtLoanAmount_Validate() { return Check({LoanAmount}); }
void FieldHandlers::txtLoanAmount_LostFocus() { Leave({LoanAmount}); }

void FieldHandlers::txtLoanTerm_GotFocus() { Enter({LoanTerm}); }
bool FieldHandlers::txtLoanTerm_KeyPress(QChar key) { return Allows({LoanTerm}, key); }
bool FieldHandlers::txtLoanTerm_Validate() { return Check({LoanTerm}); }
void FieldHandlers::txtLoanTerm_LostFocus() { Leave({LoanTerm}); }

void FieldHandlers::txtAnnualTaxes_GotFocus() { Enter({AnnualTaxes}); }
bool FieldHandlers::txtAnnualTaxes_KeyPress(QChar key) { return Allows({AnnualTaxes}, key); }
bool FieldHandlers::txtAnnualTaxes_Validate() { return Check({AnnualTaxes}); }
void FieldHandlers::txtAnnualTaxes_LostFocus() { Leave({AnnualTaxes}); }

void FieldHandlers::txtAnnualInsurance_GotFocus() { Enter({AnnualInsurance}); }
bool FieldHandlers::txtAnnualInsurance_KeyPress(QChar key) {
    return Allows({AnnualInsurance}, key);
}
bool FieldHandlers::txtAnnualInsurance_Validate() { return Check({AnnualInsurance}); }
void FieldHandlers::txtAnnualInsurance_LostFocus() { Leave({AnnualInsurance}); }

void FieldHandlers::txtCurLoanAmount_GotFocus() { Enter({CurLoanAmount}); }
bool FieldHandlers::txtCurLoanAmount_KeyPress(QChar key) { return Allows({CurLoanAmount}, key); }
bool FieldHandlers::txtCurLoanAmount_Validate() { return Check({CurLoanAmount}); }
void FieldHandlers::txtCurLoanAmount_LostFocus() { Leave({CurLoanAmount}); }

void FieldHandlers::txtCurLoanTerm_GotFocus() { Enter({CurLoanTerm}); }
bool FieldHandlers::txtCurLoanTerm_KeyPress(QChar key) { return Allows({CurLoanTerm}, key); }
bool FieldHandlers::txtCurLoanTerm_Validate() { return Check({CurLoanTerm}); }
void FieldHandlers::txtCurLoanTerm_LostFocus() { Leave({CurLoanTerm}); }

void FieldHandlers::txtCurInterestRate_GotFocus() { Enter({CurInterestRate}); }
bool FieldHandlers::txtCurInterestRate_KeyPress(QChar key) {
    return Allows({CurInterestRate}, key);
}
bool FieldHandlers::txtCurInterestRate_Validate() { return Check({CurInterestRate}); }
void FieldHandlers::txtCurInterestRate_LostFocus() { Leave({CurInterestRate}); }

void FieldHandlers::txtCurrentBalance_GotFocus() { Enter({CurrentBalance}); }
bool FieldHandlers::txtCurrentBalance_KeyPress(QChar key) { return Allows({CurrentBalance}, key); }
bool FieldHandlers::txtCurrentBalance_Validate() { return Check({CurrentBalance}); }
void FieldHandlers::txtCurrentBalance_LostFocus() { Leave({CurrentBalance}); }

void FieldHandlers::txtCurActualPayment_GotFocus() { Enter({CurActualPayment}); }
bool FieldHandlers::txtCurActualPayment_KeyPress(QChar key) {
    return Allows({CurActualPayment}, key);
}
bool FieldHandlers::txtCurActualPayment_Validate() { return Check({CurActualPayment}); }
void FieldHandlers::txtCurActualPayment_LostFocus() { Leave({CurActualPayment}); }

void FieldHandlers::chkPoints_Click(int index) {
    m_worksheet->StoreFinancePoints(Row{index}, IsTicked(Row{index}));
}
void FieldHandlers::chkPoints_GotFocus(int index) { EnterRow(index); }
void FieldHandlers::chkPoints_LostFocus(int index) {
    m_worksheet->LeaveFinancePoints(Row{index}, IsTicked(Row{index}));
}

void FieldHandlers::txtPoints_GotFocus(int index) { Enter({FieldId::Points, Row{index}}); }
bool FieldHandlers::txtPoints_KeyPress(int index, QChar key) {
    return Allows({FieldId::Points, Row{index}}, key);
}
bool FieldHandlers::txtPoints_KeyDown(int index, int key) {
    return Move({FieldId::Points, Row{index}}, key);
}
bool FieldHandlers::txtPoints_Validate(int index) { return Check({FieldId::Points, Row{index}}); }
void FieldHandlers::txtPoints_LostFocus(int index) { Leave({FieldId::Points, Row{index}}); }

void FieldHandlers::txtInterestRate_GotFocus(int index) {
    Enter({FieldId::InterestRate, Row{index}});
}
bool FieldHandlers::txtInterestRate_KeyPress(int index, QChar key) {
    return Allows({FieldId::InterestRate, Row{index}}, key);
}
bool FieldHandlers::txtInterestRate_KeyUp(int index, int key) {
    return Move({FieldId::InterestRate, Row{index}}, key);
}
bool FieldHandlers::txtInterestRate_Validate(int index) {
    return Check({FieldId::InterestRate, Row{index}});
}
void FieldHandlers::txtInterestRate_LostFocus(int index) {
    Leave({FieldId::InterestRate, Row{index}});
}

void FieldHandlers::txtTerm_GotFocus(int index) { Enter({FieldId::Term, Row{index}}); }
bool FieldHandlers::txtTerm_KeyPress(int index, QChar key) {
    return Allows({FieldId::Term, Row{index}}, key);
}
bool FieldHandlers::txtTerm_KeyUp(int index, int key) {
    return Move({FieldId::Term, Row{index}}, key);
}
bool FieldHandlers::txtTerm_Validate(int index) { return Check({FieldId::Term, Row{index}}); }
void FieldHandlers::txtTerm_LostFocus(int index) { Leave({FieldId::Term, Row{index}}); }

void FieldHandlers::txtActualPayment_GotFocus(int index) {
    Enter({FieldId::ActualPayment, Row{index}});
}
bool FieldHandlers::txtActualPayment_KeyPress(int index, QChar key) {
    return Allows({FieldId::ActualPayment, Row{index}}, key);
}
bool FieldHandlers::txtActualPayment_KeyUp(int index, int key) {
    return Move({FieldId::ActualPayment, Row{index}}, key);
}
bool FieldHandlers::txtActualPayment_Validate(int index) {
    return Check({FieldId::ActualPayment, Row{index}});
}
void FieldHandlers::txtActualPayment_LostFocus(int index) {
    Leave({FieldId::ActualPayment, Row{index}});
}

void FieldHandlers::cboFrequency_GotFocus(int index) { EnterRow(index); }
void FieldHandlers::cboFrequency_Click(int index) { StoreChoice({Frequency, Row{index}}); }
void FieldHandlers::cboFrequency_LostFocus(int index) { LeaveChoice({Frequency, Row{index}}); }

void FieldHandlers::txtWho_GotFocus(int index) { EnterRow(index); }
bool FieldHandlers::txtWho_KeyDown(int index, int key) { return Move({Who, Row{index}}, key); }
/// An unchanged text is not stored, even if the field cannot show all of it.
void FieldHandlers::txtWho_LostFocus(int index) {
    const auto* edit = m_controls->ControlOf<QLineEdit>({Who, Row{index}});
    if (edit->isModified()) {
        m_worksheet->StoreWho(Row{index}, WithLenderLines(edit->text()));
    }
}

} // namespace quend::window
