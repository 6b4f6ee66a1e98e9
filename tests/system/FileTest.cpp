// A worksheet leaves the program as a file and comes in again.

#include "Story.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class FileStory : public testing::TestWithParam<Story> {};

TEST_P(FileStory, IsShown) { ExpectShown(GetParam()); }

/// Saved, opened by the command line in another language, saved again and opened by the menu.
const std::string SentAndOpened = R"(
type cboLoanName Our home
type txtLoanAmount 100000
type txtWho(0) Cedar & Sons
number txtInterestRate(0) 6
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
type txtWho(2) South
read txtPayment(0) txtInterest(0)
menu mnuFile mnuFileSaveAs
file home.v2
kill
start es_MX.UTF-8 home.v2.quendloan
expect txtWho(2) South
read txtLoanAmount txtPayment(0) txtInterest(0) txtWho(0)
menu mnuFile mnuFileSaveAs
file copy.quendloan
same home.v2.quendloan copy.quendloan
menu mnuFile mnuFileOpen
file copy.quendloan
answer @126
read txtLoanAmount
close
answer @126
ended
start en_US.UTF-8 missing.quendloan
dialog
read txtLoanAmount
quit
)";

const std::string Shown =
    "dialog\tThe payment you intend to make cannot be lower than the payment calculated for the "
    "offer. It has been set to the calculated payment; you can enter a higher one.\n"
    "txtPayment(0)\t$599.55\n"
    "txtInterest(0)\t$115,838.53\n"
    "txtLoanAmount\t$100,000.00\n"
    "txtPayment(0)\t$599.55\n"
    "txtInterest(0)\t$115,838.53\n"
    "txtWho(0)\tCedar & Sons\n"
    "same\tyes\n"
    "answer\t¿Desea guardar los cambios en «Our home»?\n"
    "txtLoanAmount\t$100,000.00\n"
    "answer\t¿Desea guardar los cambios en «Our home»?\n"
    "dialog\tNo se abrió «missing.quendloan».\\n\\nEste archivo no existe.\n"
    "txtLoanAmount\t\n";

INSTANTIATE_TEST_SUITE_P(File, FileStory,
                         testing::Values(Story{"SentAndOpened", "en_US.UTF-8", SentAndOpened,
                                               Shown}),
                         [](const auto& story) { return std::string(story.param.name); });

} // namespace
