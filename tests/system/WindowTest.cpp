#include "Story.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace {

class WindowStory : public testing::TestWithParam<Story> {};

TEST_P(WindowStory, IsShown) { ExpectShown(GetParam()); }

/// Four offers for the same 100,000 at 6 % over 30 years, one for each frequency. Only the first
/// one shows the notice that its payment was filled in.
const std::string FourOffers = R"(
type txtLoanAmount 100000
type txtInterestRate(0) 6
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
type txtInterestRate(1) 6
type txtTerm(1) 30
choose cboFrequency(1) @111
type txtInterestRate(2) 6
type txtTerm(2) 30
choose cboFrequency(2) @112
type txtInterestRate(3) 6
type txtTerm(3) 30
choose cboFrequency(3) @115
number txtInterestRate(4) 6.5
read txtLoanAmount txtInterestRate(4) txtTerm(0)
read cboFrequency(0) txtPandI(0) txtPayment(0) txtActualPayment(0)
read cboFrequency(1) txtPandI(1) txtPayment(1) txtActualPayment(1)
read cboFrequency(2) txtPandI(2) txtPayment(2) txtActualPayment(2)
read cboFrequency(3) txtPandI(3) txtPayment(3) txtActualPayment(3)
)";

const std::string RaisedInEnglish =
    "dialog\tThe payment you intend to make cannot be lower than the payment calculated for the "
    "offer. It has been set to the calculated payment; you can enter a higher one.\n";
const std::string RaisedInSpanish =
    "dialog\tEl pago que piensa hacer no puede ser menor que el pago calculado para la oferta. Se "
    "fijó en el pago calculado; puede escribir uno mayor.\n";

/// The names of the four frequencies in a language.
struct Words {
    std::string notice;
    std::array<std::string, 4> frequencies;
};

const Words English{RaisedInEnglish,
                    {"Monthly", "Twice a month", "Every two weeks", "Every four weeks"}};
const Words Spanish{RaisedInSpanish,
                    {"Mensual", "Dos veces al mes", "Cada dos semanas", "Cada cuatro semanas"}};

/// The number format of a locale. A no-break space separates an amount from its currency sign.
struct Figures {
    std::string amount;
    std::string rate;
    std::array<std::string, 4> payments;
};

const Figures Dollars{"$100,000.00", "6.500%", {"$599.55", "$299.64", "$276.58", "$553.39"}};
const Figures Euros{"100.000,00\u00a0€",
                    "6,500%",
                    {"599,55\u00a0€", "299,64\u00a0€", "276,58\u00a0€", "553,39\u00a0€"}};

std::string Line(const std::string& control, const std::string& text) {
    return control + '\t' + text + '\n';
}

/// The output of FourOffers.
std::string FourOffersIn(const Words& words, const Figures& figures) {
    std::string shown = words.notice + Line("txtLoanAmount", figures.amount) +
                        Line("txtInterestRate(4)", figures.rate) + Line("txtTerm(0)", "30");
    for (std::size_t row = 0; row < words.frequencies.size(); ++row) {
        const std::string index = '(' + std::to_string(row) + ')';
        shown += Line("cboFrequency" + index, words.frequencies.at(row));
        for (const char* control : {"txtPandI", "txtPayment", "txtActualPayment"}) {
            shown += Line(control + index, figures.payments.at(row));
        }
    }
    return shown;
}

/// A balance of 10,000 at 6 %, paid with 1,000 a month from March on.
const std::string CurrentLoan = R"(
type txtAnnualTaxes 1800
type txtAnnualInsurance 900
read txtMonthlyEscrow
type txtAnnualTaxes 1000
type txtAnnualInsurance 0
read txtMonthlyEscrow
type txtAnnualTaxes 0
read txtMonthlyEscrow
type txtCurInterestRate 6
type txtCurrentBalance 10000
type txtCurActualPayment 1000
choose cboActPaymentFrequency @114
date dtNextPayment 2026-03-01
read dtNextPayment cboActPaymentFrequency txtCurPayoffDate txtCurInterestLeft txtCurAmountLeft
)";

std::string CurrentLoanIn(const std::string& monthly, const std::array<std::string, 2>& escrow,
                          const std::array<std::string, 2>& dates,
                          const std::array<std::string, 2>& left) {
    return Line("txtMonthlyEscrow", escrow[0]) + Line("txtMonthlyEscrow", escrow[1]) +
           Line("txtMonthlyEscrow", "") + Line("dtNextPayment", dates[0]) +
           Line("cboActPaymentFrequency", monthly) + Line("txtCurPayoffDate", dates[1]) +
           Line("txtCurInterestLeft", left[0]) + Line("txtCurAmountLeft", left[1]);
}

/// The language changes while the worksheet has entries; typed and chosen values stay.
const std::string ChangeOfLanguage = R"(
type txtLoanAmount 100000
type txtInterestRate(0) 6
type txtTerm(0) 30
choose cboLoanType Mortgage
choose cboFrequency(0) Every two weeks
dialog
name txtLoanAmount txtPoints(2) txtCurPayoffDate mnuFile
menu mnuTools mnuToolsLanguage mnuToolsLanguageOpt(2)
name txtLoanAmount txtPoints(2) txtCurPayoffDate mnuFile
read cboLoanType cboFrequency(0) txtPayment(0)
choose cboFrequency(0) Mensual
read txtPayment(0)
menu mnuTools mnuToolsLanguage mnuToolsLanguageOpt(1)
name txtLoanAmount
read cboLoanType cboFrequency(0) txtPayment(0)
)";

const std::string ChangeOfLanguageShown =
    RaisedInEnglish + Line("txtLoanAmount", "Loan Amount:") +
    Line("txtPoints(2)", "Offer 3, points") +
    Line("txtCurPayoffDate", "Current loan, payoff date") + Line("mnuFile", "File") +
    Line("txtLoanAmount", "Monto del préstamo:") + Line("txtPoints(2)", "Oferta 3, puntos") +
    Line("txtCurPayoffDate", "Préstamo actual, fecha de liquidación") + Line("mnuFile", "Archivo") +
    Line("cboLoanType", "Hipoteca") + Line("cboFrequency(0)", "Cada dos semanas") +
    Line("txtPayment(0)", "$276.58") + Line("txtPayment(0)", "$599.55") +
    Line("txtLoanAmount", "Loan Amount:") + Line("cboLoanType", "Mortgage") +
    Line("cboFrequency(0)", "Monthly") + Line("txtPayment(0)", "$599.55");

/// A malformed number keeps the focus and is not stored; the field rejects letters.
const std::string Refusal = R"(
keystrokes txtInterestRate(0) 1.2.3
key txtInterestRate(0) Tab
dialog
expect txtInterestRate(0) 1.2.3
keystrokes txtInterestRate(0) 6x5
expect txtInterestRate(0) 65
key txtInterestRate(0) BackSpace Tab
expect txtInterestRate(0) 6.000%
)";

/// An intended payment below the calculated one is refused, a higher one is kept.
const std::string IntendedPayment = R"(
type txtLoanAmount 100000
type txtInterestRate(0) 6
type txtTerm(0) 30
choose cboFrequency(0) @114
dialog
type txtActualPayment(0) 100
dialog
read txtActualPayment(0)
type txtActualPayment(0) 700
read txtActualPayment(0)
)";

/// Two offers are sorted while one of them is being typed; later actions affect the right offer.
const std::string Sorting = R"(
type txtLoanAmount 100000
type txtWho(0) Dear
type txtInterestRate(0) 7
type txtTerm(0) 10
choose cboFrequency(0) @114
dialog
type txtWho(1) Cheap
type txtInterestRate(1) 9
type txtTerm(1) 30
choose cboFrequency(1) @114
keystrokes txtInterestRate(1) 1
sort cmdInterest
read txtWho(0) txtInterestRate(0) txtWho(1) txtInterestRate(1)
describe cmdInterest cmdPayoffDate
sort cmdPayoffDate
read txtWho(0) txtWho(1)
sort cmdInterest
lender txtWho(0) Cheap Bank|555 0100
type txtPoints(1) 2
type cboLoanName Sorted
menu mnuFile mnuFileSave
choose cboLoanName Sorted
expect txtWho(0) Dear
read txtPoints(0) txtPoints(1) txtInterestRate(1)
describe cmdInterest
)";

const std::string SortingShown =
    RaisedInEnglish + Line("txtWho(0)", "Cheap") + Line("txtInterestRate(0)", "1.000%") +
    Line("txtWho(1)", "Dear") + Line("txtInterestRate(1)", "7.000%") +
    Line("cmdInterest", "The offers are sorted with least interest first") +
    Line("cmdPayoffDate", "Click to sort with soonest Payoff Date first") +
    Line("txtWho(0)", "Dear") + Line("txtWho(1)", "Cheap") + Line("txtPoints(0)", "2.000") +
    Line("txtPoints(1)", "") + Line("txtInterestRate(1)", "1.000%") +
    Line("cmdInterest", "Click to sort with least interest first");

const std::vector<Story> Stories{
    {"FourOffersInEnglish", "en_US.UTF-8", FourOffers, FourOffersIn(English, Dollars)},
    {"FourOffersInSpanish", "es_MX.UTF-8", FourOffers, FourOffersIn(Spanish, Dollars)},
    {"FourOffersInSpanishWithCommas", "es_ES.UTF-8", FourOffers, FourOffersIn(Spanish, Euros)},
    {"FourOffersInEnglishWithCommas", "de_DE.UTF-8", FourOffers, FourOffersIn(English, Euros)},
    {"CurrentLoanInEnglish", "en_US.UTF-8", CurrentLoan,
     CurrentLoanIn("Monthly", {"$225.00", "$83.33"}, {"3/1/2026", "1/1/2027"},
                   {"$284.79", "$10,284.79"})},
    {"CurrentLoanInSpanish", "es_MX.UTF-8", CurrentLoan,
     CurrentLoanIn("Mensual", {"$225.00", "$83.33"}, {"01/03/2026", "01/01/2027"},
                   {"$284.79", "$10,284.79"})},
    {"CurrentLoanWithCommas", "de_DE.UTF-8", CurrentLoan,
     CurrentLoanIn("Monthly", {"225,00\u00a0€", "83,33\u00a0€"}, {"01.03.2026", "01.01.2027"},
                   {"284,79\u00a0€", "10.284,79\u00a0€"})},
    {"ChangeOfLanguage", "en_US.UTF-8", ChangeOfLanguage, ChangeOfLanguageShown},
    {"Refusal", "en_US.UTF-8", Refusal,
     Line("dialog", "Please enter a number of the form nnnn.nnn")},
    {"IntendedPayment", "en_US.UTF-8", IntendedPayment,
     RaisedInEnglish + RaisedInEnglish + Line("txtActualPayment(0)", "$599.55") +
         Line("txtActualPayment(0)", "$700.00")},
    {"Sorting", "en_US.UTF-8", Sorting, SortingShown},
    {"EndsWell", "en_US.UTF-8", "title\nquit\n", Line("title", "Quend Loan")},
};

INSTANTIATE_TEST_SUITE_P(Window, WindowStory, testing::ValuesIn(Stories),
                         [](const auto& story) { return std::string(story.param.name); });

} // namespace
