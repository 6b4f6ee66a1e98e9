// What a number field refuses, and the messages.

#include "MessageBoxes.h"
#include "NumberFields.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <vector>

namespace {

const QString TooLarge =
    QStringLiteral("This number is too large.\nerrn=6  src=Loan  desc=Overflow");

class FieldRefusal : public WindowTest, public ::testing::WithParamInterface<NumberField> {
protected:
    FieldRefusal() { Open(); }

    QLineEdit& Field() const { return Edit(GetParam().name); }
    QString Refusal() const {
        return QStringLiteral("Please enter a number of the form") + GetParam().picture.toString();
    }
    /// Tries to leave with this text and stays, with one message.
    void ExpectRefused(QStringView text, const QString& message) {
        SCOPED_TRACE(text.toString().left(40).toStdString());
        Messages().Clear();
        Enter(GetParam().name);
        Press(Qt::Key_A, Qt::ControlModifier);
        Paste(text);
        Tab();
        ASSERT_TRUE(WaitFor([&] { return !Messages().Texts().isEmpty(); }))
            << Field().text().toStdString();
        EXPECT_EQ(SettledMessages(), QStringList(message));
        EXPECT_EQ(FocusName(), GetParam().name);
        EXPECT_EQ(Field().text(), text);
        EXPECT_EQ(Field().selectedText(), text);
    }
};

INSTANTIATE_TEST_SUITE_P(Fields, FieldRefusal, ::testing::ValuesIn(NumberFields), NameOfField);

TEST_P(FieldRefusal, OfTextsThatAreNoNumbers) {
    for (const QStringView text :
         {u"12abc", u"1.2.3", u"5-", u"--5", u"1,000", u"1 000", u"$5", u"5%", u"1e3", u"nan",
          u"1.2345", u"-", u"+", u"+-", u"\u0661"}) {
        ExpectRefused(text, Refusal());
    }
    // A lone symbol is refused, too; fields without decimals refuse the symbol itself.
    ExpectRefused(u".", Refusal());
    ExpectRefused(u"-.", Refusal());
}

TEST_P(FieldRefusal, OfMoreDecimalsThanThePictureShows) {
    struct Case {
        QStringView picture;
        QStringView refused;
        QStringView accepted;
    };
    const std::vector<Case> rows = {
        {u" nnn", u"30.5", u"30"},
        {u" nnnn.nn", u"1234.567", u"1234.56"},
        {u" nnnn.nnn", u"4.5678", u"4.567"},
    };
    for (const auto& row : rows) {
        if (row.picture == GetParam().picture) {
            ExpectRefused(row.refused, Refusal());
            Paste(row.accepted); // over the refused text, which is all selected
            Tab();
            EXPECT_NE(FocusName(), GetParam().name);
        }
    }
}

TEST_P(FieldRefusal, StoresNothing) {
    Fill(GetParam().name, GetParam().typed);
    ExpectRefused(u"1.2.3", Refusal());
    Press(Qt::Key_Delete);
    Paste(GetParam().entered);
    Tab();
    EXPECT_EQ(Field().text(), GetParam().shown);
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_P(FieldRefusal, OfNumbersThatNothingCanHold) {
    const QString nines(400, u'9');
    ExpectRefused(nines, TooLarge);
    Type(u"1");
    Tab();
    EXPECT_NE(FocusName(), GetParam().name);
}

TEST_P(FieldRefusal, ReportsAgainOnTheNextTry) {
    ExpectRefused(u"5-", Refusal());
    BackTab();
    EXPECT_EQ(SettledMessages(), QStringList({Refusal(), Refusal()}));
    EXPECT_EQ(FocusName(), GetParam().name);
}

using LimitsOfFields = WindowTest;

TEST_F(LimitsOfFields, TheLargestAmountIsTakenAndTheNextIsNot) {
    Open();
    Fill(u"txtCurLoanAmount", u"922337203685477.58");
    EXPECT_EQ(FocusName(), u"txtCurLoanTerm");
    BackTab();
    EXPECT_EQ(Text(u"txtCurLoanAmount"), u"922337203685477.58");
    Fill(u"txtCurLoanAmount", u"922337203685477.59");
    EXPECT_EQ(SettledMessages(), QStringList(TooLarge));
    EXPECT_EQ(FocusName(), u"txtCurLoanAmount");
}

TEST_F(LimitsOfFields, ATermOfTooManyMonthsIsRefusedInYears) {
    Open();
    for (const QStringView field : {u"txtLoanTerm", u"txtCurLoanTerm", u"txtTerm(0)"}) {
        Messages().Clear();
        Fill(field, u"178956971"); // times twelve: 2^31 + 4
        EXPECT_EQ(SettledMessages(), QStringList(TooLarge));
        EXPECT_EQ(FocusName(), field);
        Type(u"1");
        Tab();
    }
}

/// Presses Return in every message box that opens, and stores its text.
class Reader : public QObject {
public:
    Reader() {
        connect(&m_look, &QTimer::timeout, this, [this] {
            if (const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                m_read.append(box->text() + u'|' + box->button(QMessageBox::Ok)->text());
                QTest::keyClick(box->windowHandle(), Qt::Key_Return);
            }
        });
        m_look.start();
    }
    const QStringList& Read() const { return m_read; }

private:
    QTimer m_look;
    QStringList m_read;
};

struct BoxCase {
    int language;
    QStringView text;
};

class RealMessageBox : public WindowTest, public ::testing::WithParamInterface<BoxCase> {};

INSTANTIATE_TEST_SUITE_P(
    Languages, RealMessageBox,
    ::testing::Values(BoxCase{English, u"Please enter a number of the form nnnn.nn|OK"},
                      BoxCase{Spanish, u"Escriba un número de la forma nnnn.nn|Aceptar"}));

// A box activates itself and later the window again: neither counts as leaving the field.
TEST_P(RealMessageBox, OpensOnceAndGivesTheFieldBack) {
    MessageBoxes boxes;
    Open({.language = GetParam().language, .messages = &boxes});
    Reader reader;
    Click(u"txtLoanAmount");
    Paste(u"12abc");
    Click(u"txtAnnualTaxes");
    ASSERT_TRUE(
        WaitFor([&] { return !reader.Read().isEmpty() && !QApplication::activeModalWidget(); }));
    ActivateAgain();
    Settle();
    EXPECT_EQ(reader.Read(), QStringList(GetParam().text.toString()));
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
    EXPECT_EQ(Edit(u"txtLoanAmount").selectedText(), u"12abc");
    Type(u"7");
    Tab();
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$7.00");
    Shut();
}

} // namespace
