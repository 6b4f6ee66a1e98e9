#pragma once

#include "PrinterDoor.h"

#include <functional>
#include <vector>

/// Stands in the door of the printer: answers its dialogs and keeps what arrives.
class FakePrinter : public PrinterDoor {
public:
    bool AskHowToPrint(QWidget& /*parent*/) override {
        ++asked;
        if (whileAsking) {
            whileAsking();
        }
        return answer;
    }
    void AskSetUp(QWidget& /*parent*/) override { ++setUp; }
    QSizeF PageSpace() override { return space; }
    void Print(const PrintedPages& pages) override { printed.push_back(pages); }

    bool answer = true;
    std::function<void()> whileAsking;
    QSizeF space{8 * TwipsPerInch, 10.5 * TwipsPerInch};
    int asked = 0;
    int setUp = 0;
    std::vector<PrintedPages> printed;
};
