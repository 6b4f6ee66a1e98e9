#pragma once

#include "PrinterDoor.h"

#include <QPrinter>

#include <functional>
#include <memory>
#include <utility>

class QPrintDialog;

/// The printers of this system through the toolkit, with its dialogs; documents go straight to the
/// print server, where there is one. What the user chose last is kept for as long as the program
/// runs, but for the number of copies. Files are not offered for printing into.
class SystemPrinter : public PrinterDoor {
public:
    /// The words of the language in use, by number. They come in, because this class is in a
    /// library of its own, where no language is in use.
    using Words = std::function<QString(int number)>;
    explicit SystemPrinter(Words words) : m_words(std::move(words)) {}

    std::optional<PrintOutcome> AskHowToPrint(QWidget& parent) override;
    PrintOutcome AskSetUp(QWidget& parent) override;
    QSizeF PageSpace() override;
    HandOver Document(const PrintedPages& pages) override;

private:
    QPrinter& Chosen();
    bool Ask(QPrintDialog& dialog);

    Words m_words;
    // Made when first asked for: looking for printers takes its time.
    std::unique_ptr<QPrinter> m_printer;
    int m_copies = 1; ///< of the next document
};

/// Sets up whatever prints: the document's name, and the page that the printer itself has.
void PrepareDocument(QPrinter& printer);
/// The printable part of the page that is set up, in twips.
QSizeF PageSpaceOf(const QPrinter& printer);
