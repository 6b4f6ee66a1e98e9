#pragma once

#include "PrinterInterface.h"

#include <QPrinter>

#include <functional>
#include <memory>
#include <utility>

class QPrintDialog;

namespace quend::printing {

/// The printers of this system through Qt and its dialogs; documents go directly to the print
/// server if there is one. Keeps the user's last choices while the program runs, except the number
/// of copies. Does not offer printing to a file.
class SystemPrinter : public PrinterInterface {
public:
    /// The texts of the current language, by number. Passed in, because this class is in a plugin,
    /// which has no language.
    using Words = std::function<QString(int number)>;
    explicit SystemPrinter(Words words) : m_words(std::move(words)) {}

    std::optional<PrintOutcome> AskHowToPrint(QWidget& parent) override;
    PrintOutcome AskSetUp(QWidget& parent) override;
    bool ShowPreview(QWidget& parent, const Preview& preview) override;
    QPageLayout Page() override;
    QSizeF PageSpace() override;
    HandOver Document(const PrintedPages& pages) override;

private:
    QPrinter& Chosen();
    std::shared_ptr<QPrinter> Reachable();
    bool Ask(QPrintDialog& dialog);

    Words m_words;
    // Created on first use, because finding printers takes time. A preview shares it.
    std::shared_ptr<QPrinter> m_printer;
    int m_copies = 1; ///< of the next document
};

/// Sets the document's name and the printer's own default page size; without a printer, the page of
/// a file.
void PrepareDocument(QPrinter& printer);
/// The printable part of the current page, in twips.
QSizeF PageSpaceOf(const QPrinter& printer);

} // namespace quend::printing
