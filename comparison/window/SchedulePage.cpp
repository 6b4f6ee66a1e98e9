#include "SchedulePage.h"

#include "CompareTextNumbers.h"
#include "FigureTable.h"
#include "Language.h"
#include "PaperTable.h"
#include "ui_SchedulePage.h"

#include <QSignalBlocker>

#include <algorithm>

#include <utility>

namespace quend::compare {

SchedulePage::SchedulePage(DisplayFormats formats)
    : m_ui(std::make_unique<Ui::SchedulePage>()), m_formats(std::move(formats)) {
    m_ui->setupUi(this);
    m_ui->tblSchedule->setModel(&m_model);
    connect(m_ui->cboLoan, &QComboBox::currentIndexChanged, this, [this] { ShowSchedule(); });
    connect(m_ui->optByYear, &QRadioButton::toggled, this, [this] { ShowSchedule(); });
}

SchedulePage::~SchedulePage() = default;

void SchedulePage::Show(const ComparedWorksheet& worksheet) {
    m_worksheet = &worksheet;
    FillLoans();
    ShowSchedule();
}

/// Keeps the chosen loan; at first the one that costs least.
void SchedulePage::FillLoans() {
    const QSignalBlocker filling(m_ui->cboLoan);
    const QVariant chosen = m_ui->cboLoan->currentIndex() >= 0
                                ? m_ui->cboLoan->currentData()
                                : QVariant(m_worksheet->result.cheapestByHorizon.value_or(0));
    m_ui->cboLoan->clear();
    for (const int place : PlacesThatTakePart(*m_worksheet)) {
        m_ui->cboLoan->addItem(NameOfLoan(*m_worksheet, place), place);
    }
    if (m_ui->cboLoan->count() > 0) {
        m_ui->cboLoan->setCurrentIndex(std::max(0, m_ui->cboLoan->findData(chosen)));
    }
    m_ui->cboLoan->setEnabled(m_ui->cboLoan->count() > 0);
}

void SchedulePage::showEvent(QShowEvent* event) {
    ComparePage::showEvent(event);
    ShowSchedule();
}

void SchedulePage::ShowSchedule() {
    if (m_worksheet == nullptr || !isVisible()) {
        return;
    }
    std::vector<ScheduleRow> rows;
    if (m_ui->cboLoan->currentIndex() >= 0) {
        rows = ScheduleOf(m_worksheet->input, m_ui->cboLoan->currentData().toInt())
                   .value_or(std::vector<ScheduleRow>());
    }
    m_model.Set(std::move(rows),
                m_ui->optByYear->isChecked() ? ScheduleModel::Rows::Years
                                             : ScheduleModel::Rows::Payments,
                m_formats);
    m_ui->lblNote->setText(Note());
}

QString SchedulePage::Note() const {
    if (m_ui->cboLoan->currentIndex() < 0) {
        return GetResourceText(TextNumber::ScheduleOfNone);
    }
    return GetResourceText(m_ui->cboLoan->currentData() == CurrentLoanPlace
                               ? TextNumber::ScheduleFromNextPayment
                               : TextNumber::ScheduleFromToday);
}

const FigureTable& SchedulePage::Table() const { return *m_ui->tblSchedule; }

QString SchedulePage::Title() const {
    if (m_ui->cboLoan->currentIndex() < 0) {
        return GetResourceText(TextNumber::ScheduleOfPayments);
    }
    if (m_ui->cboLoan->currentData() == CurrentLoanPlace) {
        return GetResourceText(TextNumber::ScheduleTitleCurrent);
    }
    return GetResourceText(TextNumber::ScheduleTitle).arg(m_ui->cboLoan->currentText());
}

std::unique_ptr<printing::Drawing> SchedulePage::Draw(const printing::Paper& paper) const {
    return printing::DrawingOf(PaperTableOf(*m_ui->tblSchedule, Title(), {Note()}), paper);
}

} // namespace quend::compare
