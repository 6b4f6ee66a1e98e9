#include "LoanTypes.h"

#include "Language.h"
#include "Printing.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Case {
    QString code;
    QString english;
    QString spanish;
};

const std::vector<Case>& Types() {
    // clang-format off
    static const std::vector<Case> types{
        {u"A"_qs, u"Auto"_qs,               u"Automóvil"_qs},
        {u"B"_qs, u"Business"_qs,           u"Negocio"_qs},
        {u"C"_qs, u"Construction"_qs,       u"Construcción"_qs},
        {u"D"_qs, u"Debt consolidation"_qs, u"Consolidación de deudas"_qs},
        {u"H"_qs, u"Home equity"_qs,        u"Valor neto de la vivienda"_qs},
        {u"M"_qs, u"Mortgage"_qs,           u"Hipoteca"_qs},
    };
    // clang-format on
    return types;
}

class LoanTypesTest : public testing::Test {
protected:
    LoanTypesTest() { Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), u"Loan"_qs); }
};

TEST_F(LoanTypesTest, AreTextsOfTheLanguageInUse) {
    for (const auto& [code, english, spanish] : Types()) {
        EXPECT_EQ(LoanTypeCodeToText(code), english);
        EXPECT_EQ(LoanTypeTextToCode(english), code);
        EXPECT_EQ(LoanTypeTextToCode(spanish), QString());
    }
    Language::Instance().LoadLanguage(2);
    for (const auto& [code, english, spanish] : Types()) {
        EXPECT_EQ(LoanTypeCodeToText(code), spanish);
        EXPECT_EQ(LoanTypeTextToCode(spanish), code);
        EXPECT_EQ(LoanTypeTextToCode(english), QString());
    }
}

TEST_F(LoanTypesTest, UnknownOnesAreEmpty) {
    for (const QString& code :
         {u""_qs, u"Z"_qs, u"m"_qs, u"MM"_qs, u" M"_qs, u"Mortgage"_qs, u"10"_qs}) {
        EXPECT_EQ(LoanTypeCodeToText(code), QString()) << code.toStdString();
    }
    for (const QString& text :
         {u""_qs, u"M"_qs, u"mortgage"_qs, u"Mortgage "_qs, u"Mort"_qs, u"Monthly"_qs}) {
        EXPECT_EQ(LoanTypeTextToCode(text), QString()) << text.toStdString();
    }
}

TEST_F(LoanTypesTest, AreOfferedInOneOrder) {
    EXPECT_EQ(LoanTypeTexts(),
              QStringList({u"Mortgage"_qs, u"Auto"_qs, u"Business"_qs, u"Construction"_qs,
                           u"Home equity"_qs, u"Debt consolidation"_qs}));
    Language::Instance().LoadLanguage(2);
    EXPECT_EQ(LoanTypeTexts().front(), u"Hipoteca"_qs);
    EXPECT_EQ(LoanTypeTexts().back(), u"Consolidación de deudas"_qs);
}

} // namespace
