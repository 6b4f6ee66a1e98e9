#include "SystemPrinter.h"

#include "PagePainter.h"
#include "TextNumbers.h"
#include "UserPrinter.h"
#include "VersionRecord.h"

#include <QDialogButtonBox>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>

#include <array>

namespace {

/// What is not asked: there is no selection and no current page, a report is printed whole, and on
/// paper.
constexpr std::array NotAsked{
    QAbstractPrintDialog::PrintSelection,
    QAbstractPrintDialog::PrintPageRange,
    QAbstractPrintDialog::PrintCurrentPage,
    QAbstractPrintDialog::PrintToFile,
};

/// The toolkit offers some of the pages whatever the options say, and shows again what is hidden;
/// so the choice goes where nothing shows.
void HidePageRange(QPrintDialog& dialog) {
    if (auto* range = dialog.findChild<QWidget*>(QStringLiteral("gbPrintRange"))) {
        auto* nowhere = new QWidget(&dialog);
        nowhere->hide();
        range->setParent(nowhere);
    }
}

void Limit(QPrintDialog& dialog) {
    dialog.setMinMax(1, 9999); // which offers a range of pages
    for (const auto option : NotAsked) {
        dialog.setOption(option, false);
    }
    HidePageRange(dialog);
}

/// The toolkit calls its button "Print" here, too, where nothing is printed.
void NameOk(const QPrintDialog& dialog, const QString& text) {
    if (const auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (auto* button = buttons->button(QDialogButtonBox::Ok)) {
            button->setText(text);
        }
    }
}

/// The page that the printer itself starts from; the toolkit starts from its own.
QPageSize OwnPageSize(const QPrinter& printer) {
    const QPageSize own = QPrinterInfo(printer).defaultPageSize();
    const bool metric = QLocale().measurementSystem() == QLocale::MetricSystem;
    return own.isValid() ? own : QPageSize(metric ? QPageSize::A4 : QPageSize::Letter);
}

bool IsThere(const QPrinter& printer) {
    return QPrinterInfo::availablePrinterNames().contains(printer.printerName());
}

} // namespace

void PrepareDocument(QPrinter& printer) {
    printer.setDocName(QStringLiteral("Test Job"));
    printer.setCreator(QString::fromUtf8(VersionRecord::ProductName));
    printer.setPageSize(OwnPageSize(printer));
}

QSizeF PageSpaceOf(const QPrinter& printer) {
    return printer.pageLayout().paintRect(QPageLayout::Point).size() * TwipsPerPoint;
}

/// A printer that has gone since it was chosen gives way to the default one.
QPrinter& SystemPrinter::Chosen() {
    if (!m_printer || !IsThere(*m_printer)) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        PrepareDocument(*m_printer);
    }
    return *m_printer;
}

bool SystemPrinter::Ask(QPrintDialog& dialog) {
    Limit(dialog);
    const QString before = m_printer->printerName();
    const QPageSize size = m_printer->pageLayout().pageSize();
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    if (m_printer->printerName() != before && m_printer->pageLayout().pageSize() == size) {
        m_printer->setPageSize(OwnPageSize(*m_printer));
    }
    ChooseUserPrinter(m_printer->printerName());
    return true;
}

bool SystemPrinter::AskHowToPrint(QWidget& parent) {
    QPrintDialog dialog(&Chosen(), &parent);
    return Ask(dialog);
}

void SystemPrinter::AskSetUp(QWidget& parent) {
    QPrintDialog dialog(&Chosen(), &parent);
    dialog.setWindowTitle(m_words(TextNumber::PrintSetUpTitle));
    NameOk(dialog, m_words(TextNumber::Ok));
    Ask(dialog);
}

QSizeF SystemPrinter::PageSpace() { return PageSpaceOf(m_printer ? *m_printer : Chosen()); }

/// The toolkit would print on another printer instead of one that is gone.
void SystemPrinter::Print(const PrintedPages& pages) {
    if (m_printer && IsThere(*m_printer)) {
        PaintPages(*m_printer, pages);
    }
}
