#pragma once

#include "PrinterInterface.h"

#include <memory>

namespace quend::printing {

/// The printers of this system. Loads the printing plugin on the first call; if the plugin is
/// missing, every call throws ComponentFailure.
class PrinterOfPlugin : public PrinterInterface {
public:
    std::optional<PrintOutcome> AskHowToPrint(QWidget& parent) override {
        return Printer().AskHowToPrint(parent);
    }
    PrintOutcome AskSetUp(QWidget& parent) override { return Printer().AskSetUp(parent); }
    QSizeF PageSpace() override { return Printer().PageSpace(); }
    HandOver Document(const PrintedPages& pages) override { return Printer().Document(pages); }

private:
    PrinterInterface& Printer();

    std::unique_ptr<PrinterInterface> m_printer;
};

} // namespace quend::printing
