#pragma once

#include "PrinterDoor.h"

#include <QPrinter>

#include <functional>
#include <memory>
#include <utility>

class QPrintDialog;

/// The printers of this system through the toolkit, with its dialogs. What the user chose last is
/// kept for as long as the program runs. Files are not offered for printing into.
class SystemPrinter : public PrinterDoor {
public:
    /// The words of the language in use, by number. They come in, because this class stands in a
    /// library of its own, where no language is in use.
    using Words = std::function<QString(int number)>;
    explicit SystemPrinter(Words words) : m_words(std::move(words)) {}

    bool AskHowToPrint(QWidget& parent) override;
    void AskSetUp(QWidget& parent) override;
    QSizeF PageSpace() override;
    void Print(const PrintedPages& pages) override;

private:
    QPrinter& Chosen();
    bool Ask(QPrintDialog& dialog);

    Words m_words;
    // Made when first asked for: looking for printers takes its time.
    std::unique_ptr<QPrinter> m_printer;
};

/// Sets up whatever prints: the document's name, and the page that the printer itself has.
void PrepareDocument(QPrinter& printer);
/// The printable part of the page that is set up, in twips.
QSizeF PageSpaceOf(const QPrinter& printer);
