#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include "ComparePage.h"

#include "ChartData.h"
#include "OverTimeModel.h"

#include <memory>
#include <vector>

namespace Ui {
class OverTimePage;
}

namespace quend::compare {

/// What the loans cost or still owe over time, as a chart and as a table.
class OverTimePage : public ComparePage {
    Q_OBJECT

public:
    explicit OverTimePage(DisplayFormats formats);
    Q_DISABLE_COPY_MOVE(OverTimePage)
    ~OverTimePage() override;

    void Show(const ComparedWorksheet& worksheet) override;
    const FigureTable& Table() const override;
    QString Title() const override;
    std::unique_ptr<printing::Drawing> Draw(const printing::Paper& paper) const override;

Q_SIGNALS:
    void HorizonChanged(int years);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowLines();

    std::unique_ptr<Ui::OverTimePage> m_ui;
    DisplayFormats m_formats;
    OverTimeModel m_model;
    const ComparedWorksheet* m_worksheet = nullptr;
    /// The lines of what was compared last; computed when the page is first visible.
    std::vector<LoanOverTime> m_lines;
    bool m_isDue = false;
};

} // namespace quend::compare
