#pragma once

#include "Field.h"

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class dlgWho;
}

class Worksheet;

/// The dialog for the lender of one offer. OK stores the text, of any length and of as many lines
/// as wanted; Cancel, Escape and the close box store nothing. Checks nothing, and does not show the
/// new text in the row.
///
/// The line breaks that are typed are stored as a carriage return and a line feed. A text that is
/// not changed is not touched, whatever its line breaks.
class dlgWho : public QDialog {
    Q_OBJECT

public:
    /// Throws std::out_of_range for an offer that is not there.
    dlgWho(Worksheet& worksheet, OfferIndex whoOfferIndex, QWidget& parent);
    dlgWho(const dlgWho&) = delete;
    dlgWho& operator=(const dlgWho&) = delete;
    dlgWho(dlgWho&&) = delete;
    dlgWho& operator=(dlgWho&&) = delete;
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
