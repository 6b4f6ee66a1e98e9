// Worksheets saved and loaded: every value by its name, in any language and locale.

#include "QuendNames.h"
#include "RepairedWorksheets.h"
#include "WorksheetStoreFixture.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

struct KeptText {
    const char* value;
    const char* inEnglish;
    const char* inGerman;
};

const std::vector<KeptText> KeptTexts{
    {"LoanName", "Our new home", "Our new home"},
    {"LoanType", "Mortgage", "Mortgage"},
    {"LoanAmount", "250000.5", "250000,5"},
    {"LoanTerm", "360", "360"},
    {"EscrowTaxes", "3600", "3600"},
    {"EscrowInsurance", "1200.25", "1200,25"},
    {"CurrentLoanAmount", "230000", "230000"},
    {"CurrentTerm", "342", "342"},
    {"CurrentInterestRate", "7.125", "7,125"},
    {"CurrentBalance", "198450.75", "198450,75"},
    {"CurrentActualPayment", "2050", "2050"},
    {"CurrentFrequency", "B", "B"},
    {"CurrentActualFrequency", "W", "W"},
    {"CurrentPayment", "1186.35", "1186,35"},
    {"CurrentNextPayment", "12/3/2026", "03.12.2026"},
    {"Loan 1 Points", "1.125", "1,125"},
    {"Loan 1 Term", "186", "186"},
    {"Loan 1 InterestRate", "6.25", "6,25"},
    {"Loan 1 Frequency", "Q", "Q"},
    {"Loan 1 ActualPayment", "5000", "5000"},
    {"Loan 1 Who", "First\r\nPrairie Bank", "First\r\nPrairie Bank"},
    {"Loan 1 Costs", "-950.5", "-950,5"},
};

TEST_F(WorksheetStoreTest, WritesEachValueUnderItsName) {
    for (const auto& [locale, text] :
         {std::pair{UnitedStates, &KeptText::inEnglish}, std::pair{Germany, &KeptText::inGerman}}) {
        Sheet sheet(locale);
        Fill(sheet.worksheet);
        FillOffer(sheet.worksheet, Row{0}, u"First\r\nPrairie Bank"_s);
        Save(sheet);
        EXPECT_FALSE(sheet.worksheet.Dirty());
        for (const KeptText& kept : KeptTexts) {
            EXPECT_EQ(kept.*text, Kept(kept.value)) << kept.value;
        }
        EXPECT_EQ(-1, m_folder.Number(Key, "Loan 1 FinancePoints"));
        EXPECT_EQ(1, m_folder.Number(Key, "LoanCount"));
    }
}

TEST_F(WorksheetStoreTest, AnEmptyWorksheetIsKeptAsZeros) {
    Sheet sheet;
    sheet.worksheet.SetLoanName(u"Our new home"_s);
    Save(sheet);
    for (const char* value : {"LoanAmount", "LoanTerm", "EscrowTaxes", "CurrentInterestRate"}) {
        EXPECT_EQ("0", Kept(value)) << value;
    }
    for (const char* value : {"LoanType", "CurrentFrequency", "CurrentActualFrequency"}) {
        EXPECT_EQ("", Kept(value)) << value;
    }
    EXPECT_EQ(0, m_folder.Number(Key, "LoanCount"));
    EXPECT_EQ("(missing)", Kept("Loan 1 Who"));
}

TEST_F(WorksheetStoreTest, OnlyCostsThatAreNotZeroAreKept) {
    Sheet sheet;
    Fill(sheet.worksheet);
    FillOffer(sheet.worksheet, Row{0}, u"First"_s);
    for (const auto& [costs, kept] :
         {std::pair{950.5, "950.5"}, {0.0, "(missing)"}, {0.01, "0.01"}, {0.0, "(missing)"}}) {
        sheet.worksheet.Store({FieldId::Costs, Row{0}}, Units(costs));
        EXPECT_TRUE(sheet.worksheet.Dirty());
        Save(sheet);
        EXPECT_EQ(kept, Kept("Loan 1 Costs"));
        EXPECT_TRUE(FindIncomplete(m_folder.Store()).incomplete.isEmpty());
        Sheet read;
        EXPECT_TRUE(Load(read).empty());
        EXPECT_EQ(Units(costs), read.worksheet.OfferOfRow(Row{0}).Costs());
        read.worksheet.Clear();
        EXPECT_EQ(Money(), read.worksheet.OfferOfRow(Row{0}).Costs());
    }
    m_folder.Store().DeleteValue(StoreFolder::Root, Key, "Loan 1 Points");
    EXPECT_EQ(FindIncomplete(m_folder.Store()).incomplete, QStringList(u"Our new home"_s));
}

/// The values that this worksheet would save.
std::map<std::string, std::string> ValuesOf(Worksheet& worksheet) {
    const StoreFolder folder;
    worksheet.SetLoanName(u"same"_s);
    WorksheetStore(folder.Store()).Save(worksheet);
    std::map<std::string, std::string> values;
    const std::string key = StoreFolder::LoanKey("same");
    for (const KeptText& kept : KeptTexts) {
        values[kept.value] = folder.Text(key, kept.value);
    }
    values["count"] = std::to_string(folder.Number(key, "LoanCount"));
    values["financed"] = std::to_string(folder.Number(key, "Loan 1 FinancePoints"));
    return values;
}

TEST_F(WorksheetStoreTest, WhatWasKeptComesBackEqual) {
    Sheet written;
    Fill(written.worksheet);
    FillOffer(written.worksheet, Row{0}, u"First\r\nPrairie Bank"_s);
    Save(written);
    Sheet read;
    EXPECT_TRUE(Load(read).empty());
    EXPECT_FALSE(read.worksheet.Dirty());
    EXPECT_EQ(u"Our new home", read.worksheet.LoanName());
    EXPECT_EQ(read.worksheet.EscrowMonthly(), Units(400.02));
    EXPECT_EQ(ValuesOf(written.worksheet), ValuesOf(read.worksheet));
}

struct Abroad {
    const char* name;
    QLocale writer;
    int writerLanguage;
    QLocale reader;
    int readerLanguage;
};

TEST_F(WorksheetStoreTest, NoFigureChangesUnderAnotherLocaleOrLanguage) {
    for (const Abroad& abroad :
         {Abroad{"US to Germany", UnitedStates, English, Germany, English},
          Abroad{"Germany to US", Germany, English, UnitedStates, English},
          Abroad{"US to Mexico", UnitedStates, English, Mexico, Spanish},
          Abroad{"Mexico to US", Mexico, Spanish, UnitedStates, English},
          Abroad{"none to Germany", QLocale::c(), English, Germany, Spanish},
          Abroad{"Germany to none", Germany, Spanish, QLocale::c(), English}}) {
        Sheet written(abroad.writer);
        Language::Instance().LoadLanguage(abroad.writerLanguage);
        Fill(written.worksheet);
        FillOffer(written.worksheet, Row{0}, u"Añil"_s);
        Save(written);
        Language::Instance().LoadLanguage(abroad.readerLanguage);
        Sheet read(abroad.reader);
        EXPECT_TRUE(Load(read).empty()) << abroad.name;
        EXPECT_EQ(u"M", read.worksheet.LoanType().Text()) << abroad.name;
        EXPECT_EQ(Units(250'000.5), read.worksheet.LoanAmount()) << abroad.name;
        EXPECT_EQ(Rate::FromFraction(0.07125), read.worksheet.CurrentInterestRate()) << abroad.name;
        EXPECT_EQ(Date::FromCalendar(2026, 12, 3), read.worksheet.CurrentNextPayment())
            << abroad.name;
        EXPECT_EQ(Percent::FromPercent(1.125), read.worksheet.OfferOfRow(Row{0}).Points())
            << abroad.name;
    }
}

TEST_F(WorksheetStoreTest, OffersComeBackPacked) {
    Sheet sheet;
    Fill(sheet.worksheet);
    FillOffer(sheet.worksheet, Row{2}, u"Second"_s);
    FillOffer(sheet.worksheet, Row{5}, u"Fifth"_s);
    Save(sheet);
    EXPECT_EQ(2, m_folder.Number(Key, "LoanCount"));
    EXPECT_EQ("Fifth", Kept("Loan 2 Who"));
    EXPECT_EQ("(missing)", Kept("Loan 3 Who"));

    Sheet other;
    FillOffer(other.worksheet, Row{4}, u"Of before"_s);
    EXPECT_TRUE(Load(other).empty());
    const std::vector<QString> expected{u"Second"_s, u"Fifth"_s, {}, {}, {}, {}};
    for (Row row{0}; row <= other.worksheet.HighestOfferRow(); ++row.value) {
        EXPECT_EQ(expected.at(static_cast<std::size_t>(row.value)),
                  other.worksheet.OfferOfRow(row).Who());
    }
    EXPECT_EQ(Months{0}, other.worksheet.OfferOfRow(Row{4}).Term());
    EXPECT_EQ(u"", other.display.TextOf({FieldId::Payment, Row{4}}));
}

TEST_F(WorksheetStoreTest, AShorterSaveLeavesNoOldOffers) {
    Sheet sheet;
    Fill(sheet.worksheet);
    FillOffer(sheet.worksheet, Row{0}, u"First"_s);
    FillOffer(sheet.worksheet, Row{1}, u"Second"_s);
    Save(sheet);
    sheet.worksheet.Clear();
    sheet.worksheet.SetLoanName(u"Our new home"_s);
    Save(sheet);
    EXPECT_EQ("(missing)", Kept("Loan 1 Who"));
    EXPECT_EQ("(missing)", Kept("Loan 2 Who"));
    EXPECT_EQ(0, m_folder.Number(Key, "LoanCount"));
}

TEST_F(WorksheetStoreTest, MoreOffersThanRowsAddRows) {
    Sheet sheet(UnitedStates, 16);
    Fill(sheet.worksheet);
    for (Row row{0}; row.value < 16; ++row.value) {
        FillOffer(sheet.worksheet, row, QString::number(row.value));
    }
    Save(sheet);
    Sheet small(UnitedStates, 2);
    EXPECT_TRUE(Load(small).empty());
    EXPECT_EQ(Row{15}, small.worksheet.HighestOfferRow());
    EXPECT_EQ(u"15", small.worksheet.OfferOfRow(Row{15}).Who());
}

TEST_F(WorksheetStoreTest, WhatMakesAnOfferWorthKeeping) {
    struct Case {
        const char* name;
        std::pair<FieldId, FieldValue> entered;
        bool worth;
    };
    for (const Case& row : {
             Case{"nothing", {FieldId::Term, Months()}, false},
             Case{"a term", {FieldId::Term, Months{360}}, false},
             Case{"a frequency", {FieldId::Frequency, FrequencyCode(u"M"_s)}, false},
             Case{"a lender", {FieldId::Who, u"x"_s}, true},
             Case{"a payment", {FieldId::ActualPayment, Units(1)}, true},
             Case{"financed", {FieldId::FinancePoints, true}, true},
             Case{"a rate", {FieldId::InterestRate, Rate::FromFraction(0.01)}, true},
             Case{"points", {FieldId::Points, Percent::FromPercent(-0.5)}, true},
             Case{"costs", {FieldId::Costs, Units(-0.01)}, true},
         }) {
        Sheet sheet;
        sheet.worksheet.SetLoanName(u"Our new home"_s);
        EnterOffer(sheet.worksheet, Row{3}, {row.entered});
        Save(sheet);
        EXPECT_EQ(row.worth ? 1 : 0, m_folder.Number(Key, "LoanCount")) << row.name;
    }
}

TEST_F(WorksheetStoreTest, NamesThatCanAndCannotBeKeys) {
    Language::Instance().LoadLanguage(Spanish);
    struct Case {
        QString name;
        NameFault fault;
    };
    using Fault = NameFault;
    for (const Case& row : {
             Case{u""_s, Fault::Empty},
             Case{u" "_s, Fault::Empty},
             Case{u"  "_s, Fault::None},
             Case{u"Casa de la Ñandú 🏠"_s, Fault::None},
             Case{u"C:\\loans"_s, Fault::NoKey},
             Case{u"\\"_s, Fault::NoKey},
             Case{u"Alpha\\"_s, Fault::NoKey},
             Case{u"\\Alpha"_s, Fault::NoKey},
             Case{QString(255, u'x'), Fault::None},
             Case{QString(256, u'x'), Fault::NoKey},
             Case{u"(new loan)"_s, Fault::NewLoan},
             Case{u"(préstamo nuevo)"_s, Fault::NewLoan},
             Case{u"a/b*c?"_s, Fault::None},
             Case{u"a"_s + QChar(QChar::Null), Fault::NoKey},
             Case{u"half "_s + QChar(0xD83C), Fault::NoKey},
         }) {
        EXPECT_EQ(row.fault, WorksheetStore::FaultOf(row.name)) << row.name.toStdString();
        EXPECT_EQ(row.fault == Fault::Empty, Worksheet::IsEmptyName(row.name));
    }
}

TEST_F(WorksheetStoreTest, ANameThatNoWorksheetCanHaveReachesNoOther) {
    m_folder.Store().SetValue(StoreFolder::Root, BaseKey, "TermInMonths", RegistryType::Number, 5);
    Sheet nothing;
    Loans().Delete(u"\\"_s); // must not delete the base key with the settings
    EXPECT_EQ(5, m_folder.Number(BaseKey, "TermInMonths"));
    for (const QString& saved : {u"Alpha"_s, u"half \uFFFD"_s}) {
        Sheet sheet;
        sheet.worksheet.SetLoanName(saved);
        Save(sheet);
    }
    const QStringList kept = Loans().Names();
    for (const QString& name :
         {u"\\"_s, u"Alpha\\"_s, u"\\Alpha"_s, u"Alpha\\\\"_s, u"\\\\Alpha"_s, QString(),
          u"Alpha"_s + QChar(QChar::Null), u"half "_s + QChar(0xD83C)}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_FALSE(Outcome(nothing, name).exists);
        EXPECT_TRUE(nothing.worksheet.LoanName().isEmpty());
        Loans().Delete(name);
        EXPECT_EQ(kept, Loans().Names());
        Sheet other;
        other.worksheet.SetLoanName(name);
        EXPECT_THROW(Save(other), Failure);
        EXPECT_EQ(kept, Loans().Names());
    }
    EXPECT_EQ(5, m_folder.Number(BaseKey, "TermInMonths"));
}

TEST_F(WorksheetStoreTest, TheLongestNameAndEveryNameWithinItsLimitsAreKept) {
    for (const QString& name : {QString(255, u'x'), u"  "_s, u" lead and trail "_s, u"Ñ🏠é"_s}) {
        Sheet sheet;
        sheet.worksheet.SetLoanName(name);
        sheet.worksheet.SetLoanAmount(Units(7));
        Save(sheet);
        EXPECT_TRUE(Loans().Names().contains(name)) << name.toStdString();
        Sheet read;
        EXPECT_TRUE(Load(read, name).empty());
        EXPECT_EQ(Units(7), read.worksheet.LoanAmount());
    }
}

TEST_F(WorksheetStoreTest, NamesAreListedInAlphabeticalOrder) {
    EXPECT_TRUE(Loans().Names().isEmpty());
    for (const QString& name : {u"beta"_s, u"Alpha"_s, u"gamma"_s, u"ALPHA 2"_s}) {
        Sheet sheet;
        sheet.worksheet.SetLoanName(name);
        Save(sheet);
    }
    EXPECT_EQ(QStringList({u"Alpha"_s, u"ALPHA 2"_s, u"beta"_s, u"gamma"_s}), Loans().Names());
    Loans().Delete(u"GAMMA"_s);
    EXPECT_FALSE(Loans().Names().contains(u"gamma"_s));
    EXPECT_NO_THROW(Loans().Delete(u"never kept"_s));
}

TEST_F(WorksheetStoreTest, LendersAreCountedInCharactersAsUsersCountThem) {
    EXPECT_TRUE(WorksheetStore::CanHoldLender(QString(1023, u'x')));
    EXPECT_FALSE(WorksheetStore::CanHoldLender(QString(1024, u'x')));
    EXPECT_TRUE(WorksheetStore::CanHoldLender(u"e\u0301"_s.repeated(1023)));
    Sheet sheet;
    Fill(sheet.worksheet);
    const QString longest = u"e\u0301"_s.repeated(1023);
    FillOffer(sheet.worksheet, Row{0}, longest);
    Save(sheet);
    Sheet read;
    EXPECT_TRUE(Load(read).empty());
    EXPECT_EQ(longest, read.worksheet.OfferOfRow(Row{0}).Who());
}

} // namespace
