// The program as a client of a Wayland compositor, without an X server: menus, lists, dialogs, drag
// and drop, windows beside the main one. Nothing is asked of the compositor that it cannot give,
// because any warning of Qt is a complaint.

#include "Drive.h"
#include "Story.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class WaylandStory : public testing::TestWithParam<Story> {};

TEST_P(WaylandStory, IsShown) {
    const Story& story = GetParam();
    const DriveResult result =
        Drive(story.locale, story.steps, QUEND_PROGRAM_DIR "/Loan", Desktop::Wayland);
    EXPECT_EQ(result.readings, story.shown);
    EXPECT_EQ(result.complaints, "");
}

/// By keys and mouse, a dialog's buttons by their accessible actions.
const std::string InEnglish = R"(
platform
title
type cboLoanName Casa
type txtLoanAmount 100000
number txtInterestRate(0) 6.5
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
drag txtInterestRate(0) txtInterestRate(1)
expect txtInterestRate(1) 6.500%
lender txtWho(0) Old Mill|555 0100
menu mnuTools mnuToolsOptions
look
end Cancel
menu mnuFile mnuFilePrintPreview
look
leave
menu mnuFile mnuFileSave
menu mnuTools mnuToolsLanguage mnuToolsLanguageOpt(2)
name txtLoanAmount
read txtPandI(0)
compare
compared
quit
start en_US.UTF-8
choose cboLoanName Casa
read txtLoanAmount txtInterestRate(1) cboFrequency(0)
quit
)";

const std::string InSpanish = R"(
platform
number txtLoanAmount 2500.5
choose cboLoanType Automóvil
read txtLoanAmount cboLoanType
close
answer @126
ended
)";

const std::vector<Story> Stories{
    {"InEnglish", "en_US.UTF-8", InEnglish,
     "platform\twayland\n"
     "title\tQuend Loan\n"
     "dialog\tThe payment you intend to make cannot be lower than the payment calculated for the "
     "offer. It has been set to the calculated payment; you can enter a higher one.\n"
     "look\tOffers displayed:\\nFile:\\nSample of currently selected file\n"
     "look\t/ 1\n"
     "txtLoanAmount\tMonto del préstamo:\n"
     "txtPandI(0)\t$632.07\n"
     "title\tComparar ofertas: Casa\n"
     "answer\tEn 5 años, Old Mill cuesta $31,535.\n"
     "txtLoanAmount\t$100,000.00\n"
     "txtInterestRate(1)\t6.500%\n"
     "cboFrequency(0)\tMensual\n"},
    {"InSpanish", "es_MX.UTF-8", InSpanish,
     "platform\twayland\n"
     "txtLoanAmount\t$2,500.50\n"
     "cboLoanType\tAutomóvil\n"
     "answer\t¿Guardar los cambios?\n"},
};

INSTANTIATE_TEST_SUITE_P(Wayland, WaylandStory, testing::ValuesIn(Stories),
                         [](const auto& story) { return std::string(story.param.name); });

} // namespace
