// Drag and drop with a real mouse on a real X server, within the window and to and from another
// program that does not use Qt (scripts/driver/neighbour.py).

#include "Story.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class DragStory : public testing::TestWithParam<Story> {};

TEST_P(DragStory, IsShown) { ExpectShown(GetParam()); }

/// Two offers; the second one's rate has too many decimals as a fraction.
const std::string Offers = R"(
type txtLoanAmount 100000
number txtPoints(0) 1.5
number txtInterestRate(0) 6.5
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
type txtActualPayment(0) 700
type txtWho(0) Old Mill
number txtInterestRate(1) 6.25
type txtTerm(1) 30
choose cboFrequency(1) @114
)";

const std::string BetweenRows = R"(
drag txtPoints(0) txtPoints(3)
expect txtPoints(3) 1.500
drag txtActualPayment(0) txtActualPayment(1)
expect txtActualPayment(1) $700.00
drag txtWho(0) txtWho(1)
expect txtWho(1) Old Mill
drag txtInterestRate(1) txtInterestRate(0)
read txtInterestRate(0)
drag txtInterestRate(0) txtInterestRate(1)
expect txtInterestRate(1) 6.500%
read txtPandI(1) txtPoints(0)
)";

/// The second offer costs less and is sorted first; a drop on the first row affects that offer.
const std::string AfterASort = R"(
number txtPoints(1) 2
type txtActualPayment(1) 900
sort cmdInterest
expect txtPoints(0) 2.000
drag txtWho(1) txtWho(0)
expect txtWho(0) Old Mill
drag txtPoints(1) txtPoints(0)
expect txtPoints(0) 1.500
sort cmdPayoffDate
read txtInterestRate(0) txtPoints(0) txtWho(0) txtInterestRate(1) txtPoints(1) txtWho(1)
)";

const std::string AfterASortShown =
    "txtInterestRate(0)\t6.250%\ntxtPoints(0)\t1.500\ntxtWho(0)\tOld Mill\n"
    "txtInterestRate(1)\t6.500%\ntxtPoints(1)\t1.500\ntxtWho(1)\tOld Mill\n";

const std::string BetweenRowsShown = "txtInterestRate(0)\t6.500%\n"
                                     "txtPandI(1)\t$632.07\ntxtPoints(0)\t1.500\n";

/// Drags that do not start, and drags without effect; a last drag shows that dragging works.
const std::string Nothing = R"(
dragright txtPoints(0) txtPoints(3)
dragescape txtPoints(0) txtPoints(3)
drag txtPoints(0) txtTerm(3)
drag txtPoints(0) txtLoanTerm
dragnothing txtTerm(0) txtPoints(3)
read txtPoints(3) txtTerm(3) txtLoanTerm txtPoints(0)
drag txtPoints(0) txtPoints(3)
expect txtPoints(3) 1.500
)";

const std::string NothingShown =
    "txtPoints(3)\t\ntxtTerm(3)\t\ntxtLoanTerm\t\ntxtPoints(0)\t1.500\n";

const std::string FromOutside = R"(
meet 12abc
dragin txtPoints(1)
dragin txtWho(1)
expect txtWho(1) 12abc
dragin txtTerm(1)
meet 0.0625
dragin txtInterestRate(0)
meet 0.07
dragin txtInterestRate(0)
expect txtInterestRate(0) 7.000%
read txtPoints(1) txtTerm(1) txtPandI(0)
)";

const std::string FromOutsideShown = "drag\tnone\ndrag\tcopy\ndrag\tnone\ndrag\tnone\ndrag\tcopy\n"
                                     "txtPoints(1)\t\ntxtTerm(1)\t30\ntxtPandI(0)\t$665.30\n";

/// Has the form of a number, but is none.
const std::string NoNumber = R"(
meet -
dragin txtPoints(0)
dialog
read txtPoints(0)
)";

const std::string NoNumberShown =
    "drag\tcopy\ndialog\terrn=13  src=Loan  desc=Type mismatch\ntxtPoints(0)\t1.500\n";

const std::string ToOutside = R"(
meet nothing
drag txtInterestRate(0) neighbour
got
meet nothing
drag txtActualPayment(0) neighbour
got
meet nothing
drag txtWho(0) neighbour
got
)";

/// A drop replaces the text being typed in its field, but keeps it in other fields of the row.
const std::string WhileTyping = R"(
meet 2.25
keystrokes txtPoints(0) 9
dragin txtPoints(0)
expect txtPoints(0) 2.25
key txtPoints(0) Tab
expect txtPoints(0) 2.250
keystrokes txtTerm(0) 15
dragin txtPoints(0)
expect txtTerm(0) 15
key txtTerm(0) Tab
read txtTerm(0) txtPoints(0) txtPandI(0)
)";

const std::string WhileTypingShown =
    "drag\tcopy\ndrag\tcopy\ntxtTerm(0)\t15\ntxtPoints(0)\t2.250\ntxtPandI(0)\t$871.11\n";

/// A row below the visible ones scrolls into view when it is entered, and accepts a drop there.
const std::string Scrolled = R"(
key txtPoints(0) Down Down Down Down Down Down Down
expect txtPoints(7) 
drag txtPoints(2) txtPoints(6)
expect txtPoints(6) 2.500
read txtPoints(5) txtPoints(7)
)";

/// Holding a drag at the lower edge scrolls to the last row, which accepts the drop.
const std::string HeldAtTheEdge = R"(
key txtPoints(0) Down Down Down Down Down Down Down
expect txtPoints(7) 
key txtPoints(7) Up Up Up Up Up Up Up
dragon txtPoints(0) txtPoints(5) txtPoints(8)
expect txtPoints(8) 2.500
read txtPoints(5) txtPoints(6) txtPoints(7)
)";

const std::string ByKeys = R"(
key txtInterestRate(0) ctrl+c
key txtInterestRate(2) ctrl+v Tab
expect txtInterestRate(2) 6.500%
key txtInterestRate(1) ctrl+c
key txtInterestRate(2) ctrl+v
dialog
expect txtInterestRate(2) 6.5
)";

const std::string ByKeysShown = "dialog\t“0.0625” cannot be pasted here. Please paste a number of "
                                "the form nnnn.nnn\n";

const std::vector<Story> Stories{
    {"BetweenRows", "en_US.UTF-8", Offers + BetweenRows, Notice + BetweenRowsShown},
    {"AfterASort", "en_US.UTF-8", Offers + AfterASort, Notice + AfterASortShown},
    {"WhatStartsNothing", "en_US.UTF-8", Offers + Nothing, Notice + NothingShown},
    {"FromAnotherProgram", "en_US.UTF-8", Offers + FromOutside, Notice + FromOutsideShown},
    {"FromAnotherProgramWhatIsNoNumber", "en_US.UTF-8", Offers + NoNumber, Notice + NoNumberShown},
    {"ToAnotherProgram", "en_US.UTF-8", Offers + ToOutside,
     Notice + "got\t0.065\ngot\t700\ngot\tOld Mill\n"},
    {"ToAnotherProgramInSpain", "es_ES.UTF-8", Offers + ToOutside,
     NoticeInSpanish + "got\t0,065\ngot\t700\ngot\tOld Mill\n"},
    {"WhileTyping", "en_US.UTF-8", Offers + WhileTyping, Notice + WhileTypingShown},
    {"InAScrolledWindow", "en_US.UTF-8", "number txtPoints(2) 2.5\n" + Scrolled,
     "txtPoints(5)\t\ntxtPoints(7)\t\n"},
    {"HeldAtTheEdge", "en_US.UTF-8", "number txtPoints(0) 2.5\n" + HeldAtTheEdge,
     "txtPoints(5)\t\ntxtPoints(6)\t\ntxtPoints(7)\t\n"},
    {"ByKeys", "en_US.UTF-8", Offers + ByKeys, Notice + ByKeysShown},
};

INSTANTIATE_TEST_SUITE_P(Drag, DragStory, testing::ValuesIn(Stories),
                         [](const auto& story) { return std::string(story.param.name); });

} // namespace
