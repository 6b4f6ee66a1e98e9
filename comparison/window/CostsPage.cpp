#include "CostsPage.h"

#include "AmountRules.h"
#include "Answer.h"
#include "CompareTextNumbers.h"
#include "Explanation.h"
#include "FigureTable.h"
#include "Language.h"
#include "PaperTable.h"
#include "TableRoles.h"
#include "WhyLeftOut.h"
#include "Worksheet.h"
#include "ui_CostsPage.h"

namespace quend::compare {

namespace {

/// One line for each loan that is left out.
QStringList WhyLeftOutLines(const ComparedWorksheet& worksheet, const DisplayFormats& formats) {
    QStringList lines;
    std::vector<int> places = worksheet.rows;
    places.push_back(CurrentLoanPlace);
    for (const int place : places) {
        const QString why = WhyLeftOut(worksheet, place, formats);
        if (!why.isEmpty()) {
            lines << why;
        }
    }
    return lines;
}

} // namespace

CostsPage::CostsPage(const Worksheet& sheet, MessageQueue& messages)
    : m_ui(std::make_unique<Ui::CostsPage>()), m_sheet(&sheet), m_messages(&messages),
      m_model([this](int place, const QString& text) { return TakeCosts(place, text); }),
      m_order(sheet.Texts().Formats().Locale()) {
    m_ui->setupUi(this);
    m_order.setSourceModel(&m_model);
    m_ui->tblCosts->setModel(&m_order);
    m_ui->tblCosts->AllowKeys(
        // A credit of the lender is negative.
        [this](QChar key) {
            return key == u'-' || m_sheet->Texts().AllowsKey(FieldId::Costs, key);
        });
    connect(m_ui->tblCosts, &FigureTable::CurrentFigureChanged, this, &CostsPage::Explain);
}

CostsPage::~CostsPage() = default;

void CostsPage::Show(const ComparedWorksheet& worksheet) {
    m_worksheet = &worksheet;
    m_model.Set(worksheet, m_sheet->Texts().Formats());
    ShowLeftOut();
    ExplainCurrent();
}

void CostsPage::ShowLeftOut() {
    const QStringList lines = WhyLeftOutLines(*m_worksheet, m_sheet->Texts().Formats());
    m_ui->lblLeftOut->setVisible(!lines.isEmpty());
    m_ui->lblLeftOut->setText(GetResourceText(TextNumber::CompareLeftOut) + u'\n' +
                              lines.join(u'\n'));
}

void CostsPage::ExplainCurrent() {
    const QModelIndex current = m_ui->tblCosts->currentIndex();
    const QVariant place = current.data(PlaceRole);
    if (place.isValid()) {
        Explain(place.toInt(), static_cast<Figure>(current.data(FigureRole).toInt()));
    } else {
        m_ui->lblExplanation->setText(GetResourceText(TextNumber::CompareSelectFigure));
    }
}

void CostsPage::Explain(int place, Figure figure) {
    m_ui->lblExplanation->setText(
        ExplanationOf(*m_worksheet, figure, place, m_sheet->Texts().Formats()));
}

bool CostsPage::TakeCosts(int place, const QString& text) {
    const std::optional<Money> costs = ReadAmount(*m_sheet, text, *m_messages);
    if (costs) {
        Q_EMIT CostsEntered(place, *costs);
    }
    return costs.has_value();
}

const FigureTable& CostsPage::Table() const { return *m_ui->tblCosts; }

QString CostsPage::Title() const {
    const QString name = m_worksheet->name.simplified();
    return name.isEmpty() ? GetResourceText(TextNumber::CompareTitleUnnamed)
                          : GetResourceText(TextNumber::CompareTitle).arg(name);
}

std::unique_ptr<printing::Drawing> CostsPage::Draw(const printing::Paper& paper) const {
    const DisplayFormats& formats = m_sheet->Texts().Formats();
    QStringList paragraphs{AnswerOf(*m_worksheet, formats).join(u' ')};
    const QStringList leftOut = WhyLeftOutLines(*m_worksheet, formats);
    if (!leftOut.isEmpty()) {
        paragraphs << GetResourceText(TextNumber::CompareLeftOut) << leftOut;
    }
    return printing::DrawingOf(PaperTableOf(*m_ui->tblCosts, Title(), paragraphs), paper);
}

bool CostsPage::CommitEntry() { return m_ui->tblCosts->CommitEntry(); }

QByteArray CostsPage::SaveColumns() const { return m_ui->tblCosts->SaveColumns(); }

void CostsPage::RestoreColumns(const QByteArray& columns) {
    m_ui->tblCosts->RestoreColumns(columns);
}

} // namespace quend::compare
