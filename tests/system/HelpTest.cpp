// Help: contents, F1 in a field, What's This for a disabled control, and About with the system
// information.

#include "Story.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class HelpStory : public testing::TestWithParam<Story> {};

TEST_P(HelpStory, IsShown) { ExpectShown(GetParam()); }

const std::string Asking = R"(
menu mnuHelp mnuHelpContents
page
leave
key txtAnnualTaxes F1
page
leave
ask vsbLoans
leave
tool kinfocenter
menu mnuHelp mnuHelpAbout
look
push @591
started
end @90
read txtAnnualTaxes
)";

const std::vector<Story> Stories{
    {"InEnglish", "en_US.UTF-8", Asking,
     "page\tWelcome to Quend Loan\npage\tFields: the loan you want\nask\tFields: the offers\n"
     "look\tQuend Loan\\nVersion 0.1.0\\nA loan calculator for people shopping for a loan\\n"
     "Copyright 2026 Quend Halverworks. Figures are estimates and no offer of credit.\n"
     "started\tkinfocenter\ntxtAnnualTaxes\t\n"},
    {"InSpanish", "es_MX.UTF-8", Asking,
     "page\tBienvenido a Quend Loan\npage\tCampos: el préstamo que busca\n"
     "ask\tCampos: las ofertas\n"
     "look\tQuend Loan\\nVersión 0.1.0\\n"
     "Una calculadora de préstamos para quien busca un préstamo\\n"
     "Copyright 2026 Quend Halverworks. Las cifras son estimaciones y no una oferta de crédito.\n"
     "started\tkinfocenter\ntxtAnnualTaxes\t\n"},
};

INSTANTIATE_TEST_SUITE_P(Help, HelpStory, testing::ValuesIn(Stories),
                         [](const auto& story) { return std::string(story.param.name); });

} // namespace
