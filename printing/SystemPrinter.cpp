#include "SystemPrinter.h"

#include "ChosenPage.h"
#include "PagePainter.h"
#include "PdfDocument.h"
#include "PreviewDialog.h"
#include "PrintQueue.h"
#include "PrintingNames.h"
#include "TextNumbers.h"
#include "VersionRecord.h"

#include <QDialogButtonBox>
#include <QLocale>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinterInfo>
#include <QPushButton>

#include <array>

namespace quend::printing {

namespace {

/// Options that are not offered: there is no selection and no current page, and a report is printed
/// whole and on paper.
constexpr std::array NotAsked{
    QAbstractPrintDialog::PrintSelection,
    QAbstractPrintDialog::PrintPageRange,
    QAbstractPrintDialog::PrintCurrentPage,
    QAbstractPrintDialog::PrintToFile,
};

/// Qt shows these controls again whatever the options are, so only a hidden parent hides them.
void HidePageRange(QPrintDialog& dialog) {
    if (auto* range = dialog.findChild<QWidget*>(QStringLiteral("gbPrintRange"))) {
        auto* nowhere = new QWidget(&dialog);
        nowhere->hide();
        range->setParent(nowhere);
    }
}

void Limit(QPrintDialog& dialog) {
    dialog.setMinMax(1, 9999); // this offers a page range
    for (const auto option : NotAsked) {
        dialog.setOption(option, false);
    }
    HidePageRange(dialog);
}

/// Qt calls this button "Print" here, too, although nothing is printed.
void NameOk(const QPrintDialog& dialog, const QString& text) {
    if (const auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (auto* button = buttons->button(QDialogButtonBox::Ok)) {
            button->setText(text);
        }
    }
}

/// The printer's default page size; Qt would use another one.
QPageSize OwnPageSize(const QPrinter& printer) {
    const QPageSize own = QPrinterInfo(printer).defaultPageSize();
    return own.isValid() ? own : PageOfFile(QLocale(), QPageLayout::Portrait).pageSize();
}

/// Without a name it is the page of a file, which serves while there are no printers.
bool IsThere(const QPrinter& printer) {
    const QStringList names = QPrinterInfo::availablePrinterNames();
    return printer.printerName().isEmpty() ? names.isEmpty()
                                           : names.contains(printer.printerName());
}

/// A hanging server would block the dialog, and without printers there is nothing to choose.
PrintOutcome ObstacleToAsking() {
    PrintOutcome server = AskServer();
    if (server.fault == PrintFault::None && QPrinterInfo::availablePrinterNames().isEmpty()) {
        return {PrintFault::NoPrinter};
    }
    return server;
}

/// The queue's name alone: Qt appends the name of an option set.
QString QueueOf(const QPrinter& printer) { return printer.printerName().section(u'/', 0, 0); }

QByteArray SidesOf(const QPrinter& printer) {
    const bool upright = printer.pageLayout().orientation() == QPageLayout::Portrait;
    switch (printer.duplex()) {
    case QPrinter::DuplexNone:
        break;
    case QPrinter::DuplexAuto:
        return upright ? "two-sided-long-edge" : "two-sided-short-edge";
    case QPrinter::DuplexLongSide:
        return "two-sided-long-edge";
    case QPrinter::DuplexShortSide:
        return "two-sided-short-edge";
    }
    return "one-sided";
}

using ServerOptions = decltype(QueuedDocument::options);

/// The dialog's settings that only the print server knows, such as pages per sheet. Qt stores them
/// under an unnamed property number, alternating names and values.
void AddDialogOptions(const QPrinter& printer, ServerOptions& options) {
    constexpr auto key = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    const QStringList chosen = printer.printEngine()->property(key).toStringList();
    for (qsizetype at = 0; at + 1 < chosen.size(); at += 2) {
        options.emplace_back(chosen.at(at).toUtf8(), chosen.at(at + 1).toUtf8());
    }
}

/// The settings of Qt's dialogs as options of the server.
ServerOptions OptionsOf(const QPrinter& printer, int copies) {
    ServerOptions options{{"media", printer.pageLayout().pageSize().key().toUtf8()},
                          {"sides", SidesOf(printer)}};
    if (copies > 1) {
        options.emplace_back("copies", QByteArray::number(copies));
        if (printer.collateCopies()) {
            options.emplace_back("Collate", "True");
        }
    }
    if (printer.pageLayout().orientation() == QPageLayout::Landscape) {
        options.emplace_back("landscape", "");
    }
    AddDialogOptions(printer, options);
    return options;
}

/// The report has the printer's own document name.
QString TitleOf(const PrintedPages& pages, const QPrinter& printer) {
    return pages.title.isEmpty() ? printer.docName() : pages.title;
}

HandOver Finished(const PrintOutcome& outcome) {
    return [outcome](const std::stop_token& /*stop*/) { return outcome; };
}

} // namespace

void PrepareDocument(QPrinter& printer) {
    printer.setDocName(QStringLiteral("Test Job"));
    printer.setCreator(QString::fromUtf8(VersionRecord::ProductName));
    if (printer.printerName().isEmpty()) {
        printer.setPageLayout(PageOfFile(QLocale(), QPageLayout::Portrait));
    } else {
        printer.setPageSize(OwnPageSize(printer));
    }
}

QSizeF PageSpaceOf(const QPrinter& printer) { return SpaceOf(printer.pageLayout()); }

/// If the chosen printer no longer exists, takes the default one.
QPrinter& SystemPrinter::Chosen() {
    if (!m_printer || !IsThere(*m_printer)) {
        m_printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
        PrepareDocument(*m_printer);
    }
    return *m_printer;
}

/// The chosen printer, or the last one while the server does not answer.
std::shared_ptr<QPrinter> SystemPrinter::Reachable() {
    if (AskServer().fault == PrintFault::None) {
        Chosen();
    } else if (!m_printer) {
        WithoutServer([this] { Chosen(); });
    }
    return m_printer;
}

bool SystemPrinter::Ask(QPrintDialog& dialog) {
    Limit(dialog);
    const ChosenPage page(*m_printer);
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    page.Settle();
    ChooseUserPrinter(QueueOf(*m_printer));
    return true;
}

/// The number of copies is for one job only and must not apply to the next.
std::optional<PrintOutcome> SystemPrinter::AskHowToPrint(QWidget& parent) {
    PrintOutcome obstacle = ObstacleToAsking();
    if (obstacle.fault != PrintFault::None) {
        return obstacle;
    }
    QPrintDialog dialog(&Chosen(), &parent);
    if (!Ask(dialog)) {
        return std::nullopt;
    }
    m_copies = m_printer->copyCount();
    m_printer->setCopyCount(1);
    return AskQueue(QueueOf(*m_printer));
}

PrintOutcome SystemPrinter::AskSetUp(QWidget& parent) {
    PrintOutcome obstacle = ObstacleToAsking();
    if (obstacle.fault != PrintFault::None) {
        return obstacle;
    }
    QPrintDialog dialog(&Chosen(), &parent);
    dialog.setWindowTitle(m_words(TextNumber::PrintSetUpTitle));
    NameOk(dialog, m_words(TextNumber::Ok));
    Ask(dialog);
    return {};
}

bool SystemPrinter::ShowPreview(QWidget& parent, const Preview& preview) {
    const std::shared_ptr<QPrinter> printer = Reachable(); // printing may replace the chosen one
    PreviewDialog dialog(*printer, preview, m_words, parent);
    return dialog.exec() == QDialog::Accepted;
}

QPageLayout SystemPrinter::Page() { return Reachable()->pageLayout(); }

QSizeF SystemPrinter::PageSpace() { return PageSpaceOf(m_printer ? *m_printer : Chosen()); }

/// Uses the print server if there is one: Qt would print in the window's thread, report no errors,
/// and use another printer in place of a missing one.
HandOver SystemPrinter::Document(const PrintedPages& pages) {
    QPrinter& printer = m_printer ? *m_printer : Chosen();
    if (!HasPrintServer()) {
        const QString usualName = printer.docName();
        printer.setDocName(TitleOf(pages, printer));
        printer.setCopyCount(m_copies);
        const bool printed = PaintPages(printer, pages);
        printer.setCopyCount(1);
        printer.setDocName(usualName);
        return Finished({printed ? PrintFault::None : PrintFault::Failed});
    }
    QueuedDocument document{.queue = QueueOf(printer),
                            .title = TitleOf(pages, printer),
                            .pdf = PdfOf(pages, {.title = TitleOf(pages, printer),
                                                 .creator = printer.creator(),
                                                 .layout = printer.pageLayout(),
                                                 .resolution = printer.resolution()}),
                            .options = OptionsOf(printer, m_copies)};
    if (document.pdf.isEmpty()) {
        return Finished({PrintFault::Failed});
    }
    return [document = std::move(document)](const std::stop_token& stop) {
        return Send(document, stop);
    };
}

} // namespace quend::printing
