#include "Captions.h"
#include "QuendNames.h"

#include "Language.h"
#include "ProgramFolder.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr int English = 1;
constexpr int Spanish = 2;
constexpr int Third = 3;

/// A window as generated from a Designer form: design-time texts, and numbers as properties.
class SampleWindow {
public:
    SampleWindow() {
        m_window.setWindowTitle(QStringLiteral("Design title"));
        m_window.setProperty("captionText", 200);
        m_label.setText(QStringLiteral("Design label"));
        m_label.setProperty("captionText", 204);
        m_label.setProperty("captionTextInYears", 205);
        m_taxes.setText(QStringLiteral("Design taxes"));
        m_taxes.setToolTip(QStringLiteral("Design taxes tip"));
        m_taxes.setProperty("captionText", 206);
        m_taxes.setProperty("toolTipText", 304);
        m_group.setTitle(QStringLiteral("Design group"));
        m_group.setProperty("captionText", 209);
        m_rate.setText(QStringLiteral("6.5"));
        m_rate.setToolTip(QStringLiteral("Design rate tip"));
        m_rate.setAccessibleName(QStringLiteral("Design rate %1"));
        m_rate.setPlaceholderText(QStringLiteral("Design hint"));
        m_rate.setProperty("toolTipText", 312);
        m_rate.setProperty("accessibleText", 422);
        m_rate.setProperty("hintText", 450);
        m_rate.setProperty("helpTopic", 200);
        m_menu.setTitle(QStringLiteral("Design menu"));
        m_menu.setProperty("captionText", 257);
        m_action->setText(QStringLiteral("Design action"));
        m_action->setProperty("captionText", 258);
        m_plain.setText(QStringLiteral("Stays"));
    }

    QMainWindow m_window;
    QGroupBox m_group{&m_window};
    QLabel m_label{&m_window};
    QLabel m_taxes{&m_group};
    QLineEdit m_rate{&m_group};
    QLabel m_plain{&m_group};
    QMenu m_menu{&m_window};
    QAction* m_action = m_menu.addAction(QString());
};

class Captions : public testing::Test {
protected:
    Captions() {
        m_folder.PutAll();
        Language::Instance().SetUp(m_folder.Path(), QStringLiteral("Loan"));
    }

    void Apply(int language, TermUnit unit = TermUnit::Months, int ordinal = 0) {
        Language::Instance().LoadLanguage(language);
        ApplyTexts(m_sample.m_window, unit, ordinal);
    }

    SampleWindow m_sample;

private:
    ProgramFolder m_folder;
};

struct ShownTexts {
    int language;
    TermUnit unit;
    const char* title;
    const char* label;
    const char* taxes;
    const char* taxesTip;
    const char* group;
    const char* menu;
    const char* action;
    const char* tip;
    const char* hint;
};

const ShownTexts InEnglish{
    English,
    TermUnit::Months,
    "Quend Loan",
    "&Default Term (months):",
    "Annual Ta&xes:",
    "Property taxes for one year, paid through escrow",
    "Current",
    "&Tools",
    "&Options",
    "Current loan interest rate (%)",
    "Enter the loan amount, then an interest rate, a term and a frequency for each offer you "
    "compare."};

const ShownTexts InSpanish{
    Spanish,
    TermUnit::Years,
    "Quend Loan",
    "Pla&zo usual (años):",
    "&Impuestos anuales:",
    "Impuestos de un año sobre la propiedad, pagados mediante la cuenta de garantía",
    "Actual",
    "&Herramientas",
    "&Opciones",
    "Tasa de interés del préstamo actual (%)",
    "Escriba el monto del préstamo y luego una tasa de interés, un plazo y una frecuencia para "
    "cada oferta que compare."};

/// A text that the third language lacks comes from the form, never from the previous language.
const ShownTexts InThird{Third,           TermUnit::Years,
                         "Kredit",        "&Laufzeit (Jahre):",
                         "Design taxes",  "Design taxes tip",
                         "Design group",  "&Werkzeuge",
                         "Design action", "Zinssatz (%)\n\"C:\\Zins\"",
                         "Hier beginnen"};

void ExpectShown(const SampleWindow& window, const ShownTexts& texts) {
    EXPECT_EQ(QString::fromUtf8(texts.title), window.m_window.windowTitle());
    EXPECT_EQ(QString::fromUtf8(texts.label), window.m_label.text());
    EXPECT_EQ(QString::fromUtf8(texts.taxes), window.m_taxes.text());
    EXPECT_EQ(QString::fromUtf8(texts.taxesTip), window.m_taxes.toolTip());
    EXPECT_EQ(QString::fromUtf8(texts.group), window.m_group.title());
    EXPECT_EQ(QString::fromUtf8(texts.menu), window.m_menu.title());
    EXPECT_EQ(QString::fromUtf8(texts.menu), window.m_menu.menuAction()->text());
    EXPECT_EQ(QString::fromUtf8(texts.action), window.m_action->text());
    EXPECT_EQ(QString::fromUtf8(texts.tip), window.m_rate.toolTip());
    EXPECT_EQ(QString::fromUtf8(texts.hint), window.m_rate.placeholderText());
    EXPECT_EQ(QStringLiteral("6.5"), window.m_rate.text());
    EXPECT_EQ(QStringLiteral("Stays"), window.m_plain.text());
    EXPECT_EQ(QString(), window.m_plain.toolTip());
}

TEST_F(Captions, FollowTheLanguageThereAndBack) {
    for (const ShownTexts& texts : {InEnglish, InThird, InSpanish, InThird, InEnglish, InSpanish}) {
        SCOPED_TRACE(texts.language);
        Apply(texts.language, texts.unit);
        ExpectShown(m_sample, texts);
    }
}

TEST_F(Captions, AreEnglishWithoutAnyComponent) {
    Language::Instance().SetUp(QString(), QStringLiteral("Loan"));
    ApplyTexts(m_sample.m_window, TermUnit::Months);
    ExpectShown(m_sample, InEnglish);
}

TEST_F(Captions, FollowTheUnitOfTerms) {
    Apply(English, TermUnit::Years);
    EXPECT_EQ(QStringLiteral("&Default Term (years):"), m_sample.m_label.text());
    EXPECT_EQ(QStringLiteral("Annual Ta&xes:"), m_sample.m_taxes.text());
    Apply(English, TermUnit::Months);
    EXPECT_EQ(QStringLiteral("&Default Term (months):"), m_sample.m_label.text());
}

TEST_F(Captions, NumberWithoutATextLeavesTheFormsOwn) {
    m_sample.m_label.setProperty("captionTextInYears", 9999);
    m_sample.m_rate.setProperty("accessibleText", 9999);
    m_sample.m_rate.setProperty("hintText", 9999);
    Apply(English, TermUnit::Months, 7);
    Apply(English, TermUnit::Years, 7);
    EXPECT_EQ(QStringLiteral("Design label"), m_sample.m_label.text());
    EXPECT_EQ(QStringLiteral("Design rate 7"), m_sample.m_rate.accessibleName());
    EXPECT_EQ(QStringLiteral("Design hint"), m_sample.m_rate.placeholderText());
}

TEST_F(Captions, GapThatTheFormDoesNotFillIsEnglish) {
    m_sample.m_label.setProperty("captionText", 211);
    m_sample.m_label.setProperty("captionTextInYears", 212);
    m_sample.m_label.setProperty("toolTipText", 303);
    m_sample.m_plain.setProperty("accessibleText", 423);
    Apply(Spanish, TermUnit::Years, 4);
    Apply(Third, TermUnit::Years, 4);
    EXPECT_EQ(QStringLiteral("Ter&m (years):"), m_sample.m_label.text());
    EXPECT_EQ(QStringLiteral("The term that an offer takes when you give it none of its own"),
              m_sample.m_label.toolTip());
    EXPECT_EQ(QStringLiteral("Offer 4, term"), m_sample.m_plain.accessibleName());
    Apply(Third, TermUnit::Months, 4);
    EXPECT_EQ(QStringLiteral("Design label"), m_sample.m_label.text());
}

TEST_F(Captions, OrdinalIsInNamesForScreenReaders) {
    struct Case {
        int language;
        int ordinal;
        const char* name;
    };
    const std::vector<Case> cases{
        {English, 0, "Offer %1, interest rate"},     {English, 1, "Offer 1, interest rate"},
        {Spanish, 16, "Oferta 16, tasa de interés"}, {Third, 2, "Angebot 2, Zinssatz von 2"},
        {English, 0, "Offer 2, interest rate"}, // kept from the previous call
        {English, 3, "Offer 3, interest rate"},
    };
    for (const Case& row : cases) {
        Apply(row.language, TermUnit::Months, row.ordinal);
        EXPECT_EQ(QString::fromUtf8(row.name), m_sample.m_rate.accessibleName());
    }
}

TEST_F(Captions, WindowAroundKeepsTheOrdinalsOfItsRows) {
    SampleWindow other;
    QWidget around;
    m_sample.m_group.setParent(&around);
    other.m_group.setParent(&around);
    Language::Instance().LoadLanguage(English);
    ApplyTexts(m_sample.m_group, TermUnit::Months, 1);
    ApplyTexts(other.m_group, TermUnit::Months, 2);
    Language::Instance().LoadLanguage(Spanish);
    ApplyTexts(around, TermUnit::Months);
    EXPECT_EQ(QStringLiteral("Oferta 1, tasa de interés"), m_sample.m_rate.accessibleName());
    EXPECT_EQ(QStringLiteral("Oferta 2, tasa de interés"), other.m_rate.accessibleName());
    m_sample.m_group.setParent(&m_sample.m_window);
    other.m_group.setParent(&other.m_window);
}

TEST_F(Captions, ActionHasASeparateTooltipOnlyWhenTheFormSaysSo) {
    Apply(Spanish);
    EXPECT_EQ(QStringLiteral("Opciones"), m_sample.m_action->toolTip());
    m_sample.m_action->setProperty("toolTipText", 343);
    Apply(Spanish);
    EXPECT_EQ(QStringLiteral("¡Envíe esto a todas las personas que conozca!"),
              m_sample.m_action->toolTip());
}

TEST_F(Captions, ObjectsThatCannotShowATextAreLeftAlone) {
    QObject nothing;
    nothing.setProperty("captionText", 200);
    nothing.setProperty("toolTipText", 312);
    nothing.setProperty("hintText", 450);
    const QList<QByteArray> before = nothing.dynamicPropertyNames();
    ApplyTexts(nothing, TermUnit::Months);
    EXPECT_EQ(before, nothing.dynamicPropertyNames());
}

TEST(CaptionText, IsShownWithoutItsAccessKey) {
    const struct {
        const char* caption;
        const char* shown;
    } cases[] = {{"P && I", "P & I"}, {"&Interest", "Interest"}, {"Pay&off Date", "Payoff Date"},
                 {"&&&A", "&A"},      {"end&", "end&"},          {"", ""}};
    for (const auto& text : cases) {
        EXPECT_EQ(WithoutAccessKey(QString::fromUtf8(text.caption)).toStdString(), text.shown);
    }
}

} // namespace
