#include "LoanTypes.h"
#include "QuendNames.h"

#include "Conversions.h"
#include "Language.h"
#include "Printing.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

static_assert(AreApart<LoanTypeCode, FrequencyCode, Rate, Percent, Months>);

struct Case {
    QString code;
    QString english;
    QString spanish;
};

const std::vector<Case>& Types() {
    // clang-format off
    static const std::vector<Case> types{
        {u"A"_s, u"Auto"_s,               u"Automóvil"_s},
        {u"B"_s, u"Business"_s,           u"Negocio"_s},
        {u"C"_s, u"Construction"_s,       u"Construcción"_s},
        {u"D"_s, u"Debt consolidation"_s, u"Consolidación de deudas"_s},
        {u"H"_s, u"Home equity"_s,        u"Valor neto de la vivienda"_s},
        {u"M"_s, u"Mortgage"_s,           u"Hipoteca"_s},
    };
    // clang-format on
    return types;
}

class LoanTypesTest : public testing::Test {
protected:
    LoanTypesTest() { Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), u"Loan"_s); }
};

TEST_F(LoanTypesTest, AreTextsOfTheLanguageInUse) {
    for (const auto& [code, english, spanish] : Types()) {
        EXPECT_EQ(LoanTypeCodeToText(LoanTypeCode(code)), english);
        EXPECT_EQ(LoanTypeTextToCode(english), LoanTypeCode(code));
        EXPECT_TRUE(LoanTypeTextToCode(spanish).IsNone());
    }
    Language::Instance().LoadLanguage(2);
    for (const auto& [code, english, spanish] : Types()) {
        EXPECT_EQ(LoanTypeCodeToText(LoanTypeCode(code)), spanish);
        EXPECT_EQ(LoanTypeTextToCode(spanish), LoanTypeCode(code));
        EXPECT_TRUE(LoanTypeTextToCode(english).IsNone());
    }
}

TEST_F(LoanTypesTest, UnknownOnesAreEmpty) {
    for (const QString& code : {u""_s, u"Z"_s, u"m"_s, u"MM"_s, u" M"_s, u"Mortgage"_s, u"10"_s}) {
        EXPECT_EQ(LoanTypeCodeToText(LoanTypeCode(code)), QString()) << code.toStdString();
    }
    for (const QString& text :
         {u""_s, u"M"_s, u"mortgage"_s, u"Mortgage "_s, u"Mort"_s, u"Monthly"_s}) {
        EXPECT_TRUE(LoanTypeTextToCode(text).IsNone()) << text.toStdString();
    }
}

TEST_F(LoanTypesTest, AreOfferedInOneOrder) {
    EXPECT_EQ(LoanTypeTexts(),
              QStringList({u"Mortgage"_s, u"Auto"_s, u"Business"_s, u"Construction"_s,
                           u"Home equity"_s, u"Debt consolidation"_s}));
    Language::Instance().LoadLanguage(2);
    EXPECT_EQ(LoanTypeTexts().front(), u"Hipoteca"_s);
    EXPECT_EQ(LoanTypeTexts().back(), u"Consolidación de deudas"_s);
}

} // namespace
