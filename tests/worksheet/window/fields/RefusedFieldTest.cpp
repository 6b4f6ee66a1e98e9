// A refused field cannot be left, and what the user tries has no other effect.

#include "NumberFields.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <vector>

namespace {

/// A way to leave a field.
struct WayOut {
    const char* name;
    QStringView clicked;           ///< the control to click, if any
    Qt::Key key = Qt::Key_unknown; ///< otherwise the key to press
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    bool rowsOnly = false; ///< only possible from a field of a row
};

void PrintTo(const WayOut& way, std::ostream* out) { *out << way.name; }

const std::vector<WayOut> WaysOut = {
    {"AnotherField", u"txtAnnualInsurance"},
    {"AFieldOfTheLastRow", u"txtPoints(5)"},
    {"ALenderField", u"txtWho(1)"},
    {"AResult", u"txtPandI(0)"},
    {"ATickBox", u"chkPoints(1)"},
    {"AList", u"cboLoanType"},
    {"AListOfARow", u"cboFrequency(1)"},
    {"TheLoanName", u"cboLoanName"},
    {"TheDatePicker", u"dtNextPayment"},
    {"Tab", {}, Qt::Key_Tab},
    {"BackTab", {}, Qt::Key_Backtab, Qt::ShiftModifier},
    {"Return", {}, Qt::Key_Return},
    {"Enter", {}, Qt::Key_Enter, Qt::KeypadModifier},
    {"AccessKeyOfAList", {}, Qt::Key_Y, Qt::AltModifier},
    {"AccessKeyOfTheName", {}, Qt::Key_N, Qt::AltModifier},
    {"AccessKeyOfTheDate", {}, Qt::Key_E, Qt::AltModifier},
    {"ArrowDown", {}, Qt::Key_Down, Qt::NoModifier, true},
    {"ArrowUp", {}, Qt::Key_Up, Qt::NoModifier, true},
};

class RefusedField : public WindowTest, public ::testing::WithParamInterface<WayOut> {
protected:
    RefusedField() { Open(); }

    void Try() {
        if (!GetParam().clicked.isEmpty()) {
            Click(GetParam().clicked);
        } else {
            Press(GetParam().key, GetParam().modifiers);
        }
    }
    void ExpectNothingDone() {
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_FALSE(Get<QCheckBox>(u"chkPoints(1)").isChecked());
        EXPECT_FALSE(Sheet().OfferOfRow(Row{1}).FinancePoints());
        EXPECT_EQ(Text(u"cboLoanType"), u"");
        EXPECT_EQ(Text(u"cboFrequency(1)"), u"");
        EXPECT_EQ(Text(u"dtNextPayment"), u"11/21/2026");
        EXPECT_EQ(RowCount(), 6);
    }
};

INSTANTIATE_TEST_SUITE_P(WaysOut, RefusedField, ::testing::ValuesIn(WaysOut),
                         [](const auto& way) { return way.param.name; });

TEST_P(RefusedField, KeepsTheKeyboardAndItsText) {
    for (const NumberField& field : NumberFields) {
        if ((GetParam().rowsOnly && !field.name.endsWith(u')')) ||
            GetParam().clicked == field.name) {
            continue;
        }
        SCOPED_TRACE(field.name.toString().toStdString());
        Messages().Clear();
        Enter(field.name);
        Paste(u"1.2.3");
        Try();
        ExpectNothingDone();
        const QStringList told = SettledMessages();
        EXPECT_EQ(told.size(), 1) << told.join(u'\n').toStdString();
        EXPECT_EQ(FocusName(), field.name);
        EXPECT_EQ(Text(field.name), u"1.2.3");
        EXPECT_EQ(Edit(field.name).selectedText(), u"1.2.3");
        ExpectNothingDone();
        // The next click or key works again.
        Press(Qt::Key_Delete);
        Click(u"txtLoanAmount");
        EXPECT_EQ(FocusName(), u"txtLoanAmount");
    }
}

using RefusedFieldLater = WindowTest;

TEST_F(RefusedFieldLater, ClicksWorkAgainOnceTheTextIsMended) {
    Open();
    Click(u"txtPoints(1)");
    Paste(u"1.2.3");
    Click(u"chkPoints(1)");
    EXPECT_EQ(SettledMessages().size(), 1);
    Type(u"2");
    Click(u"chkPoints(1)");
    EXPECT_TRUE(Get<QCheckBox>(u"chkPoints(1)").isChecked());
    EXPECT_TRUE(Sheet().OfferOfRow(Row{1}).FinancePoints());
    EXPECT_EQ(Text(u"txtPoints(1)"), u"2.000");
    EXPECT_EQ(SettledMessages().size(), 1);
}

TEST_F(RefusedFieldLater, IsReportedOnceForEveryTry) {
    Open();
    Click(u"txtPoints(1)");
    Paste(u"1.2.3");
    Click(u"cboFrequency(1)");
    Click(u"cboFrequency(1)");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(FocusName(), u"txtPoints(1)");
    EXPECT_EQ(SettledMessages().size(), 2);
}

} // namespace
