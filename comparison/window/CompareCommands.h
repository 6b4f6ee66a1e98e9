#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include <QObject>

#include "CompareWorld.h"
#include "ComparisonReader.h"
#include "Field.h"

#include <QTimer>

#include <memory>

namespace quend::compare {

class frmCompare;

/// The Tools menu's Compare Offers and Find a Payment. The comparison window is created when it is
/// first opened; while it is closed, nothing is read or computed.
class CompareCommands : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the commands. Enables the entries.
    CompareCommands(Loan& window, CompareWorld world);
    Q_DISABLE_COPY_MOVE(CompareCommands)
    /// Closes the comparison window.
    ~CompareCommands() override;

    /// Asks what payment ends the loan at this place.
    void FindPayment(int place, QWidget& parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void mnuToolsCompare_Click();
    void mnuToolsFindPayment_Click();

    QString Enough(Row row);
    void FollowWorksheet();
    void FollowLanguage();
    void ShowChanges();
    void EnterCosts(int place, Money costs);

    Loan* m_window;
    CompareWorld m_world;
    ComparisonReader m_reader;
    QTimer m_later; ///< joins the changes of one edit
    std::unique_ptr<frmCompare> m_compare;
};

} // namespace quend::compare
