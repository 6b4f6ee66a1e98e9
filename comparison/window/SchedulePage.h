#pragma once

#include "ComparePage.h"
#include "ScheduleModel.h"

#include <memory>

namespace Ui {
class SchedulePage;
}

namespace quend::compare {

/// The payments of one loan.
class SchedulePage : public ComparePage {
    Q_OBJECT

public:
    explicit SchedulePage(DisplayFormats formats);
    Q_DISABLE_COPY_MOVE(SchedulePage)
    ~SchedulePage() override;

    void Show(const ComparedWorksheet& worksheet) override;
    const FigureTable& Table() const override;
    QString Title() const override;
    std::unique_ptr<printing::Drawing> Draw(const printing::Paper& paper) const override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void FillLoans();
    void ShowSchedule();
    QString Note() const;

    std::unique_ptr<Ui::SchedulePage> m_ui;
    DisplayFormats m_formats;
    ScheduleModel m_model;
    const ComparedWorksheet* m_worksheet = nullptr;
};

} // namespace quend::compare
