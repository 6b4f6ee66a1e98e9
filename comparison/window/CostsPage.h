#pragma once

#include "ComparePage.h"
#include "CostsModel.h"
#include "Figures.h"
#include "NoneLastOrder.h"

#include <memory>

namespace Ui {
class CostsPage;
}

namespace quend::model {
class Worksheet;
}

namespace quend::window {
class MessageQueue;
}

namespace quend::compare {

/// The costs of all loans, a column a figure; the loans left out, and why; and how the selected
/// figure came about.
class CostsPage : public ComparePage {
    Q_OBJECT

public:
    /// Both must outlive the page.
    CostsPage(const Worksheet& sheet, MessageQueue& messages);
    Q_DISABLE_COPY_MOVE(CostsPage)
    ~CostsPage() override;

    void Show(const ComparedWorksheet& worksheet) override;
    const FigureTable& Table() const override;
    QString Title() const override;
    std::unique_ptr<printing::Drawing> Draw(const printing::Paper& paper) const override;

    /// Stores costs that are being typed. False: they were refused, and are still being edited.
    bool CommitEntry();
    QByteArray SaveColumns() const;
    void RestoreColumns(const QByteArray& columns);

Q_SIGNALS:
    void CostsEntered(int place, quend::calc::Money costs);

private:
    bool TakeCosts(int place, const QString& text);
    void ShowLeftOut();
    void Explain(int place, Figure figure);
    void ExplainCurrent();

    std::unique_ptr<Ui::CostsPage> m_ui;
    const Worksheet* m_sheet;
    MessageQueue* m_messages;
    CostsModel m_model;
    NoneLastOrder m_order;
    const ComparedWorksheet* m_worksheet = nullptr;
};

} // namespace quend::compare
