#pragma once

#include "PrinterDoor.h"

#include <memory>

/// The printers of this system. The library that knows them is loaded when the first question is
/// put to them; where it is missing, each question throws ComponentFailure.
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
