#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include <QWidget>

#include "CompareWorld.h"
#include "ComparedWorksheet.h"

#include <array>
#include <memory>

namespace Ui {
class frmCompare;
}

namespace quend::window {
class Loan;
}

namespace quend::compare {

class AmountEntry;
class ComparePage;
class CostsPage;
class OverTimePage;
class SchedulePage;

/// The comparison window: which offer to take, in words, and the pages that show why. It is beside
/// the main window and reads what follows from the worksheet; it computes nothing and stores
/// nothing in the worksheet.
class frmCompare : public QWidget {
    Q_OBJECT

public:
    frmCompare(Loan& window, CompareWorld world);
    Q_DISABLE_COPY_MOVE(frmCompare)
    ~frmCompare() override;

    /// Shows the worksheet, which must live until the next call.
    void Show(const ComparedWorksheet& worksheet);
    /// Opens the window, or brings it to the front.
    void Present();
    void RenewLanguage();

Q_SIGNALS:
    void CostsEntered(int place, quend::calc::Money costs);
    /// The years or the payments that are compared; they are in the settings already.
    void ChoiceChanged();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Form_Load();
    void KeepArrangement() const;
    void WireChoice();
    void WireCommands();
    void KeepChoice();
    void ShowChoice();
    /// Stores what is being typed. False: it was refused, and is still being edited.
    bool CommitEntries();
    void ShowYearsUnit();
    void cmdCopy_Click();
    void cmdExport_Click();
    void cmdPrint_Click();
    ComparePage& Page() const;
    QString WindowTitle() const;

    std::unique_ptr<Ui::frmCompare> m_ui;
    Loan* m_window;
    CompareWorld m_world;
    std::unique_ptr<AmountEntry> m_monthly;
    // Owned by the form.
    CostsPage* m_costs;
    OverTimePage* m_overTime;
    SchedulePage* m_schedule;
    const ComparedWorksheet* m_worksheet = nullptr;
    bool m_showingChoice = false;
};

} // namespace quend::compare
