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

namespace {

using Handlers = FieldHandlers;

/// The handlers of one control; those of a row take its index first. Null: no such handler.
template <class... Index>
struct Events {
    FieldId field = FieldId::Who;
    void (Handlers::*gotFocus)(Index...) = nullptr;
    bool (Handlers::*keyPress)(Index..., QChar) = nullptr;
    bool (Handlers::*validate)(Index...) = nullptr;
    void (Handlers::*lostFocus)(Index...) = nullptr;
    void (Handlers::*click)(Index...) = nullptr;
    bool (Handlers::*keyDown)(Index..., int) = nullptr;
    bool (Handlers::*keyUp)(Index..., int) = nullptr;
};

constexpr auto LoanEvents = [] {
    using enum FieldId;
    return std::array{
        Events<>{.field = LoanName,
                 .gotFocus = &Handlers::cboLoanName_GotFocus,
                 .lostFocus = &Handlers::cboLoanName_LostFocus},
        Events<>{.field = LoanType,
                 .lostFocus = &Handlers::cboLoanType_LostFocus,
                 .click = &Handlers::cboLoanType_Click},
        Events<>{LoanAmount, &Handlers::txtLoanAmount_GotFocus, &Handlers::txtLoanAmount_KeyPress,
                 &Handlers::txtLoanAmount_Validate, &Handlers::txtLoanAmount_LostFocus},
        Events<>{LoanTerm, &Handlers::txtLoanTerm_GotFocus, &Handlers::txtLoanTerm_KeyPress,
                 &Handlers::txtLoanTerm_Validate, &Handlers::txtLoanTerm_LostFocus},
        Events<>{AnnualTaxes, &Handlers::txtAnnualTaxes_GotFocus,
                 &Handlers::txtAnnualTaxes_KeyPress, &Handlers::txtAnnualTaxes_Validate,
                 &Handlers::txtAnnualTaxes_LostFocus},
        Events<>{AnnualInsurance, &Handlers::txtAnnualInsurance_GotFocus,
                 &Handlers::txtAnnualInsurance_KeyPress, &Handlers::txtAnnualInsurance_Validate,
                 &Handlers::txtAnnualInsurance_LostFocus},
        Events<>{CurLoanAmount, &Handlers::txtCurLoanAmount_GotFocus,
                 &Handlers::txtCurLoanAmount_KeyPress, &Handlers::txtCurLoanAmount_Validate,
                 &Handlers::txtCurLoanAmount_LostFocus},
        Events<>{CurLoanTerm, &Handlers::txtCurLoanTerm_GotFocus,
                 &Handlers::txtCurLoanTerm_KeyPress, &Handlers::txtCurLoanTerm_Validate,
                 &Handlers::txtCurLoanTerm_LostFocus},
        Events<>{CurInterestRate, &Handlers::txtCurInterestRate_GotFocus,
                 &Handlers::txtCurInterestRate_KeyPress, &Handlers::txtCurInterestRate_Validate,
                 &Handlers::txtCurInterestRate_LostFocus},
        Events<>{CurrentBalance, &Handlers::txtCurrentBalance_GotFocus,
                 &Handlers::txtCurrentBalance_KeyPress, &Handlers::txtCurrentBalance_Validate,
                 &Handlers::txtCurrentBalance_LostFocus},
        Events<>{CurActualPayment, &Handlers::txtCurActualPayment_GotFocus,
                 &Handlers::txtCurActualPayment_KeyPress, &Handlers::txtCurActualPayment_Validate,
                 &Handlers::txtCurActualPayment_LostFocus},
        Events<>{.field = CurPaymentFrequency,
                 .lostFocus = &Handlers::cboCurPaymentFrequency_LostFocus,
                 .click = &Handlers::cboCurPaymentFrequency_Click},
        Events<>{.field = ActPaymentFrequency,
                 .lostFocus = &Handlers::cboActPaymentFrequency_LostFocus,
                 .click = &Handlers::cboActPaymentFrequency_Click},
        Events<>{.field = NextPayment,
                 .gotFocus = &Handlers::dtNextPayment_GotFocus,
                 .keyPress = &Handlers::dtNextPayment_KeyPress,
                 .validate = &Handlers::dtNextPayment_Validate,
                 .lostFocus = &Handlers::dtNextPayment_LostFocus,
                 .click = &Handlers::dtNextPayment_Change},
    };
}();

constexpr auto OfferEvents = [] {
    using enum FieldId;
    return std::array{
        Events<int>{.field = FinancePoints,
                    .gotFocus = &Handlers::chkPoints_GotFocus,
                    .lostFocus = &Handlers::chkPoints_LostFocus,
                    .click = &Handlers::chkPoints_Click},
        Events<int>{.field = Points,
                    .gotFocus = &Handlers::txtPoints_GotFocus,
                    .keyPress = &Handlers::txtPoints_KeyPress,
                    .validate = &Handlers::txtPoints_Validate,
                    .lostFocus = &Handlers::txtPoints_LostFocus,
                    .keyDown = &Handlers::txtPoints_KeyDown},
        Events<int>{.field = InterestRate,
                    .gotFocus = &Handlers::txtInterestRate_GotFocus,
                    .keyPress = &Handlers::txtInterestRate_KeyPress,
                    .validate = &Handlers::txtInterestRate_Validate,
                    .lostFocus = &Handlers::txtInterestRate_LostFocus,
                    .keyUp = &Handlers::txtInterestRate_KeyUp},
        Events<int>{.field = Term,
                    .gotFocus = &Handlers::txtTerm_GotFocus,
                    .keyPress = &Handlers::txtTerm_KeyPress,
                    .validate = &Handlers::txtTerm_Validate,
                    .lostFocus = &Handlers::txtTerm_LostFocus,
                    .keyUp = &Handlers::txtTerm_KeyUp},
        Events<int>{.field = ActualPayment,
                    .gotFocus = &Handlers::txtActualPayment_GotFocus,
                    .keyPress = &Handlers::txtActualPayment_KeyPress,
                    .validate = &Handlers::txtActualPayment_Validate,
                    .lostFocus = &Handlers::txtActualPayment_LostFocus,
                    .keyUp = &Handlers::txtActualPayment_KeyUp},
        Events<int>{.field = Frequency,
                    .gotFocus = &Handlers::cboFrequency_GotFocus,
                    .lostFocus = &Handlers::cboFrequency_LostFocus,
                    .click = &Handlers::cboFrequency_Click},
        Events<int>{.field = Who,
                    .gotFocus = &Handlers::txtWho_GotFocus,
                    .lostFocus = &Handlers::txtWho_LostFocus,
                    .keyDown = &Handlers::txtWho_KeyDown},
    };
}();

/// Calls the handler that `loan` or `offer` selects in the field's table row; `otherwise` is the
/// result for a control without one.
template <class LoanHandler, class OfferHandler, class... Args>
auto Call(Handlers& handlers, Field field, LoanHandler Events<>::*loan,
          OfferHandler Events<int>::*offer, bool otherwise, Args... args) {
    using Result = std::invoke_result_t<LoanHandler, Handlers&, Args...>;
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
                             FieldBehaviour& behaviour)
    : m_worksheet(&worksheet), m_controls(&controls), m_fields(&behaviour) {}

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

void FieldHandlers::StoreChoice(Field field) { m_worksheet->Store(field, ChosenIn(field)); }
void FieldHandlers::LeaveChoice(Field field) { m_worksheet->StoreAgain(field, ChosenIn(field)); }

/// Also the name of the worksheet, which may be typed.
FieldValue FieldHandlers::ChosenIn(Field field) const {
    const QString text = m_controls->ControlOf<QComboBox>(field)->currentText();
    return m_worksheet->Texts().Read(RuleOf(field.id).kind, text);
}

bool FieldHandlers::IsTicked(Field field) const {
    return m_controls->ControlOf<QCheckBox>(field)->isChecked();
}

void FieldHandlers::cboLoanName_GotFocus() {
    m_controls->ControlOf<LoanNameBox>({LoanName})->SelectAll();
}
/// A name removes the mark of a missing name.
void FieldHandlers::cboLoanName_LostFocus() {
    StoreChoice({LoanName});
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

void FieldHandlers::dtNextPayment_GotFocus() { m_fields->Enter({NextPayment}); }
bool FieldHandlers::dtNextPayment_KeyPress(QChar key) {
    return m_fields->Allows({NextPayment}, key);
}
bool FieldHandlers::dtNextPayment_Validate() { return m_fields->Check({NextPayment}); }
void FieldHandlers::dtNextPayment_LostFocus() { m_fields->Leave({NextPayment}); }
void FieldHandlers::dtNextPayment_Change() {
    const auto* picker = m_controls->ControlOf<DatePicker>({NextPayment});
    m_worksheet->Store({NextPayment}, FromCalendar(picker->Shown()));
}

void FieldHandlers::txtLoanAmount_GotFocus() { m_fields->Enter({LoanAmount}); }
bool FieldHandlers::txtLoanAmount_KeyPress(QChar key) {
    return m_fields->Allows({LoanAmount}, key);
}
bool FieldHandlers::txtLoanAmount_Validate() { return m_fields->Check({LoanAmount}); }
void FieldHandlers::txtLoanAmount_LostFocus() { m_fields->Leave({LoanAmount}); }

void FieldHandlers::txtLoanTerm_GotFocus() { m_fields->Enter({LoanTerm}); }
bool FieldHandlers::txtLoanTerm_KeyPress(QChar key) { return m_fields->Allows({LoanTerm}, key); }
bool FieldHandlers::txtLoanTerm_Validate() { return m_fields->Check({LoanTerm}); }
void FieldHandlers::txtLoanTerm_LostFocus() { m_fields->Leave({LoanTerm}); }

void FieldHandlers::txtAnnualTaxes_GotFocus() { m_fields->Enter({AnnualTaxes}); }
bool FieldHandlers::txtAnnualTaxes_KeyPress(QChar key) {
    return m_fields->Allows({AnnualTaxes}, key);
}
bool FieldHandlers::txtAnnualTaxes_Validate() { return m_fields->Check({AnnualTaxes}); }
void FieldHandlers::txtAnnualTaxes_LostFocus() { m_fields->Leave({AnnualTaxes}); }

void FieldHandlers::txtAnnualInsurance_GotFocus() { m_fields->Enter({AnnualInsurance}); }
bool FieldHandlers::txtAnnualInsurance_KeyPress(QChar key) {
    return m_fields->Allows({AnnualInsurance}, key);
}
bool FieldHandlers::txtAnnualInsurance_Validate() { return m_fields->Check({AnnualInsurance}); }
void FieldHandlers::txtAnnualInsurance_LostFocus() { m_fields->Leave({AnnualInsurance}); }

void FieldHandlers::txtCurLoanAmount_GotFocus() { m_fields->Enter({CurLoanAmount}); }
bool FieldHandlers::txtCurLoanAmount_KeyPress(QChar key) {
    return m_fields->Allows({CurLoanAmount}, key);
}
bool FieldHandlers::txtCurLoanAmount_Validate() { return m_fields->Check({CurLoanAmount}); }
void FieldHandlers::txtCurLoanAmount_LostFocus() { m_fields->Leave({CurLoanAmount}); }

void FieldHandlers::txtCurLoanTerm_GotFocus() { m_fields->Enter({CurLoanTerm}); }
bool FieldHandlers::txtCurLoanTerm_KeyPress(QChar key) {
    return m_fields->Allows({CurLoanTerm}, key);
}
bool FieldHandlers::txtCurLoanTerm_Validate() { return m_fields->Check({CurLoanTerm}); }
void FieldHandlers::txtCurLoanTerm_LostFocus() { m_fields->Leave({CurLoanTerm}); }

void FieldHandlers::txtCurInterestRate_GotFocus() { m_fields->Enter({CurInterestRate}); }
bool FieldHandlers::txtCurInterestRate_KeyPress(QChar key) {
    return m_fields->Allows({CurInterestRate}, key);
}
bool FieldHandlers::txtCurInterestRate_Validate() { return m_fields->Check({CurInterestRate}); }
void FieldHandlers::txtCurInterestRate_LostFocus() { m_fields->Leave({CurInterestRate}); }

void FieldHandlers::txtCurrentBalance_GotFocus() { m_fields->Enter({CurrentBalance}); }
bool FieldHandlers::txtCurrentBalance_KeyPress(QChar key) {
    return m_fields->Allows({CurrentBalance}, key);
}
bool FieldHandlers::txtCurrentBalance_Validate() { return m_fields->Check({CurrentBalance}); }
void FieldHandlers::txtCurrentBalance_LostFocus() { m_fields->Leave({CurrentBalance}); }

void FieldHandlers::txtCurActualPayment_GotFocus() { m_fields->Enter({CurActualPayment}); }
bool FieldHandlers::txtCurActualPayment_KeyPress(QChar key) {
    return m_fields->Allows({CurActualPayment}, key);
}
bool FieldHandlers::txtCurActualPayment_Validate() { return m_fields->Check({CurActualPayment}); }
void FieldHandlers::txtCurActualPayment_LostFocus() { m_fields->Leave({CurActualPayment}); }

void FieldHandlers::chkPoints_Click(int index) {
    const Field field{FinancePoints, Row{index}};
    m_worksheet->Store(field, IsTicked(field));
}
void FieldHandlers::chkPoints_GotFocus(int index) { m_fields->EnterRow(Row{index}); }
/// A ticked box is stored and recalculated whenever it is left, an unticked one only if the offer
/// is still ticked.
void FieldHandlers::chkPoints_LostFocus(int index) {
    const Field field{FinancePoints, Row{index}};
    if (IsTicked(field) || !IsZero(m_worksheet->Value(field))) {
        m_worksheet->StoreAgain(field, IsTicked(field));
    }
}

void FieldHandlers::txtPoints_GotFocus(int index) { m_fields->Enter({Points, Row{index}}); }
bool FieldHandlers::txtPoints_KeyPress(int index, QChar key) {
    return m_fields->Allows({Points, Row{index}}, key);
}
bool FieldHandlers::txtPoints_KeyDown(int index, int key) {
    return m_fields->MoveByArrow({Points, Row{index}}, key);
}
bool FieldHandlers::txtPoints_Validate(int index) { return m_fields->Check({Points, Row{index}}); }
void FieldHandlers::txtPoints_LostFocus(int index) { m_fields->Leave({Points, Row{index}}); }

void FieldHandlers::txtInterestRate_GotFocus(int index) {
    m_fields->Enter({InterestRate, Row{index}});
}
bool FieldHandlers::txtInterestRate_KeyPress(int index, QChar key) {
    return m_fields->Allows({InterestRate, Row{index}}, key);
}
bool FieldHandlers::txtInterestRate_KeyUp(int index, int key) {
    return m_fields->MoveByArrow({InterestRate, Row{index}}, key);
}
bool FieldHandlers::txtInterestRate_Validate(int index) {
    return m_fields->Check({InterestRate, Row{index}});
}
void FieldHandlers::txtInterestRate_LostFocus(int index) {
    m_fields->Leave({InterestRate, Row{index}});
}

void FieldHandlers::txtTerm_GotFocus(int index) { m_fields->Enter({Term, Row{index}}); }
bool FieldHandlers::txtTerm_KeyPress(int index, QChar key) {
    return m_fields->Allows({Term, Row{index}}, key);
}
bool FieldHandlers::txtTerm_KeyUp(int index, int key) {
    return m_fields->MoveByArrow({Term, Row{index}}, key);
}
bool FieldHandlers::txtTerm_Validate(int index) { return m_fields->Check({Term, Row{index}}); }
void FieldHandlers::txtTerm_LostFocus(int index) { m_fields->Leave({Term, Row{index}}); }

void FieldHandlers::txtActualPayment_GotFocus(int index) {
    m_fields->Enter({ActualPayment, Row{index}});
}
bool FieldHandlers::txtActualPayment_KeyPress(int index, QChar key) {
    return m_fields->Allows({ActualPayment, Row{index}}, key);
}
bool FieldHandlers::txtActualPayment_KeyUp(int index, int key) {
    return m_fields->MoveByArrow({ActualPayment, Row{index}}, key);
}
bool FieldHandlers::txtActualPayment_Validate(int index) {
    return m_fields->Check({ActualPayment, Row{index}});
}
void FieldHandlers::txtActualPayment_LostFocus(int index) {
    m_fields->Leave({ActualPayment, Row{index}});
}

void FieldHandlers::cboFrequency_GotFocus(int index) { m_fields->EnterRow(Row{index}); }
void FieldHandlers::cboFrequency_Click(int index) { StoreChoice({Frequency, Row{index}}); }
void FieldHandlers::cboFrequency_LostFocus(int index) { LeaveChoice({Frequency, Row{index}}); }

void FieldHandlers::txtWho_GotFocus(int index) { m_fields->EnterRow(Row{index}); }
bool FieldHandlers::txtWho_KeyDown(int index, int key) {
    return m_fields->MoveByArrow({Who, Row{index}}, key);
}
/// An unchanged text is not stored, even if the field cannot show all of it.
void FieldHandlers::txtWho_LostFocus(int index) {
    const auto* edit = m_controls->ControlOf<QLineEdit>({Who, Row{index}});
    if (edit->isModified()) {
        m_worksheet->Store({Who, Row{index}}, WithLenderLines(edit->text()));
    }
}

} // namespace quend::window
