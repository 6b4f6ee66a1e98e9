#pragma once

#include "PrinterInterface.h"

#include <QtPlugin>

#include <functional>
#include <memory>

class QString;

namespace quend::printing {

/// The interface of the plugin that accesses the printers of this system.
class PrinterPlugin {
public:
    /// The texts of the current language, by number.
    using Words = std::function<QString(int number)>;

    virtual ~PrinterPlugin() = default;

    virtual std::unique_ptr<PrinterInterface> Printers(Words words) const = 0;
};

/// The printers of this system. Loads the printing plugin on the first call; while the plugin is
/// missing, every call throws ComponentFailure.
class PrinterOfPlugin : public PrinterInterface {
public:
    std::optional<PrintOutcome> AskHowToPrint(QWidget& parent) override {
        return Printer().AskHowToPrint(parent);
    }
    PrintOutcome AskSetUp(QWidget& parent) override { return Printer().AskSetUp(parent); }
    bool ShowPreview(QWidget& parent, const Preview& preview) override {
        return Printer().ShowPreview(parent, preview);
    }
    QPageLayout Page() override { return Printer().Page(); }
    QSizeF PageSpace() override { return Printer().PageSpace(); }
    HandOver Document(const PrintedPages& pages) override { return Printer().Document(pages); }

private:
    PrinterInterface& Printer();

    std::unique_ptr<PrinterInterface> m_printer;
};

} // namespace quend::printing

// A macro, because moc reads it.
#define PrinterPlugin_iid "quend.loan.PrinterPlugin/4"
Q_DECLARE_INTERFACE(quend::printing::PrinterPlugin, PrinterPlugin_iid)
