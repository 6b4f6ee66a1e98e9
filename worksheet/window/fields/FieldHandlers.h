#pragma once

#include "FieldValue.h"
#include "WindowNames.h"

#include <QChar>

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class ControlMap;
class FieldBehaviour;

/// The control events of the worksheet, each named after its control. They only identify the field;
/// FieldBehaviour and the worksheet do the work. Handlers of offers take the row. They throw what
/// the worksheet throws.
class FieldHandlers {
public:
    FieldHandlers(Worksheet& worksheet, const ControlMap& controls, FieldBehaviour& behaviour);

    /// Passes an event of a field to the handler of its control. A control without such a handler
    /// ignores the event: keys and checks then pass.
    void GotFocus(Field field);
    bool KeyPress(Field field, QChar key);
    /// The character that the decimal key of the number pad types.
    QChar DecimalSeparator() const;
    bool Validate(Field field);
    void LostFocus(Field field);
    void Click(Field field);
    /// True if the key has been handled.
    bool KeyDown(Field field, int key);
    bool KeyUp(Field field, int key);

    // The loan wanted and the current loan.
    void cboLoanName_GotFocus();
    void cboLoanName_LostFocus();
    void cboLoanType_Click();
    void cboLoanType_LostFocus();
    void cboCurPaymentFrequency_Click();
    void cboCurPaymentFrequency_LostFocus();
    void cboActPaymentFrequency_Click();
    void cboActPaymentFrequency_LostFocus();
    void dtNextPayment_GotFocus();
    bool dtNextPayment_KeyPress(QChar key);
    bool dtNextPayment_Validate();
    void dtNextPayment_LostFocus();
    void dtNextPayment_Change();
    void txtLoanAmount_GotFocus();
    bool txtLoanAmount_KeyPress(QChar key);
    bool txtLoanAmount_Validate();
    void txtLoanAmount_LostFocus();
    void txtLoanTerm_GotFocus();
    bool txtLoanTerm_KeyPress(QChar key);
    bool txtLoanTerm_Validate();
    void txtLoanTerm_LostFocus();
    void txtAnnualTaxes_GotFocus();
    bool txtAnnualTaxes_KeyPress(QChar key);
    bool txtAnnualTaxes_Validate();
    void txtAnnualTaxes_LostFocus();
    void txtAnnualInsurance_GotFocus();
    bool txtAnnualInsurance_KeyPress(QChar key);
    bool txtAnnualInsurance_Validate();
    void txtAnnualInsurance_LostFocus();
    void txtCurLoanAmount_GotFocus();
    bool txtCurLoanAmount_KeyPress(QChar key);
    bool txtCurLoanAmount_Validate();
    void txtCurLoanAmount_LostFocus();
    void txtCurLoanTerm_GotFocus();
    bool txtCurLoanTerm_KeyPress(QChar key);
    bool txtCurLoanTerm_Validate();
    void txtCurLoanTerm_LostFocus();
    void txtCurInterestRate_GotFocus();
    bool txtCurInterestRate_KeyPress(QChar key);
    bool txtCurInterestRate_Validate();
    void txtCurInterestRate_LostFocus();
    void txtCurrentBalance_GotFocus();
    bool txtCurrentBalance_KeyPress(QChar key);
    bool txtCurrentBalance_Validate();
    void txtCurrentBalance_LostFocus();
    void txtCurActualPayment_GotFocus();
    bool txtCurActualPayment_KeyPress(QChar key);
    bool txtCurActualPayment_Validate();
    void txtCurActualPayment_LostFocus();

    // One row of offers.
    void chkPoints_Click(int index);
    void chkPoints_GotFocus(int index);
    void chkPoints_LostFocus(int index);
    void txtPoints_GotFocus(int index);
    bool txtPoints_KeyPress(int index, QChar key);
    bool txtPoints_KeyDown(int index, int key);
    bool txtPoints_Validate(int index);
    void txtPoints_LostFocus(int index);
    void txtInterestRate_GotFocus(int index);
    bool txtInterestRate_KeyPress(int index, QChar key);
    bool txtInterestRate_KeyUp(int index, int key);
    bool txtInterestRate_Validate(int index);
    void txtInterestRate_LostFocus(int index);
    void txtTerm_GotFocus(int index);
    bool txtTerm_KeyPress(int index, QChar key);
    bool txtTerm_KeyUp(int index, int key);
    bool txtTerm_Validate(int index);
    void txtTerm_LostFocus(int index);
    void txtActualPayment_GotFocus(int index);
    bool txtActualPayment_KeyPress(int index, QChar key);
    bool txtActualPayment_KeyUp(int index, int key);
    bool txtActualPayment_Validate(int index);
    void txtActualPayment_LostFocus(int index);
    void cboFrequency_GotFocus(int index);
    void cboFrequency_Click(int index);
    void cboFrequency_LostFocus(int index);
    void txtWho_GotFocus(int index);
    bool txtWho_KeyDown(int index, int key);
    void txtWho_LostFocus(int index);

private:
    using enum FieldId;

    void StoreChoice(Field field);
    void LeaveChoice(Field field);
    FieldValue ChosenIn(Field field) const;
    bool IsTicked(Field field) const;

    Worksheet* m_worksheet;
    const ControlMap* m_controls;
    FieldBehaviour* m_fields;
};

} // namespace quend::window
