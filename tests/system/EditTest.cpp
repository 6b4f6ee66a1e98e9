// The Edit menu on a real X server: undo, whole offers, and cells that another program has copied
// in the formats of a spreadsheet (scripts/driver/neighbour.py).

#include "Story.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class EditStory : public testing::TestWithParam<Story> {};

TEST_P(EditStory, IsShown) { ExpectShown(GetParam()); }

/// The block goes back and comes again as one step; then it leaves as a table and comes in again.
std::string PastedBlock(const std::string& copy) {
    return "type txtLoanAmount 250000\nclip " + copy + R"(
key txtPoints(0) ctrl+v
dialog
read txtPoints(0) txtInterestRate(0) txtPayment(0) txtActualPayment(0) txtWho(0)
read cboFrequency(1) txtTerm(1) txtActualPayment(1) txtWho(1) txtInterestRate(2) txtWho(2)
key txtPoints(0) ctrl+z
expect txtWho(2) 
read txtPoints(0) txtInterestRate(0) txtPandI(0) txtActualPayment(1) txtLoanAmount
key txtPoints(0) ctrl+shift+z
expect txtWho(2) Cedar & Sons ask for Ann
read txtPayment(0)
menu mnuEdit mnuEditCopyTable
clipped 7
clipped 10
key txtPoints(0) ctrl+z
expect txtWho(0) 
menu mnuEdit mnuEditPasteCells
expect txtWho(2) Cedar & Sons ask for Ann
read txtPayment(0) txtActualPayment(1) txtWho(1)
)";
}

const std::string Lenders = "First Prairie Bank; '=A text that begins with an equals sign; Cedar & "
                            "Sons ask for Ann\n";

const std::string PastedShown =
    Notice +
    "txtPoints(0)\t1.5\ntxtInterestRate(0)\t6.500%\ntxtPayment(0)\t$1,580.17\n"
    "txtActualPayment(0)\t$1,580.17\ntxtWho(0)\tFirst Prairie Bank\n"
    "cboFrequency(1)\tEvery two weeks\ntxtTerm(1)\t15\ntxtActualPayment(1)\t$2,100.00\n"
    "txtWho(1)\t=A text that begins with an equals sign\n"
    "txtInterestRate(2)\t7.000%\ntxtWho(2)\tCedar & Sons ask for Ann\n"
    "txtPoints(0)\t\ntxtInterestRate(0)\t\ntxtPandI(0)\t\ntxtActualPayment(1)\t\n"
    "txtLoanAmount\t$250,000.00\n"
    "txtPayment(0)\t$1,580.17\n"
    "clipped\tAct. Payment; $1,580.17; $2,100.00; \n"
    "clipped\tWho; " +
    Lenders +
    "txtPayment(0)\t$1,580.17\ntxtActualPayment(1)\t$2,100.00\n"
    "txtWho(1)\t=A text that begins with an equals sign\n";

const std::string PastedInGermany =
    Notice +
    "txtPoints(0)\t1,5\ntxtInterestRate(0)\t6,500%\ntxtPayment(0)\t1.580,17\u00a0€\n"
    "txtActualPayment(0)\t1.580,17\u00a0€\ntxtWho(0)\tFirst Prairie Bank\n"
    "cboFrequency(1)\tEvery two weeks\ntxtTerm(1)\t15\ntxtActualPayment(1)\t2.100,00\u00a0€\n"
    "txtWho(1)\t=A text that begins with an equals sign\n"
    "txtInterestRate(2)\t7,000%\ntxtWho(2)\tCedar & Sons ask for Ann\n"
    "txtPoints(0)\t\ntxtInterestRate(0)\t\ntxtPandI(0)\t\ntxtActualPayment(1)\t\n"
    "txtLoanAmount\t250.000,00\u00a0€\n"
    "txtPayment(0)\t1.580,17\u00a0€\n"
    "clipped\tAct. Payment; 1.580,17\u00a0€; 2.100,00\u00a0€; \n"
    "clipped\tWho; " +
    Lenders +
    "txtPayment(0)\t1.580,17\u00a0€\ntxtActualPayment(1)\t2.100,00\u00a0€\n"
    "txtWho(1)\t=A text that begins with an equals sign\n";

/// Moved by its keys, the rest by the menu.
const std::string WholeOffers = R"(
type txtLoanAmount 100000
number txtInterestRate(0) 6.5
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
type txtWho(0) Old Mill
number txtInterestRate(1) 6.25
key txtWho(0) alt+shift+Down
expect txtWho(1) Old Mill
read txtPayment(1) txtPayment(0)
entries mnuEdit 1
menu mnuEdit mnuEditDuplicateOffer
expect txtWho(2) Old Mill
entries mnuEdit 1
key txtTerm(1) Shift_L
menu mnuEdit mnuEditMoveUp
expect txtWho(0) Old Mill
menu mnuEdit mnuEditClearOffer
expect txtWho(0) 
entries mnuEdit 2
key txtTerm(0) ctrl+z
expect txtWho(0) Old Mill
key txtInterestRate(0) ctrl+z ctrl+z ctrl+z
expect txtWho(2) 
entries mnuEdit 2
read txtPayment(0) txtWho(1) txtWho(2)
)";

const std::string WholeOffersShown =
    NoticeInSpanish + "txtPayment(1)\t$632.07\ntxtPayment(0)\t\n"
                      "entries\tDeshacer: mover la oferta 1\n"
                      "entries\tDeshacer: duplicar la oferta 2\n"
                      "entries\tDeshacer: vaciar la oferta 1; Rehacer\n"
                      "entries\tDeshacer: tasa de la oferta 2; Rehacer: mover la oferta 1\n"
                      "txtPayment(0)\t$632.07\ntxtWho(1)\t\ntxtWho(2)\t\n";

/// First an offer is cleared by the menu, opened by keys: it then has the focus itself.
const std::string DropTakenBack = R"(
type txtLoanAmount 100000
type txtWho(0) Old Mill
number txtPoints(0) 1.5
key txtPoints(0) Alt_L Right Down Down Down Down Return
expect txtWho(0) 
key txtPoints(0) ctrl+z
expect txtWho(0) Old Mill
number txtPoints(0) 1.5
number txtPoints(1) 2
drag txtPoints(0) txtPoints(1)
expect txtPoints(1) 1.500
entries mnuEdit 1
key txtTerm(0) ctrl+z
expect txtPoints(1) 2
read txtPoints(0)
key txtPoints(1) ctrl+y
expect txtPoints(1) 1.5
keystrokes txtPoints(1) 7
key txtPoints(1) ctrl+z
expect txtPoints(1) 1.5
key txtPoints(1) ctrl+z
expect txtPoints(1) 2
entries mnuEdit 2
)";

const std::string DropShown = "entries\tUndo points of offer 2\ntxtPoints(0)\t1.500\n"
                              "entries\tUndo points of offer 2; Redo points of offer 2\n";

INSTANTIATE_TEST_SUITE_P(
    Edit, EditStory,
    testing::Values(Story{"SpreadsheetCells", "en_US.UTF-8", PastedBlock("en-block"), PastedShown},
                    Story{"SpreadsheetCellsInGermany", "de_DE.UTF-8", PastedBlock("de-block"),
                          PastedInGermany},
                    Story{"WholeOffers", "es_MX.UTF-8", WholeOffers, WholeOffersShown},
                    Story{"DropTakenBack", "en_US.UTF-8", DropTakenBack, DropShown}),
    [](const auto& story) { return std::string(story.param.name); });

} // namespace
