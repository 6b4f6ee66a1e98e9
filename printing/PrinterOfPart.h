#pragma once

#include "PrinterDoor.h"

#include <memory>

/// The printers of this system. Loads the printing plugin on the first call; if the plugin is
/// missing, every call throws ComponentFailure.
class PrinterOfPart : public PrinterDoor {
public:
    std::optional<PrintOutcome> AskHowToPrint(QWidget& parent) override {
        return Door().AskHowToPrint(parent);
    }
    PrintOutcome AskSetUp(QWidget& parent) override { return Door().AskSetUp(parent); }
    QSizeF PageSpace() override { return Door().PageSpace(); }
    HandOver Document(const PrintedPages& pages) override { return Door().Document(pages); }

private:
    PrinterDoor& Door();

    std::unique_ptr<PrinterDoor> m_door;
};
