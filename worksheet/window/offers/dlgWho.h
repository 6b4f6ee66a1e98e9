#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class dlgWho;
}

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class FailureReport;

/// The lender dialog of one offer. OK stores the text, of any length and any number of lines;
/// Cancel, Escape and the close box store nothing. Checks nothing, and does not update the row.
///
/// A typed line break is stored as a carriage return and a line feed. An unchanged text is not
/// stored again, so that its line breaks stay as they are.
class dlgWho : public QDialog {
    Q_OBJECT

public:
    /// Throws std::out_of_range for an offer that does not exist.
    dlgWho(Worksheet& worksheet, OfferIndex whoOfferIndex, QWidget& parent,
           const FailureReport& report);
    Q_DISABLE_COPY_MOVE(dlgWho)
    ~dlgWho() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Form_Load();
    void cmdOK_Click();
    void cmdCancel_Click();
    QString LinesShown() const;

    std::unique_ptr<Ui::dlgWho> m_ui;
    Worksheet* m_worksheet;
    OfferIndex m_whoOfferIndex;
    QString m_linesLoaded;
};

} // namespace quend::window
