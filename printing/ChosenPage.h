#pragma once

#include <QObject>
#include <QPageLayout>
#include <QPointer>
#include <QString>

class QPrinter;
class QWidget;

namespace quend::printing {

/// Keeps paper, orientation and margins through a print dialog. Qt's dialog starts with the
/// printer's default page each time and sets it on OK, even if the user never looked at it.
///
/// The page of another printer is left to the dialog, because that printer may not have the paper.
class ChosenPage : public QObject {
public:
    /// Create before the dialog opens; the printer has the page to keep.
    explicit ChosenPage(QPrinter& printer);

    /// Call after OK: a page that the user has seen is kept as shown, otherwise the previous page
    /// is restored.
    void Settle() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowIn(const QWidget& properties) const;
    void ShowMargins(const QWidget& properties) const;

    QPrinter* m_printer;
    QString m_printerName;
    QPageLayout m_page;
    QPointer<QWidget> m_seen; ///< Qt creates a new properties dialog for another printer
};

} // namespace quend::printing
