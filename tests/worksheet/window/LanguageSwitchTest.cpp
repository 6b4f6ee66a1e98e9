// Switches the language while the window is full of values.

#include "Language.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QTemporaryDir>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class LanguageSwitch : public WindowTest {
protected:
    bool IsMarked(int language) {
        return Window()
            .findChild<QAction*>(u"mnuToolsLanguageOpt(%1)"_s.arg(language))
            ->isChecked();
    }
    static QStringList Entries(const QComboBox& list) {
        QStringList entries;
        for (int i = 0; i < list.count(); ++i) {
            entries.append(list.itemText(i));
        }
        return entries;
    }
};

const std::vector<QStringList> Frequencies = {
    {u"Monthly"_s, u"Twice a month"_s, u"Every two weeks"_s, u"Every four weeks"_s},
    {u"Mensual"_s, u"Dos veces al mes"_s, u"Cada dos semanas"_s, u"Cada cuatro semanas"_s},
};

const std::vector<QStringList> LoanTypes = {
    {u"Mortgage"_s, u"Auto"_s, u"Business"_s, u"Construction"_s, u"Home equity"_s,
     u"Debt consolidation"_s},
    {u"Hipoteca"_s, u"Automóvil"_s, u"Negocio"_s, u"Construcción"_s, u"Valor neto de la vivienda"_s,
     u"Consolidación de deudas"_s},
};

TEST_F(LanguageSwitch, RefillsEveryListAndKeepsItsChoice) {
    Open();
    Click(u"txtPoints(5)");
    for (int step = 0; step < 3; ++step) {
        Press(Qt::Key_Down);
    }
    ASSERT_EQ(RowCount(), 10);
    Choose(u"cboLoanType", 5);
    Choose(u"cboCurPaymentFrequency", 2);
    Choose(u"cboActPaymentFrequency", 3);
    Wheel(Control(u"picScroll"), 10);
    Choose(u"cboFrequency(0)", 1);
    for (const int language : {Spanish, English, Spanish}) {
        SwitchLanguage(language);
        const auto text = static_cast<std::size_t>(language - 1);
        EXPECT_EQ(Entries(List(u"cboLoanType")), LoanTypes[text]);
        EXPECT_EQ(Text(u"cboLoanType"), LoanTypes[text].at(5));
        EXPECT_EQ(Text(u"cboCurPaymentFrequency"), Frequencies[text].at(2));
        EXPECT_EQ(Text(u"cboActPaymentFrequency"), Frequencies[text].at(3));
        for (int row = 0; row < 10; ++row) {
            const QString list = RowName(u"cboFrequency", row);
            EXPECT_EQ(Entries(List(list)), Frequencies[text]) << row;
            EXPECT_EQ(Text(list), row == 0 ? Frequencies[text].at(1) : QString());
        }
    }
    EXPECT_EQ(Sheet().LoanType().Text(), u"D");
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).FrequencyCode().Text(), u"B");
}

TEST_F(LanguageSwitch, KeepsEveryValueAndTheResults) {
    Open();
    Fill(u"cboLoanName", u"House");
    Fill(u"txtAnnualTaxes", u"1800");
    Fill(u"txtCurInterestRate", u"6");
    FillFirstOffer();
    Fill(u"txtWho(0)", u"Bank");
    const QStringList shown = {u"cboLoanName"_s,        u"txtLoanAmount"_s,
                               u"txtAnnualTaxes"_s,     u"txtMonthlyEscrow"_s,
                               u"txtCurInterestRate"_s, u"txtInterestRate(0)"_s,
                               u"txtTerm(0)"_s,         u"txtPandI(0)"_s,
                               u"txtPayment(0)"_s,      u"txtActualPayment(0)"_s,
                               u"txtPayoffDate(0)"_s,   u"txtInterest(0)"_s,
                               u"txtWho(0)"_s};
    QStringList before;
    for (const QString& name : shown) {
        before.append(Text(name));
        EXPECT_FALSE(before.last().isEmpty()) << name.toStdString();
    }
    for (const int language : {Spanish, English}) {
        SwitchLanguage(language);
        for (qsizetype i = 0; i < shown.size(); ++i) {
            EXPECT_EQ(Text(shown[i]), before[i]) << shown[i].toStdString();
        }
    }
}

TEST_F(LanguageSwitch, DoesNotMakeTheWorksheetDirty) {
    Open();
    SwitchLanguage(Spanish);
    SwitchLanguage(English);
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(LanguageSwitch, MarksTheLanguageInUse) {
    for (const int start : {English, Spanish, -1, -2, 0}) {
        Open({.language = start});
        const int settled = start == 0 ? English : std::abs(start);
        EXPECT_EQ(Language::Instance().CurrentLanguage(), settled);
        for (const int chosen : {settled, Spanish, Spanish, English}) {
            if (chosen != settled) {
                SwitchLanguage(chosen);
            }
            const int now = Language::Instance().CurrentLanguage();
            EXPECT_EQ(IsMarked(English), now == English);
            EXPECT_EQ(IsMarked(Spanish), now == Spanish);
        }
        Shut();
    }
}

TEST_F(LanguageSwitch, ReachesEveryKindOfText) {
    Open();
    SwitchLanguage(Spanish);
    EXPECT_EQ(Text(u"lblLoanAmount"), u"&Monto del préstamo:");
    EXPECT_EQ(Text(u"lblLoanTerm"), u"Pla&zo usual (años):");
    EXPECT_EQ(Text(u"cmdInterest"), u"Int&ereses");
    EXPECT_EQ(Text(u"lblPandI"), u"C && I");
    EXPECT_EQ(Control(u"txtPoints(3)").toolTip(), u"Puntos que se pagan al cierre");
    EXPECT_EQ(Control(u"mnuFile").property("title").toString(), u"&Archivo");
    EXPECT_EQ(Window().findChild<QAction*>(u"mnuFileExit"_s)->text(), u"&Salir");
    EXPECT_EQ(Window().windowTitle(), u"Quend Loan");
    Click(u"txtLoanAmount");
    Paste(u"1.2.3");
    Tab();
    EXPECT_EQ(SettledMessages(), QStringList(u"Escriba un número de la forma nnnn.nn"_s));
}

TEST_F(LanguageSwitch, BringsNoTooltipBackThatIsAway) {
    Open();
    FillFirstOffer();
    SwitchLanguage(Spanish);
    EXPECT_EQ(Control(u"txtInterest(0)").toolTip(), u"");
    EXPECT_EQ(Control(u"txtPayoffDate(0)").toolTip(),
              u"La fecha en que este préstamo quedará liquidado");
    Fill(u"txtInterestRate(0)", u"0");
    SwitchLanguage(English);
    EXPECT_EQ(Control(u"txtPayoffDate(0)").toolTip(), u"");
    EXPECT_EQ(Control(u"txtPandI(0)").toolTip(), u"Principle and Interest");
}

TEST_F(LanguageSwitch, ReachesRowsAppendedLater) {
    Open({.language = Spanish});
    Click(u"txtPoints(5)");
    EXPECT_EQ(Entries(List(u"cboFrequency(6)")), Frequencies[1]);
    EXPECT_EQ(Control(u"txtPoints(6)").toolTip(), u"Puntos que se pagan al cierre");
}

TEST_F(LanguageSwitch, TermsAreNamedInTheirUnit) {
    struct Case {
        bool inMonths = false;
        int language = English;
        QStringView loanTerm;
        QStringView currentTerm;
    };
    const std::vector<Case> rows = {
        {false, English, u"&Default Term (years):", u"Ter&m (years):"},
        {true, English, u"&Default Term (months):", u"Ter&m (months):"},
        {false, Spanish, u"Pla&zo usual (años):", u"P&lazo (años):"},
        {true, Spanish, u"Pla&zo usual (meses):", u"P&lazo (meses):"},
    };
    for (const auto& row : rows) {
        Open({.language = row.language, .termInMonths = row.inMonths});
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(Text(u"lblLoanTerm"), row.loanTerm);
            EXPECT_EQ(Text(u"lblCurLoanTerm"), row.currentTerm);
            SwitchLanguage(English + Spanish - row.language);
            SwitchLanguage(row.language);
        }
        Shut();
    }
}

class MissingComponent : public LanguageSwitch {
protected:
    MissingComponent() {
        const QDir folder(QStringLiteral(QUEND_PROGRAM_DIR));
        for (const QString& file : folder.entryList({u"Loan000*"_s}, QDir::Files)) {
            EXPECT_TRUE(QFile::copy(folder.filePath(file), m_program.filePath(file)));
        }
        Language::Instance().SetUp(m_program.path(), QStringLiteral("Loan"));
    }

private:
    QTemporaryDir m_program;
};

TEST_F(MissingComponent, IsReportedAndTheLanguageStays) {
    Open();
    SwitchLanguage(Spanish);
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().startsWith(u"errn=429  src=")) << told.front().toStdString();
    EXPECT_TRUE(told.front().endsWith(u"  desc=Unable to create the component"));
    EXPECT_EQ(Language::Instance().CurrentLanguage(), English);
    EXPECT_TRUE(IsMarked(English));
    EXPECT_FALSE(IsMarked(Spanish));
    EXPECT_EQ(Text(u"lblLoanName"), u"Loan &Name:");
}

TEST_F(MissingComponent, AtTheStartIsReportedAndTheWindowOpens) {
    Open({.language = Spanish});
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().startsWith(u"errn=429  src=")) << told.front().toStdString();
    EXPECT_EQ(RowCount(), 6);
    EXPECT_EQ(Text(u"lblLoanName"), u"Loan &Name:");
    EXPECT_FALSE(Sheet().Dirty());
}

} // namespace
