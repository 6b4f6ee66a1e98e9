#pragma once

#include "PagePainter.h"
#include "PrinterInterface.h"
#include "QuendNames.h"
#include "SystemPrinter.h"

#include <QPrinter>

/// Prints into a file if no print server is available.
class FilePrinter : public PrinterInterface {
public:
    FilePrinter(const QString& file, const QPageSize& size,
                QPageLayout::Orientation orientation = QPageLayout::Portrait) {
        m_printer.setOutputFormat(QPrinter::PdfFormat);
        PrepareDocument(m_printer);
        m_printer.setPageSize(size);
        m_printer.setPageOrientation(orientation);
        m_printer.setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Point);
        m_printer.setOutputFileName(file);
    }

    std::optional<PrintOutcome> AskHowToPrint(QWidget& /*parent*/) override {
        return PrintOutcome();
    }
    PrintOutcome AskSetUp(QWidget& /*parent*/) override { return {}; }
    bool ShowPreview(QWidget& /*parent*/, const Preview& /*preview*/) override { return false; }
    QPageLayout Page() override { return m_printer.pageLayout(); }
    QSizeF PageSpace() override { return PageSpaceOf(m_printer); }
    HandOver Document(const PrintedPages& pages) override {
        const PrintFault fault = Print(pages) ? PrintFault::None : PrintFault::Failed;
        return [fault](const std::stop_token& /*stop*/) { return PrintOutcome{fault}; };
    }
    bool Print(const PrintedPages& pages) { return PaintPages(m_printer, pages); }

private:
    QPrinter m_printer{QPrinter::HighResolution};
};
