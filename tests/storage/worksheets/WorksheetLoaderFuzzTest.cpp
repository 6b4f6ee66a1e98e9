// Saved worksheets with arbitrary content: no crash, no hang, no endless rows. What was loaded can
// be saved and loaded again unchanged.
//
// A worksheet is written as lines of "name = text", like those in tests/data/loan-corpus.

#include "QuendNames.h"
#include "WorksheetStore.h"

#include "Fuzzing.h"
#include "Language.h"
#include "Sheet.h"
#include "StoreFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Values = std::vector<std::pair<std::string, std::string>>;

constexpr std::array Names{"LoanName",
                           "LoanType",
                           "LoanAmount",
                           "LoanTerm",
                           "EscrowTaxes",
                           "EscrowInsurance",
                           "CurrentLoanAmount",
                           "CurrentTerm",
                           "CurrentInterestRate",
                           "CurrentBalance",
                           "CurrentActualPayment",
                           "CurrentFrequency",
                           "CurrentActualFrequency",
                           "CurrentPayment",
                           "CurrentNextPayment",
                           "LoanCount",
                           "DateFormat"};
constexpr std::array OfferWords{" FinancePoints", " Points",        " Term", " InterestRate",
                                " Frequency",     " ActualPayment", " Who",  " Costs"};
constexpr std::array Pieces{"0",
                            "1",
                            "6.5",
                            "360",
                            "250000",
                            "-1",
                            "+",
                            "-",
                            ".",
                            ",",
                            "1,5",
                            "1e9",
                            "nan",
                            "inf",
                            "M",
                            "B",
                            "W",
                            "Q",
                            "m",
                            "Auto",
                            "Hipoteca",
                            " ",
                            "12/31/9999",
                            "2/29/2027",
                            "d MMM yyyy",
                            "M/d/yyyy",
                            "99999999999999999999",
                            "0.00000001",
                            "4294967296",
                            "\xF0\x9F\x8F\xA0",
                            "\xC3\xA9",
                            "\xFF",
                            "922337203685477.5807",
                            "-922337203685477.5808",
                            "2147483647",
                            "%1"};

class AnyLoan {
public:
    explicit AnyLoan(FuzzRandom& random) : m_random(&random) {}

    Values Make() {
        Values values;
        for (const char* name : Names) {
            Add(values, name);
        }
        for (std::size_t offer = 1; offer <= m_random->Below(5); ++offer) {
            for (const char* word : OfferWords) {
                Add(values, "Loan " + std::to_string(offer) + word);
            }
        }
        return values;
    }

private:
    void Add(Values& values, const std::string& name) {
        if (!m_random->OneIn(8)) {
            values.emplace_back(name, Text());
        }
    }
    std::string Text() {
        std::string text;
        for (std::size_t pieces = m_random->OneIn(6) ? 1 + m_random->Below(8) : 1; pieces > 0;
             --pieces) {
            text +=
                m_random->OneIn(20) ? std::string(1, m_random->Byte()) : m_random->AnyOf(Pieces);
        }
        return text;
    }

    FuzzRandom* m_random;
};

std::string Written(const Values& values) {
    std::string lines;
    for (const auto& [name, text] : values) {
        lines.append(name).append(" = ").append(text).append("\n");
    }
    return lines;
}

Values Read(const std::string& lines) {
    Values values;
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) {
        if (const std::size_t sign = line.find(" = "); sign != std::string::npos && sign > 0) {
            values.emplace_back(line.substr(0, sign), line.substr(sign + 3));
        }
    }
    return values;
}

bool IsNumber(const std::string& name) {
    return name == "LoanCount" || name.ends_with(" FinancePoints");
}

class WorksheetLoaderFuzz : public testing::Test {
protected:
    WorksheetLoaderFuzz() {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    }

    void Keep(const Values& values) const {
        const std::string key = StoreFolder::LoanKey("fuzz");
        m_folder.Store().InTransaction([&](const RegistryAPI& store) {
            store.DeleteKey(StoreFolder::Root, key);
            store.CreateKey(StoreFolder::Root, key);
            for (const auto& [name, text] : values) {
                if (IsNumber(name) && text.size() % 4 != 0) {
                    store.SetValue(StoreFolder::Root, key, name, RegistryType::Number,
                                   static_cast<std::int32_t>(std::hash<std::string>()(text) % 40) -
                                       4);
                } else {
                    store.SetValue(StoreFolder::Root, key, name, RegistryType::Text, text);
                }
            }
        });
    }
    void Load(Sheet& sheet) const {
        WorksheetStore(m_folder.Store())
            .Load(sheet.worksheet, QStringLiteral("fuzz"), [&](Row last) {
                sheet.worksheet.GrowOfferArrays(sheet.worksheet.HighestOfferRow(), last);
            });
    }
    /// The numeric values of the worksheet, independent of their texts.
    static std::vector<std::int64_t> FiguresOf(const Worksheet& sheet) {
        std::vector<std::int64_t> figures{
            sheet.LoanAmount().TenThousandths(),        sheet.LoanTerm().count,
            sheet.EscrowMonthly().TenThousandths(),     sheet.CurrentBalance().TenThousandths(),
            sheet.CurrentAmountLeft().TenThousandths(), sheet.CurrentPayoffDate().Days(),
            sheet.CurrentNextPayment().Days()};
        for (Row row{0}; row <= sheet.HighestOfferRow(); ++row.value) {
            if (WorksheetStore::IsWorthKeeping(sheet.OfferOfRow(row))) {
                figures.push_back(sheet.OfferOfRow(row).Term().count);
                figures.push_back(sheet.OfferOfRow(row).ActualPayment().TenThousandths());
                figures.push_back(sheet.OfferOfRow(row).Costs().TenThousandths());
            }
        }
        return figures;
    }
    void Try(const std::string& lines) const {
        Keep(Read(lines));
        Sheet first;
        Load(first);
        ASSERT_LE(first.worksheet.HighestOfferRow(), Row{15});
        ASSERT_FALSE(first.worksheet.Dirty());
        ASSERT_EQ(first.worksheet.LoanName(), QStringLiteral("fuzz"));
        WorksheetStore(m_folder.Store()).Save(first.worksheet);
        Sheet again;
        Load(again);
        ASSERT_EQ(FiguresOf(first.worksheet), FiguresOf(again.worksheet));
    }

    const FuzzTarget m_target{"loan", [this](const std::string& lines) { Try(lines); }};
    StoreFolder m_folder;
};

TEST_F(WorksheetLoaderFuzz, TheCorpusKeepsThePromises) { m_target.TryCorpus(); }

TEST_F(WorksheetLoaderFuzz, AnythingKeepsThePromises) {
    m_target.TryAtRandom([](FuzzRandom& random) { return Written(AnyLoan(random).Make()); }, 5);
}

} // namespace
