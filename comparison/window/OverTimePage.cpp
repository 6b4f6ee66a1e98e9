#include "OverTimePage.h"

#include "Chart.h"
#include "ChartWidget.h"
#include "CompareTextNumbers.h"
#include "FigureTable.h"
#include "Language.h"
#include "PaperTable.h"
#include "TablePages.h"
#include "ui_OverTimePage.h"

#include <utility>

namespace quend::compare {

OverTimePage::OverTimePage(DisplayFormats formats)
    : m_ui(std::make_unique<Ui::OverTimePage>()), m_formats(std::move(formats)) {
    m_ui->setupUi(this);
    m_ui->tblOverTime->setModel(&m_model);
    m_ui->tblOverTime->ShowRowHeadings();
    connect(m_ui->optCost, &QRadioButton::toggled, this, [this] { ShowLines(); });
    connect(m_ui->chkTable, &QCheckBox::toggled, m_ui->stkOverTime,
            [this](bool table) { m_ui->stkOverTime->setCurrentIndex(table ? 1 : 0); });
    connect(m_ui->chtOverTime, &ChartWidget::HorizonChanged, this, &OverTimePage::HorizonChanged);
}

OverTimePage::~OverTimePage() = default;

void OverTimePage::Show(const ComparedWorksheet& worksheet) {
    m_worksheet = &worksheet;
    m_isDue = true;
    if (isVisible()) {
        ShowLines();
    }
}

void OverTimePage::showEvent(QShowEvent* event) {
    ComparePage::showEvent(event);
    ShowLines();
}

void OverTimePage::ShowLines() {
    if (m_worksheet == nullptr) {
        return;
    }
    if (std::exchange(m_isDue, false)) {
        m_lines = OverTime(m_worksheet->input, m_worksheet->result.months);
    }
    ChartData shown = MakeChartData(
        *m_worksheet, m_lines, m_ui->optCost->isChecked() ? ChartShows::Cost : ChartShows::Balance);
    m_model.SetData(shown, m_formats);
    m_ui->chtOverTime->SetData(std::move(shown), m_formats);
}

const FigureTable& OverTimePage::Table() const { return *m_ui->tblOverTime; }

QString OverTimePage::Title() const {
    return GetResourceText(m_ui->optCost->isChecked() ? TextNumber::CostOverTimeTitle
                                                      : TextNumber::BalanceOverTimeTitle);
}

std::unique_ptr<printing::Drawing> OverTimePage::Draw(const printing::Paper& paper) const {
    const auto paint = [shown = m_ui->chtOverTime->Data(),
                        formats = m_formats](QPainter& painter, const QRectF& place) {
        PaintChart(painter, place, shown, formats, LookOfPaper(painter.font()));
    };
    return printing::DrawingOf(
        printing::PictureOnPaper{
            .title = Title(),
            .paragraphs = {},
            .paint = paint,
            .table =
                PaperTableOf(*m_ui->tblOverTime, GetResourceText(TextNumber::OverTimeTable), {})},
        paper);
}

} // namespace quend::compare
