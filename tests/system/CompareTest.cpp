#include "Story.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class CompareStory : public testing::TestWithParam<Story> {};

TEST_P(CompareStory, IsShown) { ExpectShown(GetParam()); }

/// Two offers for the same 100,000; their payments in the main window and in the comparison.
const std::string TwoOffers = R"(
type cboLoanName Home
type txtLoanAmount 100000
type txtWho(0) North
number txtInterestRate(0) 6
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
type txtWho(1) South
number txtInterestRate(1) 5.5
type txtTerm(1) 15
choose cboFrequency(1) @114
)";

const std::string Raised =
    "dialog\tThe payment you intend to make cannot be lower than the payment calculated for the "
    "offer. It has been set to the calculated payment; you can enter a higher one.\n";

/// What lenders charge is typed into the table, and is there again in the next run.
const std::string Costs = TwoOffers + R"(
read txtPayment(0) txtPayment(1)
compare
compared
figure 902 North
figure 902 South
figure 907 North
figure 907 South
nameless
costs 900 South
figure 904 South
figure 907 South
compared
back
menu mnuFile mnuFileSave
quit
start en_US.UTF-8
choose cboLoanName Home
compare
figure 904 North
figure 904 South
back
quit
)";

const std::string CostsShown =
    Raised + "txtPayment(0)\t$599.55\n"
             "txtPayment(1)\t$817.08\n"
             "title\tCompare Offers: Home\n"
             "answer\tKept 5 years, South costs least: $24,314, which is $4,713 less than North.\n"
             "902 North\t$599.55\n"
             "902 South\t$817.08\n"
             "907 North\t$29,027.39\n"
             "907 South\t$24,314.03, the best of its column\n"
             "nameless\t\n"
             "904 South\t$900.00\n"
             "907 South\t$25,214.03, the best of its column\n"
             "title\tCompare Offers: Home\n"
             "answer\tKept 5 years, South costs least: $25,214, which is $3,813 less than North.\n"
             "904 North\t$0.00\n"
             "904 South\t$900.00\n";

/// The years are typed, and moved in the chart with the mouse.
const std::string Horizon = TwoOffers + R"(
compare
count 3 @990
show 1201
nameless
chart Home ctrl+Right Up
years
dragyears 6
back
menu mnuTools mnuToolsLanguage mnuToolsLanguageOpt(2)
compare
compared
years
show 1202
nameless
show 1200
)";

const std::string HorizonShown =
    Raised +
    "nameless\t\n"
    "chart\tchart\n"
    "chart\tCost so far\n"
    "chart\tMonth 12: North has cost $5,966.59.\n"
    "years\t3\n"
    "title\tComparar ofertas: Home\n"
    "answer\tEn 6 años, South cuesta menos que las demás: $28,310, es decir, $6,256 menos que "
    "North.\n"
    "years\t6\n"
    "nameless\t\n";

/// The table is exported; a print is cancelled in its dialog; the comparison ends with the program.
const std::string Export = TwoOffers + R"(
compare
export offers.csv
push @978
end Cancel
unprinted
back
close
answer @126
ended
)";

const std::string ExportShown =
    Raised +
    "export\tLender,\"A month, no escrow\",At closing,Costs,APR (estimated),Cost in 5 years,"
    "Balance then,Total cost,Rate to match\\n"
    "North,599.55,0,0,6.00000001,29027.3933,93054.3933,115838.5308,5.055\\n"
    "South,817.08,0,0,5.50000006,24314.0346,75289.2346,47075.3682,\\n\n"
    "answer\tDo you want to save the changes to “Home”?\n";

const std::vector<Story> Stories{
    {"Costs", "en_US.UTF-8", Costs, CostsShown},
    {"Horizon", "en_US.UTF-8", Horizon, HorizonShown},
    {"Export", "en_US.UTF-8", Export, ExportShown},
};

INSTANTIATE_TEST_SUITE_P(Compare, CompareStory, testing::ValuesIn(Stories),
                         [](const auto& story) { return std::string(story.param.name); });

} // namespace
