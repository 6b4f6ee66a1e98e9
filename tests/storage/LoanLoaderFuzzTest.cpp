// Kept worksheets with anything in them: nothing crashes, nothing hangs, no endless rows, and what
// came in can be kept and read again without another change.
//
// Runs for half a minute; QUEND_FUZZ_SECONDS makes it as long as one likes and QUEND_FUZZ_SEED
// starts it elsewhere. A worksheet that breaks a promise is printed as lines of "name = text"; put
// into a file of tests/data/loan-corpus it is tried first from then on.

#include "LoanStore.h"

#include "Language.h"
#include "Sheet.h"
#include "StoreFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <array>
#include <random>
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
                                " Frequency",     " ActualPayment", " Who"};
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

class Fuzzer {
public:
    explicit Fuzzer(std::uint64_t seed) : m_random(seed) {}

    Values Any() {
        Values values;
        for (const char* name : Names) {
            Add(values, name);
        }
        for (int offer = 1; offer <= static_cast<int>(m_random() % 5); ++offer) {
            for (const char* word : OfferWords) {
                Add(values, "Loan " + std::to_string(offer) + word);
            }
        }
        return values;
    }

private:
    void Add(Values& values, const std::string& name) {
        if (m_random() % 8 != 0) {
            values.emplace_back(name, Text());
        }
    }
    std::string Text() {
        std::string text;
        const auto pieces = 1 + (m_random() % 6 == 0 ? m_random() % 8 : 0);
        for (std::uint64_t i = 0; i < pieces; ++i) {
            text += m_random() % 20 == 0 ? std::string(1, static_cast<char>(m_random()))
                                         : Pieces.at(m_random() % Pieces.size());
        }
        return text;
    }

    std::mt19937_64 m_random;
};

std::string Written(const Values& values) {
    std::string lines;
    for (const auto& [name, text] : values) {
        lines.append(name).append(" = ").append(text).append("\n");
    }
    return lines;
}

bool IsNumber(const std::string& name) {
    return name == "LoanCount" || name.ends_with(" FinancePoints");
}

class LoanLoaderFuzz : public testing::Test {
protected:
    LoanLoaderFuzz() {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    }

    void Keep(const Values& values) const {
        const std::string key = StoreFolder::LoanKey("fuzz");
        m_folder.Store().InOneStep([&](const RegistryAPI& store) {
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
    std::size_t Load(Sheet& sheet) const {
        return LoanStore(m_folder.Store())
            .Load(sheet.worksheet, QStringLiteral("fuzz"),
                  [&](Row last) {
                      sheet.worksheet.GrowOfferArrays(sheet.worksheet.HighestOfferRow(), last);
                  })
            .size();
    }
    /// What a figure of the worksheet is, whatever its text.
    static std::vector<std::int64_t> FiguresOf(const Worksheet& sheet) {
        std::vector<std::int64_t> figures{
            sheet.LoanAmount().TenThousandths(),        sheet.LoanTerm(),
            sheet.EscrowMonthly().TenThousandths(),     sheet.CurrentBalance().TenThousandths(),
            sheet.CurrentAmountLeft().TenThousandths(), sheet.CurrentPayoffDate().Days(),
            sheet.CurrentNextPayment().Days()};
        for (Row row{0}; row <= sheet.HighestOfferRow(); ++row.value) {
            if (LoanStore::IsWorthKeeping(sheet.OfferOfRow(row))) {
                figures.push_back(sheet.OfferOfRow(row).Term());
                figures.push_back(sheet.OfferOfRow(row).ActualPayment().TenThousandths());
            }
        }
        return figures;
    }
    void Try(const Values& values) const {
        SCOPED_TRACE(Written(values));
        Keep(values);
        Sheet first;
        Load(first);
        ASSERT_LE(first.worksheet.HighestOfferRow(), Row{15});
        ASSERT_FALSE(first.worksheet.Dirty());
        ASSERT_EQ(first.worksheet.LoanName(), QStringLiteral("fuzz"));
        LoanStore(m_folder.Store()).Save(first.worksheet);
        Sheet again;
        Load(again);
        ASSERT_EQ(FiguresOf(first.worksheet), FiguresOf(again.worksheet));
    }

    StoreFolder m_folder;
};

int FromEnvironment(const char* name, int otherwise) {
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

TEST_F(LoanLoaderFuzz, TheCorpusKeepsThePromises) {
    const QDir corpus(QStringLiteral(QUEND_TEST_DATA "/loan-corpus"));
    const QStringList files = corpus.entryList(QDir::Files);
    ASSERT_FALSE(files.isEmpty());
    for (const QString& name : files) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        Values values;
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (const qsizetype sign = line.indexOf(" = "); sign > 0) {
                values.emplace_back(line.left(sign).toStdString(),
                                    line.mid(sign + 3).toStdString());
            }
        }
        ASSERT_FALSE(values.empty()) << name.toStdString();
        Try(values);
    }
}

TEST_F(LoanLoaderFuzz, AnythingKeepsThePromises) {
    const int seconds = FromEnvironment("QUEND_FUZZ_SECONDS", 30);
    Fuzzer fuzzer(static_cast<std::uint64_t>(FromEnvironment("QUEND_FUZZ_SEED", 20'261'121)));
    QElapsedTimer timer;
    timer.start();
    int tried = 0;
    while (timer.elapsed() < seconds * 1000LL && !HasFailure()) {
        Try(fuzzer.Any());
        ++tried;
    }
    RecordProperty("worksheets", tried);
    EXPECT_GT(tried, 0);
}

} // namespace
