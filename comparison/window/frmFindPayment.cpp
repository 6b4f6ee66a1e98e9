#include "frmFindPayment.h"

#include "AmountRules.h"
#include "CalendarDate.h"
#include "Captions.h"
#include "CompareTextNumbers.h"
#include "DateWriting.h"
#include "Language.h"
#include "TextNumbers.h"
#include "Worksheet.h"
#include "ui_frmFindPayment.h"

#include <algorithm>

namespace quend::compare {

namespace {

using Kind = PaymentQuestion::Kind;

} // namespace

frmFindPayment::frmFindPayment(const ComparedWorksheet& compared, const Worksheet& worksheet,
                               int place, MessageQueue& messages, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmFindPayment>()), m_compared(&compared),
      m_worksheet(&worksheet) {
    m_ui->setupUi(this);
    m_payment = std::make_unique<AmountEntry>(*m_ui->txtPayment, AmountRules(worksheet, messages));
    Form_Load(place);
    Wire();
    ShowAnswer();
}

frmFindPayment::~frmFindPayment() = default;

void frmFindPayment::Form_Load(int place) {
    ApplyTexts(*this, TermUnit::Years);
    for (const int asked : PlacesToAskAbout(*m_compared)) {
        m_ui->cboLoan->addItem(NameOfLoan(*m_compared, asked), asked);
    }
    m_ui->cboLoan->setCurrentIndex(std::max(0, m_ui->cboLoan->findData(place)));
    m_ui->udYears->setValue(m_compared->input.years);
    m_ui->dtEnd->SetWriting(DateWritingOf(*m_worksheet));
    m_ui->dtEnd->ShowDate(ToCalendar(HorizonDay(m_compared->input.today, m_compared->input.years)));
}

void frmFindPayment::Wire() {
    const auto ask = [this] { ShowAnswer(); };
    connect(m_ui->cboLoan, &QComboBox::currentIndexChanged, this, ask);
    connect(m_ui->udYears, &QSpinBox::valueChanged, this, [this] {
        m_ui->optYears->setChecked(true);
        ShowAnswer();
    });
    const auto askByDate = [this] {
        m_ui->optDate->setChecked(true);
        ShowAnswer();
    };
    connect(m_ui->dtEnd, &DatePicker::Picked, this, askByDate);
    connect(&m_ui->dtEnd->Edit(), &QLineEdit::textEdited, this, askByDate);
    connect(m_payment.get(), &AmountEntry::Entered, this, ask);
    for (const QRadioButton* kind :
         {m_ui->optYears, m_ui->optDate, m_ui->optAmount, m_ui->optRate}) {
        connect(kind, &QRadioButton::toggled, this, ask);
    }
    connect(m_ui->cmdUse, &QPushButton::clicked, this, &frmFindPayment::cmdUse_Click);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

int frmFindPayment::Place() const { return m_ui->cboLoan->currentData().toInt(); }

/// None while no loan can be asked about, or the date is not one.
std::optional<PaymentQuestion> frmFindPayment::Asked() const {
    if (m_ui->cboLoan->currentIndex() < 0) {
        return std::nullopt;
    }
    PaymentQuestion question{.kind = m_ui->optYears->isChecked()    ? Kind::PaymentByYears
                                     : m_ui->optDate->isChecked()   ? Kind::PaymentByDate
                                     : m_ui->optAmount->isChecked() ? Kind::AmountAfforded
                                                                    : Kind::RateNeeded,
                             .place = Place(),
                             .years = m_ui->udYears->value(),
                             .day = {},
                             .payment = m_payment->Value()};
    if (question.kind == Kind::PaymentByDate) {
        const auto day = ReadTypedDate(m_ui->dtEnd->Edit().text(), m_worksheet->Texts().Formats(),
                                       m_worksheet->Today());
        if (!day) {
            return std::nullopt;
        }
        question.day = *day;
    }
    return question;
}

void frmFindPayment::ShowAnswer() {
    // Nothing is solved for the loan held today but its payment.
    const bool isOffer = m_ui->cboLoan->currentIndex() >= 0 && Place() != CurrentLoanPlace;
    const bool asksForPayment = m_ui->optYears->isChecked() || m_ui->optDate->isChecked();
    m_ui->optAmount->setEnabled(isOffer);
    m_ui->optRate->setEnabled(isOffer);
    if (!isOffer && !asksForPayment) {
        m_ui->optYears->setChecked(true);
        return; // its signal shows the answer
    }
    m_ui->txtPayment->setEnabled(!asksForPayment);
    const auto question = Asked();
    m_answer = {};
    if (question) {
        const bool lacksPayment = !asksForPayment && question->payment.IsZero();
        m_answer = lacksPayment ? PaymentAnswer{GetResourceText(TextNumber::EnterAPayment), {}, {}}
                                : AnswerTo(*question, *m_compared, m_worksheet->Texts().Formats());
    } else {
        m_answer.sentence = GetResourceText(
            m_ui->cboLoan->count() == 0 ? TextNumber::NoLoanToAskAbout : TextNumber::EnterADate);
    }
    m_ui->lblFound->setText(m_answer.sentence);
    m_ui->cmdUse->setEnabled(m_answer.value.has_value());
}

void frmFindPayment::cmdUse_Click() {
    if (m_payment->Commit() && m_answer.value) {
        accept();
    }
}

} // namespace quend::compare
