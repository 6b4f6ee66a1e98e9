#pragma once

#include "PrinterInterface.h"

#include <QPrintPreviewDialog>

#include <functional>

namespace quend::printing {

/// Qt's preview of a document on a printer's page. Its Print goes through the preview's own
/// function, because Qt would print directly. Changes of the page stay with the printer.
class PreviewDialog : public QPrintPreviewDialog {
public:
    /// The texts of the current language, by number.
    using Words = std::function<QString(int number)>;
    /// Printer and preview must outlive the dialog.
    PreviewDialog(QPrinter& printer, const Preview& preview, const Words& words, QWidget& parent);

private:
    void TakeOverPrint();
    void NameForReaders(const Words& words);
    void TakeSpace(const QWidget& parent);
    void Print();
    void ShowOrientation();

    QPrinter* m_printer;
    const Preview* m_preview;
};

} // namespace quend::printing
