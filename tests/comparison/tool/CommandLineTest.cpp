#include "LoanSchedule.h"
#include "Options.h"
#include "ToolRun.h"

#include <gtest/gtest.h>

#include <array>
#include <variant>

// The command line: what each option means, and which command lines are refused with which words.

namespace {

using Arguments = std::vector<std::string>;

Options Parsed(const Arguments& arguments) {
    const auto parsed = ParseOptions(arguments);
    EXPECT_TRUE(std::holds_alternative<Options>(parsed));
    return std::holds_alternative<Options>(parsed) ? std::get<Options>(parsed) : Options();
}

TEST(CommandLine, OptionsSetWhatTheyName) {
    const Options none = Parsed({"file"});
    EXPECT_EQ(none.task, Task::Compare);
    EXPECT_EQ(none.format, Format::Text);
    EXPECT_FALSE(none.years || none.payments || none.today);

    const Options all = Parsed({"--years=7", "--payments", "1500.5", "--today", "2026-02-28",
                                "--format", "csv", "--schedule", "current", "--", "--lines"});
    EXPECT_EQ(all.task, Task::Schedule);
    EXPECT_EQ(all.place, CurrentLoanPlace);
    EXPECT_EQ(all.format, Format::Csv);
    EXPECT_EQ(all.years, 7);
    EXPECT_EQ(all.payments, PaymentChoice::Monthly);
    EXPECT_EQ(all.monthlyPayment, Money::FromTenThousandths(15'005'000));
    EXPECT_EQ(all.today, Date::FromCalendar(2026, 2, 28));
    EXPECT_EQ(all.files, Arguments{"--lines"});

    EXPECT_EQ(Parsed({"--payments", "intended", "--payments", "computed", "-"}).payments,
              PaymentChoice::Required);
    EXPECT_EQ(Parsed({"--payments=-1", "-"}).monthlyPayment, Money::FromTenThousandths(-10'000));
    EXPECT_EQ(Parsed({"--schedule", "16", "-"}).place, 16);
    EXPECT_EQ(Parsed({"--payment-by", "2030-01-31", "-"}).paymentBy,
              Date::FromCalendar(2030, 1, 31));
    EXPECT_EQ(Parsed({"--lines", "--format", "json", "a", "b"}).files, (Arguments{"a", "b"}));
    EXPECT_EQ(Parsed({"--lines"}).files, Arguments());
    EXPECT_EQ(Parsed({"--lines", "--schedule", "1", "-h", "a", "b"}).task, Task::Help);
    EXPECT_EQ(Parsed({"-v"}).task, Task::Version);
}

TEST(CommandLine, IsRefusedInWords) {
    struct Case {
        Arguments arguments;
        const char* words;
    };
    const std::array cases{
        Case{{}, "No file is named."},
        Case{{"--"}, "No file is named."},
        Case{{"a", "b"}, "Only one file can be compared at a time."},
        Case{{"--year", "5", "a"}, "There is no option --year."},
        Case{{"--horizon=5", "a"}, "There is no option --horizon."},
        Case{{"-x", "a"}, "There is no option -x."},
        Case{{"--YEARS", "5", "a"}, "There is no option --YEARS."},
        Case{{"a", "--years"}, "The option --years needs a value."},
        Case{{"--lines=1"}, "The option --lines takes no value."},
        Case{{"--help="}, "The option --help takes no value."},
        Case{{"--format", "xml", "a"}, "“xml” is not a format."},
        Case{{"--format", "", "a"}, "“” is not a format."},
        Case{{"--years", "0", "a"}, "“0” is not a whole number of years from 1 to 50."},
        Case{{"--years", "51", "a"}, "“51” is not a whole"},
        Case{{"--years", "5.0", "a"}, "“5.0” is not a whole"},
        Case{{"--years", "+5", "a"}, "“+5” is not a whole"},
        Case{{"--years", "", "a"}, "“” is not a whole"},
        Case{{"--years", "99999999999", "a"}, "“99999999999” is not a whole"},
        Case{{"--payments", "Intended", "a"}, "“Intended” is neither “intended” nor"},
        Case{{"--payments", "1.23456", "a"}, "“1.23456” is neither"},
        Case{{"--payments", "1,500.00", "a"}, "“1,500.00” is neither"},
        Case{{"--today", "2026-02-29", "a"}, "“2026-02-29” is not a date such as"},
        Case{{"--today", "2026-2-9", "a"}, "“2026-2-9” is not a date"},
        Case{{"--today", "1899-12-30", "a"}, "“1899-12-30” is not a date"}, // means no date
        Case{{"--payment-by", "soon", "a"}, "“soon” is not a date"},
        Case{{"--schedule", "0", "a"}, "“0” is neither the number of an offer nor “current”."},
        Case{{"--schedule", "-1", "a"}, "“-1” is neither"},
        Case{{"--schedule", "Current", "a"}, "“Current” is neither"},
        Case{{"--lines", "--schedule", "1"}, "--schedule and --lines cannot be used together."},
        Case{{"--lines", "--payment-by", "2030-01-01"}, "--payment-by and --lines cannot be"},
        Case{{"--schedule", "1", "--payment-by", "2030-01-01", "a"}, "--schedule and --payment-by"},
        Case{{"--lines", "--format", "csv"}, "--lines and --format cannot be used together."},
        Case{{"--schedule", "1", "--format", "json", "a"}, "--schedule and --format cannot be"},
    };
    for (const Case& refused : cases) {
        SCOPED_TRACE(refused.words);
        const ToolResult result = RunTool(refused.arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.err.find(refused.words), std::string::npos) << result.err;
        EXPECT_TRUE(result.err.ends_with("“quend-compare --help” lists the options.\n"));
    }
}

TEST(CommandLine, IsRefusedInTheUsersLanguage) {
    EXPECT_EQ(RunTool({"--years", "x", "-"}, {}, Tongue::Spanish),
              (ToolResult{2, "",
                          "quend-compare: «x» no es un número entero de años de 1 a 50.\n"
                          "quend-compare: «quend-compare --help» muestra las opciones.\n"}));
}

TEST(CommandLine, HelpNamesEveryOption) {
    for (const Tongue tongue : {Tongue::English, Tongue::Spanish}) {
        const ToolResult help = RunTool({"--help"}, {}, tongue);
        EXPECT_EQ(help.status, 0);
        EXPECT_EQ(help.err, "");
        for (const char* option :
             {"--format text|csv|json\n", "--years N\n", "--payments intended|computed|",
              "--today ", "--schedule N|current\n", "--payment-by ", "--lines\n", "-h, --help\n",
              "-v, --version\n", "quend-compare --lines ["}) {
            EXPECT_NE(help.out.find(option), std::string::npos) << option << help.out;
        }
    }
    EXPECT_TRUE(RunTool({"-h"}, {}, Tongue::Spanish).out.starts_with("Uso: quend-compare"));
}

TEST(CommandLine, VersionIsOneLine) {
    const std::string version = RunTool({"--version"}).out;
    EXPECT_TRUE(version.starts_with("quend-compare 0."));
    EXPECT_EQ(version.find('\n'), version.size() - 1);
}

} // namespace
