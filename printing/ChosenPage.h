#pragma once

#include <QObject>
#include <QPageLayout>
#include <QPointer>
#include <QString>

class QPrinter;
class QWidget;

/// Keeps paper, orientation and margins through a print dialog. The toolkit's own begins with the
/// printer's page each time and puts it back on OK, though nobody may have looked at it.
///
/// The page of another printer is left to the dialog: the paper of one may not be in the other.
class ChosenPage : public QObject {
public:
    /// Before the dialog opens; the printer has the page to be kept.
    explicit ChosenPage(QPrinter& printer);

    /// After OK: what the user saw holds, and what was not looked at stays.
    void Settle() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowIn(const QWidget& properties) const;
    void ShowMargins(const QWidget& properties) const;

    QPrinter* m_printer;
    QString m_printerName;
    QPageLayout m_page;
    QPointer<QWidget> m_seen; ///< the toolkit makes new properties for another printer
};
