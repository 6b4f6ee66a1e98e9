#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include <QDialog>

#include "AmountEntry.h"
#include "FindPayment.h"

#include <memory>
#include <optional>

namespace Ui {
class frmFindPayment;
}

namespace quend::model {
class Worksheet;
}

namespace quend::window {
class MessageQueue;
}

namespace quend::compare {

/// Asks what payment ends a loan, what amount a payment affords and what rate it needs, and shows
/// the answer while the question is typed. Changes nothing in the worksheet.
class frmFindPayment : public QDialog {
    Q_OBJECT

public:
    /// Both worksheets, which are the same one, must outlive the dialog. `place`: the loan asked
    /// about first.
    frmFindPayment(const ComparedWorksheet& compared, const Worksheet& worksheet, int place,
                   MessageQueue& messages, QWidget* parent);
    Q_DISABLE_COPY_MOVE(frmFindPayment)
    ~frmFindPayment() override;

    /// What the user chose to use, after the dialog was accepted.
    const PaymentAnswer& Answer() const { return m_answer; }
    int Place() const;

private:
    void Form_Load(int place);
    void Wire();
    void cmdUse_Click();
    std::optional<PaymentQuestion> Asked() const;
    void ShowAnswer();

    std::unique_ptr<Ui::frmFindPayment> m_ui;
    const ComparedWorksheet* m_compared;
    const Worksheet* m_worksheet;
    std::unique_ptr<AmountEntry> m_payment;
    PaymentAnswer m_answer;
};

} // namespace quend::compare
