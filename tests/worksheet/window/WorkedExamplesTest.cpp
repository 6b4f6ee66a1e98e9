// Loans that anyone can check by hand, typed key by key.

#include "QuendNames.h"
#include "WindowFixture.h"

#include <QComboBox>
#include <QLineEdit>

#include <ostream>
#include <vector>

namespace {

struct Country {
    const char* name;
    QLocale locale;
    int language = 0;
};

void PrintTo(const Country& country, std::ostream* out) { *out << country.name; }

const std::vector<Country> Countries = {
    {"UnitedStatesInEnglish", UnitedStates, English},
    {"UnitedStatesInSpanish", UnitedStates, Spanish},
    {"GermanyInEnglish", Germany, English},
    {"SpainInSpanish", Spain, Spanish},
};

class WorkedExamples : public WindowTest, public ::testing::WithParamInterface<Country> {
protected:
    WorkedExamples() { Open({.locale = GetParam().locale, .language = GetParam().language}); }

    /// An amount in American format, converted to the format of this country.
    static QString Money(QStringView american) {
        if (GetParam().locale == UnitedStates) {
            return u'$' + american.toString();
        }
        QString amount = american.toString();
        amount.replace(u',', u'#').replace(u'.', u',').replace(u'#', u'.');
        // Spain groups only numbers of five digits or more.
        if (GetParam().locale == Spain && amount.size() == 8) {
            amount.remove(u'.');
        }
        return amount + QChar(QChar::Nbsp) + QChar(u'€');
    }
    static QString Typed(QStringView american) {
        QString number = american.toString();
        return GetParam().locale == UnitedStates ? number : number.replace(u'.', u',');
    }
    static QStringView ByCountry(QStringView american, QStringView german, QStringView spanish) {
        return GetParam().locale == Germany ? german
               : GetParam().locale == Spain ? spanish
                                            : american;
    }
};

INSTANTIATE_TEST_SUITE_P(Countries, WorkedExamples, ::testing::ValuesIn(Countries),
                         [](const auto& country) { return country.param.name; });

TEST_P(WorkedExamples, PaymentOfEachFrequency) {
    FillFirstOffer();
    struct Case {
        int frequency = 0;
        QStringView payment;
        QStringView who;
    };
    const std::vector<Case> rows = {
        {0, u"599.55", u"monthly"},
        {1, u"299.64", u"twice a month"},
        {2, u"276.58", u"every two weeks"},
        {3, u"553.39", u"every four weeks"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.who.toString().toStdString());
        Choose(u"cboFrequency(0)", row.frequency);
        EXPECT_EQ(Text(u"txtPandI(0)"), Money(row.payment));
        EXPECT_EQ(Text(u"txtPayment(0)"), Money(row.payment));
        EXPECT_FALSE(Text(u"txtPayoffDate(0)").isEmpty());
    }
}

TEST_P(WorkedExamples, MonthlyOfferIsPaidOffAfterThirtyYears) {
    FillFirstOffer();
    EXPECT_EQ(Text(u"txtLoanAmount"), Money(u"100,000.00"));
    EXPECT_EQ(Text(u"txtInterestRate(0)"), Typed(u"6.000%"));
    EXPECT_EQ(Text(u"txtTerm(0)"), u"30");
    EXPECT_EQ(Text(u"txtActualPayment(0)"), Money(u"599.55"));
    EXPECT_TRUE(Text(u"txtPayoffDate(0)").contains(u"2056"))
        << Text(u"txtPayoffDate(0)").toStdString();
}

TEST_P(WorkedExamples, PaymentCarriesItsShareOfTheEscrow) {
    FillFirstOffer();
    struct Case {
        QStringView taxes;
        QStringView insurance;
        QStringView monthly;
        int frequency = 0;
        QStringView payment;
    };
    const std::vector<Case> rows = {
        {u"1800", u"900", u"225.00", 0, u"824.55"},  {u"1800", u"900", u"225.00", 1, u"412.14"},
        {u"1800", u"900", u"225.00", 2, u"389.08"},  {u"1800", u"900", u"225.00", 3, u"778.39"},
        {u"2000", u"1000", u"250.00", 0, u"849.55"}, {u"1000", u"0", u"83.33", 0, u"682.88"},
        {u"1000", u"", u"83.33", 1, u"341.30"},  // 341.305
        {u"1000", u"0", u"83.33", 2, u"318.24"}, // 318.245
        {u"1000", u"", u"83.33", 3, u"636.72"},
    };
    for (const auto& row : rows) {
        Choose(u"cboFrequency(0)", row.frequency);
        Fill(u"txtAnnualTaxes", row.taxes);
        Press(Qt::Key_Delete);
        Fill(u"txtAnnualInsurance", row.insurance);
        EXPECT_EQ(Text(u"txtMonthlyEscrow"), Money(row.monthly));
        EXPECT_EQ(Text(u"txtPayment(0)"), Money(row.payment)) << row.frequency;
    }
}

TEST_P(WorkedExamples, LoanHeldToday) {
    Fill(u"txtCurrentBalance", u"10000");
    Fill(u"txtCurInterestRate", u"6");
    Fill(u"txtCurActualPayment", u"1000");
    Choose(u"cboActPaymentFrequency", 0);
    Fill(u"dtNextPayment", ByCountry(u"3/1/26", u"01.03.2026", u"1-3-26"));
    EXPECT_EQ(Text(u"txtCurPayoffDate"), ByCountry(u"1/1/2027", u"01.01.2027", u"1/1/2027"));
    EXPECT_EQ(Text(u"txtCurInterestLeft"), Money(u"284.79"));
    EXPECT_EQ(Text(u"txtCurAmountLeft"), Money(u"10,284.79"));
    EXPECT_TRUE(SettledMessages().isEmpty()) << Messages().Texts().join(u'\n').toStdString();
}

TEST_P(WorkedExamples, DecimalsAreTypedWithTheSymbolOfTheCountry) {
    Fill(u"txtLoanAmount", Typed(u"1234.56"));
    Fill(u"txtInterestRate(0)", Typed(u"6.875"));
    EXPECT_EQ(Text(u"txtLoanAmount"), Money(u"1,234.56"));
    EXPECT_EQ(Text(u"txtInterestRate(0)"), Typed(u"6.875%"));
    Click(u"txtLoanAmount");
    EXPECT_EQ(Text(u"txtLoanAmount"), Typed(u"1234.56"));
}

} // namespace
