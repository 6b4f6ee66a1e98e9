// File, Print with a real print server and printer: the choices of the dialog reach the printer,
// and cancelled jobs do not.

#include "Story.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class PrintStory : public testing::TestWithParam<Story> {};

TEST_P(PrintStory, IsShown) { ExpectShown(GetParam()); }

/// The texts of Qt's dialogs.
struct DialogWords {
    std::string cancel, print, properties, landscape, ok, options, copies;
};

const DialogWords English{"Cancel", "Print",      "Properties", "Landscape",
                          "OK",     "Options >>", "Copies:"};
const DialogWords Spanish{"Cancelar", "Imprimir",    "Propiedades", "Apaisado",
                          "Aceptar",  "Opciones >>", "Copias:"};

/// Cancelled in the dialog, cancelled while printing, then two copies in landscape.
std::string Printing(const DialogWords& words) {
    const std::string print = "menu mnuFile mnuFilePrint\n";
    const auto push = [](const std::string& button) { return "push " + button + "\n"; };
    const auto end = [](const std::string& button) { return "end " + button + "\n"; };
    return "type cboLoanName Casa\ntype txtLoanAmount 100000\n" + print + end(words.cancel) +
           print + end(words.print) + end("@15") + "unprinted\n" + print + push(words.properties) +
           push(words.landscape) + end(words.ok) + push(words.options) + "count 2 " + words.copies +
           "\n" + end(words.print) + "progress\nprinted\n";
}

const std::vector<Story> Stories{
    {"InEnglish", "en_US.UTF-8", Printing(English),
     "progress\tPrinting the worksheet\\nCasa...\n"
     "printed\t2 copies, 1 page, landscape: Loan Name: Casa Loan Amount: $100,000.00\n"},
    {"InSpanish", "es_MX.UTF-8", Printing(Spanish),
     "progress\tImprimiendo la hoja de trabajo\\nCasa...\n"
     "printed\t2 copies, 1 page, landscape: Nombre del préstamo: Casa Monto del\n"},
};

INSTANTIATE_TEST_SUITE_P(Print, PrintStory, testing::ValuesIn(Stories),
                         [](const auto& story) { return std::string(story.param.name); });

} // namespace
