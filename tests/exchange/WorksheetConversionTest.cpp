// Worksheets become files and come back, with every value that both hold.

#include "WorksheetConversion.h"
#include "EnterValues.h"
#include "Language.h"
#include "QuendNames.h"
#include "SampleSheet.h"
#include "Sheet.h"
#include "WorksheetFiles.h"

#include <QFile>

#include <gtest/gtest.h>

#include <array>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

WorksheetInFile Read(const QByteArray& json) {
    const auto read = ReadRequest(json);
    EXPECT_TRUE(read.content) << json.toStdString();
    return read.content.value_or(ComparisonRequest()).worksheet;
}

std::string Put(Sheet& sheet, const WorksheetInFile& file) {
    std::ostringstream lines;
    for (const Failure& failure : PutFile(file, sheet.worksheet, [](Row /*last*/) {})) {
        lines << failure.Number() << ' ' << failure.Source() << '\n';
    }
    return lines.str();
}

/// Everything that two worksheets show is the same.
void ExpectAlike(const Sheet& one, const Sheet& other) {
    const auto compare = [&](Field field) {
        const auto left = one.display.Of(field);
        const auto right = other.display.Of(field);
        EXPECT_EQ(left.text, right.text) << RuleOf(field.id).control.data();
        EXPECT_EQ(left.ticked, right.ticked);
        EXPECT_EQ(left.date, right.date);
        EXPECT_EQ(left.mark, right.mark) << RuleOf(field.id).control.data();
    };
    for (const FieldRule& rule : LoanFields()) {
        compare({rule.id});
    }
    for (Row row{0}; row <= one.worksheet.HighestOfferRow(); ++row.value) {
        for (const FieldRule& rule : OfferFields()) {
            compare({rule.id, row});
        }
    }
}

void FillEverything(Worksheet& sheet) {
    FillSampleLoans(sheet);
    sheet.Store({FieldId::CurPaymentFrequency}, FrequencyCode(u"B"_s));
    sheet.Store({FieldId::ActPaymentFrequency}, FrequencyCode(u"Q"_s));
    sheet.SetCurrentNextPayment(Date::FromCalendar(2026, 12, 31));
    // Blank rows keep their places; the one after the last offer is no part of the file.
    EnterOffer(sheet, Row{1},
               {{FieldId::FinancePoints, true},
                {FieldId::Points, Percent::FromPercent(1.625)},
                {FieldId::InterestRate, Rate::FromFraction(0.06125)},
                {FieldId::Term, Months{181}},
                {FieldId::Frequency, FrequencyCode(u"W"_s)},
                {FieldId::ActualPayment, Money::FromTenThousandths(9'000'0001)},
                {FieldId::Who, u"Ñandú & \"Sons\"\r\n555-0100 💶"_s},
                {FieldId::Costs, Money::FromDouble(-950.5)}});
    EnterOffer(sheet, Row{3},
               {{FieldId::InterestRate, Rate::FromFraction(0.05)},
                {FieldId::Frequency, FrequencyCode(u"M"_s)},
                {FieldId::Costs, Money::FromDouble(2'100)}});
    EnterOffer(sheet, Row{4}, {{FieldId::Term, Months{12}}});
}

TEST(WorksheetConversion, EveryValueComesBack) {
    Sheet sheet;
    FillEverything(sheet.worksheet);
    const WorksheetInFile file = ToFile(sheet.worksheet);
    ASSERT_EQ(file.offers.size(), 5U);
    EXPECT_EQ(file.loanType, u"Mortgage");
    EXPECT_EQ(file.current.frequency, FrequencyCode(u"B"_s));
    EXPECT_EQ(file.offers[0], OfferInFile());
    EXPECT_EQ(file.offers[1].offer.costs, Money::FromDouble(-950.5));
    EXPECT_EQ(file.offers[3].offer.term, Months{360});
    EXPECT_EQ(Read(WriteWorksheet(file)), file);

    Sheet other;
    other.worksheet.SetLoanName(u"Old"_s);
    EnterOffer(other.worksheet, Row{5}, {{FieldId::Who, u"Old"_s}});
    EXPECT_EQ(Put(other, file), "");
    EXPECT_EQ(ToFile(other.worksheet), file);
    sheet.worksheet.ClearRaisedMarks();
    ExpectAlike(sheet, other);
}

TEST(WorksheetConversion, OffersAreInTheOrderOfEntry) {
    Sheet sheet;
    FillEverything(sheet.worksheet);
    const WorksheetInFile file = ToFile(sheet.worksheet);
    sheet.worksheet.SortByInterest();
    ASSERT_NE(sheet.worksheet.OfferIndexOfRow(Row{0}).value, 0U);
    EXPECT_EQ(ToFile(sheet.worksheet), file);
    EXPECT_EQ(Put(sheet, file), "");
    EXPECT_EQ(ToFile(sheet.worksheet), file);
}

TEST(WorksheetConversion, ThePublishedSampleComesIn) {
    QFile sample(QStringLiteral(QUEND_SOURCE_DIR "/docs/sample.quendloan"));
    ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
    const WorksheetInFile file = Read(sample.readAll());
    Sheet sheet;
    EXPECT_EQ(Put(sheet, file), "");
    WorksheetInFile back = ToFile(sheet.worksheet);
    ASSERT_EQ(back.offers.size(), file.offers.size());
    for (std::size_t i = 0; i < back.offers.size(); ++i) {
        // Where none is given, the worksheet enters the required one, as for a saved worksheet.
        Money& payment = back.offers[i].offer.actualPayment;
        if (file.offers[i].offer.actualPayment.IsZero()) {
            payment = Money();
        }
    }
    EXPECT_EQ(back, file);
    EXPECT_EQ(sheet.display.TextOf({FieldId::Payment, Row{0}}), u"$970.56");
}

TEST(WorksheetConversion, AnEmptyWorksheetIsAnEmptyFile) {
    const Sheet sheet;
    WorksheetInFile empty = ToFile(sheet.worksheet);
    EXPECT_EQ(empty, WorksheetInFile()); // the next payment is preset
    Sheet other;
    FillEverything(other.worksheet);
    EXPECT_EQ(Put(other, empty), "");
    EXPECT_EQ(ToFile(other.worksheet), WorksheetInFile());
    EXPECT_EQ(other.worksheet.CurrentNextPayment(), other.worksheet.Today());
}

TEST(WorksheetConversion, WhatCannotBeStoredIsNamed) {
    const struct {
        const char* json;
        const char* failures;
    } table[]{
        {R"({"loanType": "Hipoteca", "offers": [{}, null, {}]})", ""},
        {R"({"loanType": "Boat", "name": "Kept"})", "13 loanType\n"},
        {R"({"current": {"frequency": "m", "actualFrequency": "X"}})",
         "13 current.actualFrequency\n13 current.frequency\n"},
        {R"({"offers": [{"frequency": "M"}, {"frequency": "Z", "costs": "1"}]})",
         "13 offers[2].frequency\n"},
        {R"({"loanType": "Boat", "amount": "900000000000000", "offers": [{"rate": 1e300, "termMonths": 9,
             "frequency": "M"}, {"frequency": "Z"}]})",
         "13 loanType\n6 offers[1]\n13 offers[2].frequency\n"},
        {R"({"current": {"amount": "900000000000000", "rate": 1e300, "termMonths": 2, "frequency": "M"}})",
         "6 current\n"},
        {R"({"current": {"balance": "100000", "rate": 0.06, "actualPayment": "1",
             "actualFrequency": "M"}})",
         "6 current.actualPayment\n"},
    };
    // A loan type may be written in any language.
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    for (const auto& row : table) {
        Sheet sheet;
        EXPECT_EQ(Put(sheet, Read(row.json)), row.failures) << row.json;
    }
}

TEST(WorksheetConversion, TakesNoMoreOffersThanThereAreRows) {
    WorksheetInFile file;
    file.offers.resize(MostOffers);
    file.offers.back().lender = u"Last"_s;
    Sheet few;
    EXPECT_EQ(Put(few, file), "");
    EXPECT_TRUE(ToFile(few.worksheet).offers.empty());
    Sheet enough(QLocale::c(), MostOffers);
    EXPECT_EQ(Put(enough, file), "");
    EXPECT_EQ(ToFile(enough.worksheet), file);
}

TEST(WorksheetConversion, WhatAFileCannotHoldIsNamed) {
    const struct {
        Field field;
        FieldValue value;
        const char* member;
    } table[]{
        {{FieldId::LoanTerm}, Months{-1}, "termMonths"},
        {{FieldId::CurInterestRate}, Rate::FromFraction(-0.01), "current.rate"},
        {{FieldId::CurLoanTerm}, Months{-360}, "current.termMonths"},
        {{FieldId::InterestRate, Row{1}}, Rate::FromFraction(-0.01), "offers[2].rate"},
        {{FieldId::Term, Row{0}}, Months{-1}, "offers[1].termMonths"},
        {{FieldId::Points, Row{0}}, Percent::FromPercent(-1), ""},
        {{FieldId::Costs, Row{0}}, Money::FromDouble(-1), ""},
        {{FieldId::LoanAmount}, Money::FromDouble(-1), ""},
    };
    for (const auto& row : table) {
        Sheet sheet;
        sheet.worksheet.Store(row.field, row.value);
        const QString why = WhyNotKept(WriteWorksheet(ToFile(sheet.worksheet)));
        EXPECT_EQ(why.isEmpty(), *row.member == '\0') << why.toStdString();
        EXPECT_TRUE(why.contains(QLatin1String(row.member))) << why.toStdString();
    }
}

} // namespace
