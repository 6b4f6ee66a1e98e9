// Worksheets kept and brought back: every value by its name, whatever language and locale.

#include "LoanStore.h"

#include "Frequency.h"
#include "Language.h"
#include "Printing.h"
#include "Sheet.h"
#include "StoreFolder.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QLocale UnitedStates(QLocale::English, QLocale::UnitedStates);
const QLocale Mexico(QLocale::Spanish, QLocale::Mexico);
const QLocale Germany(QLocale::German, QLocale::Germany);
constexpr int English = 1;
constexpr int Spanish = 2;

Money Units(double units) { return Money::FromDouble(units); }

/// Everything that a worksheet keeps has a value of its own.
void Fill(Worksheet& w) {
    w.SetLoanName(u"Our new home"_s);
    w.SetLoanType(u"M"_s);
    w.SetLoanAmount(Units(250'000.5));
    w.SetLoanTerm(360);
    w.SetEscrowTaxes(Units(3'600));
    w.SetEscrowInsurance(Units(1'200.25));
    w.SetCurrentLoanAmount(Units(230'000));
    w.SetCurrentTerm(342);
    w.SetCurrentInterestRate(0.07125);
    w.SetCurrentFrequency(FrequencyCodeToText(u"B"_s));
    w.SetCurrentBalance(Units(198'450.75));
    w.SetCurrentActualFrequency(FrequencyCodeToText(u"W"_s));
    w.SetCurrentNextPayment(Date::FromCalendar(2026, 12, 3));
    w.SetCurrentPayment(Units(1'186.35));
    w.SetCurrentActualPayment(Units(2'050));
}

void FillOffer(Worksheet& w, Row row, const QString& who) {
    CLoan& offer = w.OfferOfRow(row);
    offer.SetFinancePoints(true);
    offer.SetPoints(1.125);
    offer.SetTerm(186);
    offer.SetInterestRate(0.0625);
    offer.SetFrequencyCode(u"Q"_s);
    offer.SetActualPayment(Units(5'000));
    offer.SetWho(who);
}

class LoanStoreTest : public testing::Test {
protected:
    LoanStoreTest() {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), u"Loan"_s);
        Language::Instance().LoadLanguage(English);
    }

    LoanStore Loans() const { return LoanStore(m_folder.Store()); }
    void Save(Sheet& sheet) const { Loans().Save(sheet.worksheet); }
    std::vector<Failure> Load(Sheet& sheet, const QString& name = u"Our new home"_s) const {
        return Loans().Load(sheet.worksheet, name, [&](Row last) {
            sheet.worksheet.GrowOfferArrays(sheet.worksheet.HighestOfferRow(), last);
        });
    }
    std::string Kept(const std::string& value) const { return m_folder.Text(Key, value); }
    void Put(const std::string& value, const std::string& text) const {
        m_folder.Store().SetValue(StoreFolder::Root, Key, value, RegistryType::Text, text);
    }

    inline static const std::string Key = StoreFolder::LoanKey("Our new home");
    StoreFolder m_folder;
};

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
};

TEST_F(LoanStoreTest, WritesEachValueUnderItsName) {
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

TEST_F(LoanStoreTest, AnEmptyWorksheetIsKeptAsZeros) {
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

/// What a worksheet would keep, as it stands.
std::map<std::string, std::string> ValuesOf(Worksheet& worksheet) {
    const StoreFolder folder;
    worksheet.SetLoanName(u"same"_s);
    LoanStore(folder.Store()).Save(worksheet);
    std::map<std::string, std::string> values;
    const std::string key = StoreFolder::LoanKey("same");
    for (const KeptText& kept : KeptTexts) {
        values[kept.value] = folder.Text(key, kept.value);
    }
    values["count"] = std::to_string(folder.Number(key, "LoanCount"));
    values["financed"] = std::to_string(folder.Number(key, "Loan 1 FinancePoints"));
    return values;
}

TEST_F(LoanStoreTest, WhatWasKeptComesBackEqual) {
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

TEST_F(LoanStoreTest, NoFigureChangesUnderAnotherLocaleOrLanguage) {
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
        EXPECT_EQ(u"M", read.worksheet.LoanType()) << abroad.name;
        EXPECT_EQ(Units(250'000.5), read.worksheet.LoanAmount()) << abroad.name;
        EXPECT_EQ(0.07125, read.worksheet.CurrentInterestRate()) << abroad.name;
        EXPECT_EQ(Date::FromCalendar(2026, 12, 3), read.worksheet.CurrentNextPayment())
            << abroad.name;
        EXPECT_EQ(1.125, read.worksheet.OfferOfRow(Row{0}).Points()) << abroad.name;
    }
}

TEST_F(LoanStoreTest, OffersComeBackPacked) {
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
    EXPECT_EQ(0, other.worksheet.OfferOfRow(Row{4}).Term());
    EXPECT_EQ(u"", other.display.TextOf({FieldId::Payment, Row{4}}));
}

TEST_F(LoanStoreTest, AShorterSaveLeavesNoOldOffers) {
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

TEST_F(LoanStoreTest, MoreOffersThanRowsAddRows) {
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

TEST_F(LoanStoreTest, WhatMakesAnOfferWorthKeeping) {
    struct Case {
        const char* name;
        void (*enter)(CLoan&);
        bool worth;
    };
    for (const Case& row : {
             Case{"nothing", [](CLoan&) {}, false},
             Case{"a term", [](CLoan& offer) { offer.SetTerm(360); }, false},
             Case{"a frequency", [](CLoan& offer) { offer.SetFrequencyCode(u"M"_s); }, false},
             Case{"a lender", [](CLoan& offer) { offer.SetWho(u"x"_s); }, true},
             Case{"a payment", [](CLoan& offer) { offer.SetActualPayment(Units(1)); }, true},
             Case{"financed", [](CLoan& offer) { offer.SetFinancePoints(true); }, true},
             Case{"a rate", [](CLoan& offer) { offer.SetInterestRate(0.01); }, true},
             Case{"points", [](CLoan& offer) { offer.SetPoints(-0.5); }, true},
         }) {
        Sheet sheet;
        sheet.worksheet.SetLoanName(u"Our new home"_s);
        row.enter(sheet.worksheet.OfferOfRow(Row{3}));
        Save(sheet);
        EXPECT_EQ(row.worth ? 1 : 0, m_folder.Number(Key, "LoanCount")) << row.name;
    }
}

TEST_F(LoanStoreTest, NamesThatCanAndCannotBeKeys) {
    Language::Instance().LoadLanguage(Spanish);
    struct Case {
        QString name;
        bool empty;
        bool canHold;
    };
    for (const Case& row : {
             Case{u""_s, true, true},
             Case{u" "_s, true, true},
             Case{u"  "_s, false, true},
             Case{u"Casa de la Ñandú 🏠"_s, false, true},
             Case{u"C:\\loans"_s, false, false},
             Case{QString(255, u'x'), false, true},
             Case{QString(256, u'x'), false, false},
             Case{u"(new loan)"_s, false, false},
             Case{u"(préstamo nuevo)"_s, false, false},
             Case{u"a/b*c?"_s, false, true},
             Case{u"a"_s + QChar(QChar::Null), false, false},
         }) {
        EXPECT_EQ(row.empty, LoanStore::IsEmptyName(row.name)) << row.name.toStdString();
        EXPECT_EQ(row.canHold, LoanStore::CanHold(row.name)) << row.name.toStdString();
    }
}

TEST_F(LoanStoreTest, TheLongestNameAndEveryNameWithinItsLimitsAreKept) {
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

TEST_F(LoanStoreTest, NamesAreListedInAlphabeticalOrder) {
    EXPECT_TRUE(Loans().Names().isEmpty());
    for (const QString& name : {u"beta"_s, u"Alpha"_s, u"gamma"_s, u"ALPHA 2"_s}) {
        Sheet sheet;
        sheet.worksheet.SetLoanName(name);
        Save(sheet);
    }
    EXPECT_EQ(QStringList({u"Alpha"_s, u"ALPHA 2"_s, u"beta"_s, u"gamma"_s}), Loans().Names());
    EXPECT_TRUE(Loans().Exists(u"GAMMA"_s));
    EXPECT_TRUE(Loans().Delete(u"gamma"_s));
    EXPECT_FALSE(Loans().Exists(u"gamma"_s));
    EXPECT_TRUE(Loans().Delete(u"never kept"_s));
}

TEST_F(LoanStoreTest, LendersAreCountedInCharactersAsUsersCountThem) {
    EXPECT_TRUE(LoanStore::CanHoldLender(QString(1023, u'x')));
    EXPECT_FALSE(LoanStore::CanHoldLender(QString(1024, u'x')));
    EXPECT_TRUE(LoanStore::CanHoldLender(u"e\u0301"_s.repeated(1023)));
    Sheet sheet;
    Fill(sheet.worksheet);
    const QString longest = u"e\u0301"_s.repeated(1023);
    FillOffer(sheet.worksheet, Row{0}, longest);
    Save(sheet);
    Sheet read;
    EXPECT_TRUE(Load(read).empty());
    EXPECT_EQ(longest, read.worksheet.OfferOfRow(Row{0}).Who());
}

struct BadValue {
    const char* value;
    const char* text;
    int failure; ///< 0: accepted
};

TEST_F(LoanStoreTest, ABadValueIsReportedAndTheRestIsLoaded) {
    for (const BadValue& bad : {
             BadValue{"LoanType", "Yacht", 13},
             BadValue{"LoanType", "Hipoteca", 0},
             BadValue{"LoanAmount", "abc", 13},
             BadValue{"LoanAmount", "1.234,5", 13},
             BadValue{"LoanAmount", "-", 13},
             BadValue{"LoanAmount", "99999999999999999999", 6},
             BadValue{"LoanTerm", "3000000000", 6},
             BadValue{"LoanTerm", "360.5", 0},
             BadValue{"EscrowTaxes", "1e3", 13},
             BadValue{"EscrowInsurance", " 5", 13},
             BadValue{"CurrentTerm", "x", 13},
             BadValue{"CurrentInterestRate", "7%", 13},
             BadValue{"CurrentFrequency", "Z", 13},
             BadValue{"CurrentActualFrequency", "Monthly", 13},
             BadValue{"CurrentNextPayment", "2/30/2026", 13},
             BadValue{"CurrentNextPayment", "soon", 13},
             BadValue{"CurrentPayment", "--5", 13},
             BadValue{"CurrentActualPayment", "$5", 13},
             BadValue{"Loan 1 Points", "nan", 13},
             BadValue{"Loan 1 Points", "1,5", 0},
             BadValue{"Loan 1 Points", "1\u066B5", 0}, // as an Arabic locale writes it
             BadValue{"Loan 1 Term", "thirty", 13},
             BadValue{"Loan 1 InterestRate", "inf", 13},
             BadValue{"Loan 1 Frequency", "m", 13},
             BadValue{"Loan 1 ActualPayment", "1.2.3", 13},
         }) {
        SCOPED_TRACE(std::string(bad.value) + " = " + bad.text);
        Sheet sheet;
        Fill(sheet.worksheet);
        FillOffer(sheet.worksheet, Row{0}, u"First"_s);
        Save(sheet);
        Put(bad.value, bad.text);
        Sheet read;
        const std::vector<Failure> failures = Load(read);
        ASSERT_EQ(bad.failure == 0 ? 0U : 1U, failures.size());
        if (bad.failure != 0) {
            EXPECT_EQ(bad.failure, failures[0].Number());
            EXPECT_EQ(bad.value, failures[0].Source());
        }
        EXPECT_EQ(u"First", read.worksheet.OfferOfRow(Row{0}).Who());
        EXPECT_EQ(Units(198'450.75), read.worksheet.CurrentBalance());
        EXPECT_FALSE(read.worksheet.Dirty());
    }
}

TEST_F(LoanStoreTest, ACountThatCannotBeMakesNoEndlessRows) {
    struct Case {
        std::int32_t count;
        std::size_t failures;
        int highest;
        bool hasFirst;
    };
    for (const Case& row :
         {Case{0, 0, 5, false}, Case{1, 0, 5, true}, Case{16, 0, 15, true}, Case{17, 1, 15, true},
          Case{1'000'000, 1, 15, true}, Case{-1, 1, 5, false}, Case{INT32_MIN, 1, 5, false}}) {
        Sheet sheet;
        Fill(sheet.worksheet);
        FillOffer(sheet.worksheet, Row{0}, u"First"_s);
        Save(sheet);
        m_folder.Store().SetValue(StoreFolder::Root, Key, "LoanCount", RegistryType::Number,
                                  row.count);
        Sheet read;
        EXPECT_EQ(row.failures, Load(read).size()) << row.count;
        EXPECT_EQ(Row{row.highest}, read.worksheet.HighestOfferRow()) << row.count;
        EXPECT_EQ(row.hasFirst, read.worksheet.OfferOfRow(Row{0}).Who() == u"First") << row.count;
        EXPECT_EQ(Units(250'000.5), read.worksheet.LoanAmount()) << row.count;
    }
}

TEST_F(LoanStoreTest, MissingValuesTakeTheirDefaults) {
    m_folder.Store().CreateKey(StoreFolder::Root, Key);
    m_folder.Store().SetValue(StoreFolder::Root, Key, "LoanCount", RegistryType::Number, 2);
    Sheet read;
    FillOffer(read.worksheet, Row{0}, u"Of before"_s);
    EXPECT_TRUE(Load(read).empty());
    EXPECT_EQ(Money(), read.worksheet.LoanAmount());
    EXPECT_EQ(u"", read.worksheet.LoanType());
    EXPECT_EQ(u"", read.worksheet.OfferOfRow(Row{0}).Who());
    EXPECT_EQ(Money(), read.worksheet.OfferOfRow(Row{0}).ActualPayment());
    EXPECT_EQ(read.worksheet.Today(), read.worksheet.CurrentNextPayment());
}

/// The intended payment is assigned before the rate: an offer of before must not refuse it.
TEST_F(LoanStoreTest, LoadingOverOtherOffersRefusesNoPayment) {
    Sheet sheet;
    Fill(sheet.worksheet);
    CLoan& offer = sheet.worksheet.OfferOfRow(Row{0});
    offer.SetTerm(360);
    offer.SetInterestRate(0.03);
    offer.SetFrequencyCode(u"M"_s);
    offer.SetActualPayment(Units(1'600));
    Save(sheet);
    Sheet other;
    Fill(other.worksheet);
    FillOffer(other.worksheet, Row{0}, u"Dear"_s);
    other.display.ForgetCalls();
    EXPECT_TRUE(Load(other).empty());
    EXPECT_EQ(0, other.display.PaymentsRefused());
    EXPECT_EQ(0, other.display.PaymentsRaised());
    EXPECT_EQ(Units(1'600), other.worksheet.OfferOfRow(Row{0}).ActualPayment());
    EXPECT_EQ(u"$1,600.00", other.display.TextOf({FieldId::ActualPayment, Row{0}}));
    EXPECT_FALSE(other.display.TextOf({FieldId::Interest, Row{0}}).isEmpty());
}

TEST_F(LoanStoreTest, ASaveThatCannotBeMadeIsToldAndLeavesEverything) {
    Sheet sheet;
    Fill(sheet.worksheet);
    const LoanStore nowhere(RegistryAPI("/proc/no/such/place/Loan.store"));
    try {
        nowhere.Save(sheet.worksheet);
        FAIL() << "a save into nowhere looks like one";
    } catch (const Failure& failure) {
        EXPECT_EQ(1001, failure.Number());
        EXPECT_EQ("Unable to create the registry key", failure.Description());
    }
    EXPECT_TRUE(sheet.worksheet.Dirty());
    EXPECT_EQ(Units(250'000.5), sheet.worksheet.LoanAmount());
}

} // namespace
