#pragma once

#include "PrinterDoor.h"

#include <QtPlugin>

#include <functional>
#include <memory>

class QString;

/// The interface of the plugin that accesses the printers of this system.
class PrinterPart {
public:
    /// The texts of the current language, by number.
    using Words = std::function<QString(int number)>;

    PrinterPart() = default;
    PrinterPart(const PrinterPart&) = delete;
    PrinterPart& operator=(const PrinterPart&) = delete;
    PrinterPart(PrinterPart&&) = delete;
    PrinterPart& operator=(PrinterPart&&) = delete;
    virtual ~PrinterPart() = default;

    virtual std::unique_ptr<PrinterDoor> Printers(Words words) const = 0;
};

// A macro, because moc reads it.
#define PrinterPart_iid "quend.loan.PrinterPart/2"
Q_DECLARE_INTERFACE(PrinterPart, PrinterPart_iid)
