// Worksheets and settings across runs of the real program, in a real window, with a separate store.

#include "Story.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <string>

namespace {

class StoreStory : public testing::TestWithParam<Story> {};

TEST_P(StoreStory, IsShown) { ExpectShown(GetParam()); }

const std::string Enter = R"(
type cboLoanName Our home
choose cboLoanType @83
type txtLoanAmount 100000
number txtInterestRate(0) 6.125
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
type txtWho(0) First Prairie Bank
date dtNextPayment 2027-03-01
)";

const std::string Figures = "read cboLoanName cboLoanType txtLoanAmount txtInterestRate(0) "
                            "txtTerm(0) cboFrequency(0) txtPandI(0) txtWho(0) dtNextPayment\n";

const std::string Raised =
    "dialog\tThe payment you intend to make cannot be lower than the payment calculated for the "
    "offer. It has been set to the calculated payment; you can enter a higher one.\n";

const std::string Shown = "cboLoanName\tOur home\ncboLoanType\tMortgage\n"
                          "txtLoanAmount\t$100,000.00\ntxtInterestRate(0)\t6.125%\n"
                          "txtTerm(0)\t30\ncboFrequency(0)\tMonthly\ntxtPandI(0)\t$607.61\n"
                          "txtWho(0)\tFirst Prairie Bank\ndtNextPayment\t3/1/2027\n";

const std::string ShownInGermany = "cboLoanName\tOur home\ncboLoanType\tMortgage\n"
                                   "txtLoanAmount\t100.000,00\u00A0€\ntxtInterestRate(0)\t6,125%\n"
                                   "txtTerm(0)\t30\ncboFrequency(0)\tMonthly\n"
                                   "txtPandI(0)\t607,61\u00A0€\n"
                                   "txtWho(0)\tFirst Prairie Bank\ndtNextPayment\t01.03.2027\n";

/// The message about a repair, in either language. `number` is that of the damaged file on its day.
std::string Repaired(const std::string& words, const std::string& number) {
    const std::time_t now = std::time(nullptr);
    std::array<char, 16> today{};
    std::strftime(today.data(), today.size(), "%Y-%m-%d", std::localtime(&now));
    return "dialog\t" + words + "data_home/Quend Halverworks/Loan.store.damaged-" + today.data() +
           number + "\n";
}

const std::string RepairedInEnglish = "The file with your saved worksheets was damaged. What could "
                                      "be read is in a new file: 1 complete "
                                      "worksheet. The damaged file has been kept as ";
const std::string RepairedInSpanish =
    "El archivo con sus hojas de trabajo guardadas estaba dañado. Lo que se pudo leer está en un "
    "archivo nuevo: 1 hoja de trabajo completa. El archivo dañado se conservó como ";

/// Damaged before a save, and again before the settings are saved on exit.
const std::string Damaged = R"(
type cboLoanName Our home
menu mnuFile mnuFileSave
damage
type txtLoanAmount 100000
menu mnuFile mnuFileSave
dialog
damage
close
dialog
ended
start en_US.UTF-8
choose cboLoanName Our home
read txtLoanAmount
)";

INSTANTIATE_TEST_SUITE_P(
    Store, StoreStory,
    testing::Values(
        Story{"SavedAndOpenedAgain", "en_US.UTF-8",
              Enter +
                  "menu mnuFile mnuFileSave\nquit\nstart en_US.UTF-8\n"
                  "choose cboLoanName Our home\n" +
                  Figures + "quit",
              Raised + Shown},
        Story{"SavedAndOpenedInAnotherCountry", "en_US.UTF-8",
              Enter +
                  "menu mnuFile mnuFileSave\nquit\nstart de_DE.UTF-8\n"
                  "choose cboLoanName Our home\n" +
                  Figures + "quit",
              Raised + ShownInGermany},
        Story{"SavedOnTheWayOut", "en_US.UTF-8",
              Enter +
                  "close\nanswer @125\nended\nstart en_US.UTF-8\n"
                  "choose cboLoanName Our home\n" +
                  Figures,
              Raised + "answer\tDo you want to save the changes to “Our home”?\n" + Shown},
        Story{"StaysWhenTheUserChangesHisMind", "en_US.UTF-8",
              Enter + "close\nanswer @15\n" + Figures,
              Raised + "answer\tDo you want to save the changes to “Our home”?\n" + Shown},
        Story{"OutlivesAFailureOfPower", "en_US.UTF-8",
              Enter +
                  "menu mnuFile mnuFileSave\nkill\nstart en_US.UTF-8\n"
                  "choose cboLoanName Our home\n" +
                  Figures,
              Raised + Shown},
        Story{"KeptForTheNextStartWhenTerminated", "en_US.UTF-8",
              Enter + "title\nterminate\nstart en_US.UTF-8\nanswer @125\n" + Figures +
                  "title\nmenu mnuFile mnuFileSave\ntitle\nquit\nstart en_US.UTF-8\ntitle\nquit",
              Raised + "title\tOur home* — Quend Loan\n" +
                  "answer\tQuend Loan was closed while “Our home” was not saved. Open it again?\n" +
                  Shown +
                  "title\tOur home* — Quend Loan\ntitle\tOur home — Quend Loan\n"
                  "title\tQuend Loan\n"},
        Story{"TerminatedWhileAQuestionIsOpen", "en_US.UTF-8",
              Enter + "close\nlook\nterminate\nstart en_US.UTF-8\nanswer @126\n"
                      "read cboLoanName\nquit",
              Raised + "look\tDo you want to save the changes to “Our home”?\n"
                       "answer\tQuend Loan was closed while “Our home” was not saved. "
                       "Open it again?\ncboLoanName\t\n"},
        Story{"DeletedForGood", "en_US.UTF-8",
              Enter + "menu mnuFile mnuFileSave\nmenu mnuFile mnuFileDelete\nanswer @125\n"
                      "quit\nstart en_US.UTF-8\nread cboLoanName txtLoanAmount",
              Raised + "answer\tDo you want to delete the worksheet “Our home”?\n"
                       "cboLoanName\t\ntxtLoanAmount\t\n"},
        Story{"RepairedAndTold", "en_US.UTF-8", Damaged,
              Repaired(RepairedInEnglish, "") + Repaired(RepairedInEnglish, "-2") +
                  "txtLoanAmount\t$100,000.00\n"},
        Story{"RepairedAndToldInSpanish", "es_MX.UTF-8", Damaged,
              Repaired(RepairedInSpanish, "") + Repaired(RepairedInSpanish, "-2") +
                  "txtLoanAmount\t$100,000.00\n"},
        Story{"LanguageIsKept", "en_US.UTF-8",
              "menu mnuTools mnuToolsLanguage mnuToolsLanguageOpt(2)\nquit\nstart en_US.UTF-8\n"
              "name mnuFile",
              "mnuFile\tArchivo\n"}),
    [](const auto& story) { return story.param.name; });

} // namespace
