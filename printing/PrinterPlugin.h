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

    PrinterPlugin() = default;
    PrinterPlugin(const PrinterPlugin&) = delete;
    PrinterPlugin& operator=(const PrinterPlugin&) = delete;
    PrinterPlugin(PrinterPlugin&&) = delete;
    PrinterPlugin& operator=(PrinterPlugin&&) = delete;
    virtual ~PrinterPlugin() = default;

    virtual std::unique_ptr<PrinterInterface> Printers(Words words) const = 0;
};

} // namespace quend::printing

// A macro, because moc reads it.
#define PrinterPlugin_iid "quend.loan.PrinterPlugin/2"
Q_DECLARE_INTERFACE(quend::printing::PrinterPlugin, PrinterPlugin_iid)
