#pragma once

#include "PrinterDoor.h"

#include <memory>

/// The printers of this system. The library that knows them is loaded when the first question is
/// put to them; where it is missing, each question throws ComponentFailure.
class PrinterOfPart : public PrinterDoor {
public:
    bool AskHowToPrint(QWidget& parent) override { return Door().AskHowToPrint(parent); }
    void AskSetUp(QWidget& parent) override { Door().AskSetUp(parent); }
    QSizeF PageSpace() override { return Door().PageSpace(); }
    void Print(const PrintedPages& pages) override { Door().Print(pages); }

private:
    PrinterDoor& Door();

    std::unique_ptr<PrinterDoor> m_door;
};
