#include "CLoan.h"
#include "Failure.h"
#include "Frequency.h"
#include "QuendNames.h"
#include "RecordingLoanContext.h"
#include "Schedule.h"

#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <map>
#include <string>
#include <vector>

// Every row of the two tables that another program computed, to the last digit.

namespace {

using Row = std::map<std::string, std::string>;

std::vector<std::string> Split(const std::string& line) {
    std::vector<std::string> fields(1);
    for (const char character : line) {
        if (character == ',') {
            fields.emplace_back();
        } else if (character != '\r') {
            fields.back() += character;
        }
    }
    return fields;
}

std::vector<Row> ReadTable(const std::string& name) {
    std::ifstream file(std::string(QUEND_TEST_DATA "/") + name);
    std::string line;
    std::getline(file, line);
    const std::vector<std::string> columns = Split(line);
    std::vector<Row> rows;
    while (std::getline(file, line)) {
        const std::vector<std::string> fields = Split(line);
        EXPECT_EQ(fields.size(), columns.size()) << line;
        Row row{{"line", line}};
        for (std::size_t i = 0; i < columns.size() && i < fields.size(); ++i) {
            row[columns[i]] = fields[i];
        }
        rows.push_back(row);
    }
    return rows;
}

template <typename Number>
Number ToNumber(const std::string& text) {
    Number number{};
    const char* const end = text.data() + text.size();
    EXPECT_EQ(std::from_chars(text.data(), end, number).ptr, end) << text;
    return number;
}

/// "1234.5678", always with four decimals.
Money ToMoney(std::string text) {
    EXPECT_EQ(text.size() - text.find('.'), 5U) << text;
    text.erase(text.find('.'), 1);
    return Money::FromTenThousandths(ToNumber<std::int64_t>(text));
}

/// "2026-07-21"; empty is no date.
Date ToDate(const std::string& text) {
    if (text.empty()) {
        return {};
    }
    return Date::FromCalendar(ToNumber<int>(text.substr(0, 4)), ToNumber<int>(text.substr(5, 2)),
                              ToNumber<int>(text.substr(8, 2)));
}

void CheckOffer(const Row& row) {
    RecordingLoanContext context;
    context.escrowMonthly = ToMoney(row.at("escrow_monthly"));
    context.today = ToDate(row.at("today"));
    CLoan offer = MakeOffer(
        context, {.startingAmount = ToMoney(row.at("starting_amount")),
                  .points = Percent::FromPercent(ToNumber<double>(row.at("points"))),
                  .financePoints = row.at("finance_points") == "1",
                  .term = {ToNumber<int>(row.at("term"))},
                  .rate = Rate::FromFraction(ToNumber<double>(row.at("interest_rate"))),
                  .frequency = FrequencyCode(QString::fromStdString(row.at("frequency_code"))),
                  .actualPayment = ToMoney(row.at("actual_payment"))});

    EXPECT_EQ(offer.StartingPrinciple(), ToMoney(row.at("starting_principle")));
    EXPECT_EQ(offer.PandI(), ToMoney(row.at("p_and_i")));
    EXPECT_EQ(offer.Payment(), ToMoney(row.at("payment")));
    EXPECT_EQ(offer.Forced(), row.at("forced") == "1");
    EXPECT_EQ(offer.ActualPayment(), ToMoney(row.at("actual_after")));
    if (row.at("payoff_date") == "overflow") {
        EXPECT_THROW(offer.PayoffDate(), OverflowFailure);
    } else {
        EXPECT_EQ(offer.PayoffDate(), ToDate(row.at("payoff_date")));
        EXPECT_EQ(offer.Interest(), ToMoney(row.at("interest")));
    }
}

TEST(ReferenceTables, OfOffers) {
    const std::vector<Row> rows = ReadTable("offers.csv");
    ASSERT_EQ(rows.size(), 600U);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.at("line"));
        CheckOffer(row);
    }
}

void CheckCurrentLoan(const Row& row) {
    const FrequencyCode code(QString::fromStdString(row.at("actual_frequency_code")));
    const ScheduleTerms terms{
        .balance = ToMoney(row.at("balance")),
        .rate = Rate::FromFraction(ToNumber<double>(row.at("interest_rate"))),
        .payment = ToMoney(row.at("actual_payment")),
        .escrowShare = EscrowShare(code, ToMoney(row.at("escrow_monthly"))),
        .frequency = FindFrequency(code),
        .start = ToDate(row.at("next_payment")),
    };
    if (row.at("amount_left") == "overflow") {
        EXPECT_THROW(RunSchedule(terms), OverflowFailure);
        return;
    }
    // The worksheet runs no schedule while the balance or the payment is missing.
    const bool missing = terms.balance.IsZero() || terms.payment.IsZero();
    const ScheduleTotals totals = missing ? ScheduleTotals() : RunSchedule(terms);
    EXPECT_EQ(totals.paid, ToMoney(row.at("amount_left")));
    EXPECT_EQ(totals.interest, ToMoney(row.at("interest_left")));
    EXPECT_EQ(totals.payoff, ToDate(row.at("payoff_date")));
}

TEST(ReferenceTables, OfCurrentLoans) {
    const std::vector<Row> rows = ReadTable("current-loans.csv");
    ASSERT_EQ(rows.size(), 300U);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.at("line"));
        CheckCurrentLoan(row);
    }
}

} // namespace
