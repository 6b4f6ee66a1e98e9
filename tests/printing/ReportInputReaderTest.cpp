// What the report reads from the live window.

#include "ReportInputReader.h"
#include "EnterValues.h"
#include "OfferRows.h"
#include "QuendNames.h"

#include "WindowFixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

namespace {

constexpr double AnyWidth = 1e5;

class ReportInputReaderTest : public WindowTest {
protected:
    ReportInput Read(double widest = AnyWidth) { return ReadForm(Window(), widest); }
    QRectF PlaceOf(QStringView name) const {
        const QWidget& control = Control(name);
        return QRectF(
            QRect(control.mapTo(&Control(u"centralWidget"), QPoint(0, 0)), control.size()));
    }
    QStringList Names(const std::vector<FormEntry>& entries) const {
        QStringList names;
        for (const FormEntry& entry : entries) {
            for (const FieldRule& rule : LoanFields()) {
                if (PlaceOf(QString(rule.control)) == entry.field) {
                    names << rule.control;
                }
            }
        }
        return names;
    }
};

TEST_F(ReportInputReaderTest, TakesTheFieldsInTheirOrder) {
    Open();
    const ReportInput form = Read();
    EXPECT_EQ(Names(form.header).join(u' '),
              u"cboLoanName cboLoanType txtLoanAmount txtLoanTerm txtAnnualTaxes "
              u"txtAnnualInsurance txtMonthlyEscrow");
    EXPECT_EQ(Names(form.currentFirstHalf).join(u' '),
              u"txtCurLoanAmount txtCurLoanTerm txtCurInterestRate txtCurrentBalance "
              u"cboCurPaymentFrequency txtCurPayment");
    EXPECT_EQ(Names(form.currentSecondHalf).join(u' '),
              u"txtCurActualPayment cboActPaymentFrequency dtNextPayment txtCurPayoffDate "
              u"txtCurAmountLeft txtCurInterestLeft");
}

/// l: left, r: right.
QString SidesOf(const std::vector<FormEntry>& entries) {
    QString sides;
    for (const FormEntry& entry : entries) {
        sides += entry.side == Side::Right ? u'r' : u'l';
    }
    return sides;
}

TEST_F(ReportInputReaderTest, TextsAndListsStandLeftNumbersRight) {
    Open();
    const ReportInput form = Read();
    EXPECT_EQ(SidesOf(form.header), u"llrrrrr");
    EXPECT_EQ(SidesOf(form.currentFirstHalf), u"rrrrlr");
    EXPECT_EQ(SidesOf(form.currentSecondHalf), u"rlllrr");
    QString columns;
    for (const FormColumn& column : form.columns) {
        columns += column.side == Side::Right ? u'r' : u'l';
    }
    EXPECT_EQ(columns, u"lrrrlrrrlrl");
}

TEST_F(ReportInputReaderTest, TakesTheTextsOfTheControls) {
    Open();
    Fill(u"cboLoanName", u"Home");
    FillFirstOffer();
    Click(u"chkPoints(0)");
    Fill(u"txtWho(0)", u"A & B");
    const ReportInput form = Read();
    EXPECT_EQ(form.header.at(0).label.caption, u"Loan Name:");
    EXPECT_EQ(form.header.at(0).text, u"Home");
    EXPECT_EQ(form.header.at(2).text, u"$100,000.00");
    EXPECT_EQ(form.currentSecondHalf.at(2).text, u"11/21/2026");
    ASSERT_EQ(form.rows.size(), 6U);
    QStringList row;
    for (const QString& text : form.rows.front()) {
        row << text;
    }
    EXPECT_EQ(row.join(u'|'), u"x||6.000%|30|Monthly|$599.55|$599.55|$599.55|11/21/2056|"
                              u"$115,838.53|A & B");
    for (const QString& text : form.rows.back()) {
        EXPECT_EQ(text, QString());
    }
}

TEST_F(ReportInputReaderTest, HeadingsAreInTheOrderOfThePage) {
    Open();
    QStringList captions;
    for (const FormLabel& heading : Read().headings) {
        captions << heading.caption;
    }
    EXPECT_EQ(captions.join(u'|'), u"F? Points|Int. %|Term|Frequency|P & I|Payment|Act. Payment|"
                                   u"Payoff Date|Interest|Who");
}

TEST_F(ReportInputReaderTest, SpeaksTheLanguageOfTheWindow) {
    Open({.language = Spanish});
    EXPECT_EQ(Read().header.at(2).label.caption, u"Monto del préstamo:");
    SwitchLanguage(English);
    EXPECT_EQ(Read().header.at(2).label.caption, u"Loan Amount:");
}

TEST_F(ReportInputReaderTest, TakesThePlacesOfTheControls) {
    Open();
    const ReportInput form = Read();
    EXPECT_EQ(form.width, Control(u"centralWidget").width());
    EXPECT_EQ(form.current.place, PlaceOf(u"lblCurrent"));
    EXPECT_TRUE(form.current.bold);
    EXPECT_EQ(form.current.side, Side::Centre);
    for (int line = 0; line < 4; ++line) {
        const QRectF place = PlaceOf(QStringLiteral("Line%1").arg(line + 1));
        const QLineF drawn = form.lines.at(static_cast<std::size_t>(line));
        EXPECT_EQ(drawn.p1(), QPointF(place.left(), place.center().y()));
        EXPECT_EQ(drawn.p2(), QPointF(place.right(), place.center().y()));
    }
    EXPECT_EQ(form.offersLeft, PlaceOf(u"picScroll").left());
    EXPECT_EQ(form.offersTop, PlaceOf(u"picScroll").top());
    EXPECT_EQ(form.columns.at(9).left + form.offersLeft, PlaceOf(u"txtInterest(0)").left());
    EXPECT_EQ(form.columns.at(9).width, PlaceOf(u"txtInterest(0)").width());
    EXPECT_EQ(form.fieldHeight, PlaceOf(u"txtPoints(0)").height());
    EXPECT_EQ(form.scrollBarWidth, PlaceOf(u"vsbLoans").width());
}

TEST_F(ReportInputReaderTest, RowsOutOfSightAreThere) {
    Open();
    Window().Rows().GrowTo(Row{15});
    for (int row = 0; row < 16; ++row) {
        EnterText(SheetToWrite(), {FieldId::Who, Row{row}}, QStringLiteral("Bank %1").arg(row));
    }
    Window().Rows().ShowOfferRow(Row{15});
    ASSERT_GT(Bar().value(), 0);
    const ReportInput form = Read();
    ASSERT_EQ(form.rows.size(), 16U);
    EXPECT_EQ(form.rows.front().back(), u"Bank 0");
    EXPECT_EQ(form.rows.back().back(), u"Bank 15");
    EXPECT_EQ(form.offersTop, PlaceOf(u"picScroll").top());
}

TEST_F(ReportInputReaderTest, TheFieldBeingEditedIsReadAsItLooksOnceLeft) {
    Open();
    Fill(u"txtLoanAmount", u"100000");
    Enter(u"txtLoanAmount");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"100000");
    EXPECT_EQ(Read().header.at(2).text, u"$100,000.00");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"100000");
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
}

/// The layout is read at a width that leaves the text legible; the window does not change.
TEST_F(ReportInputReaderTest, AVeryWideWindowIsReadNarrower) {
    Open();
    const int usual = Control(u"centralWidget").width();
    Window().resize(2 * usual, Window().height());
    Settle();
    const QRectF before = PlaceOf(u"txtWho(0)");
    const ReportInput form = Read(usual + 100);
    EXPECT_EQ(form.width, usual + 100);
    EXPECT_LT(form.columns.back().left + form.columns.back().width, usual + 100);
    EXPECT_EQ(Control(u"centralWidget").width(), 2 * usual);
    EXPECT_EQ(PlaceOf(u"txtWho(0)"), before);
    EXPECT_TRUE(Control(u"centralWidget").updatesEnabled());
    // It cannot be narrower than its content.
    EXPECT_EQ(Read(10).width, Control(u"centralWidget").minimumSizeHint().width());
}

/// Empty space between headings and rows in the window would be printed, too.
TEST_F(ReportInputReaderTest, AHighWindowLeavesNoHole) {
    Open();
    Window().resize(Window().width(), 3 * Window().height());
    Settle();
    const ReportInput form = Read();
    EXPECT_LT(form.offersTop - form.headings.front().place.bottom(), 20);
    EXPECT_LT(form.headings.front().place.top() - form.currentSecondHalf.back().field.bottom(), 60);
}

TEST_F(ReportInputReaderTest, AWindowThatScrollsIsReadWhole) {
    Open();
    const ReportInput before = Read();
    const int whole = Control(u"centralWidget").minimumSizeHint().width();
    Window().resize(500, 300);
    Settle();
    Control(u"txtWho(5)").setFocus(Qt::TabFocusReason);
    const ReportInput form = Read();
    EXPECT_EQ(form.width, whole);
    EXPECT_EQ(form.offersTop, before.offersTop);
    EXPECT_EQ(form.header.front().field.topLeft(), before.header.front().field.topLeft());
}

TEST_F(ReportInputReaderTest, BreaksAndStrayCharactersAreCleaned) {
    Open();
    struct {
        QString stored;
        QString printed;
    } const cases[] = {
        {QStringLiteral("a\r\nb"), QStringLiteral("a\r\nb")},
        {QStringLiteral("a\nb"), QStringLiteral("a\r\nb")},
        {QStringLiteral("a\rb"), QStringLiteral("a\r\nb")},
        {QStringLiteral("a\n\nb"), QStringLiteral("a\r\n\r\nb")},
        {QStringLiteral("a\tb"), QStringLiteral("a b")},
        {QStringLiteral("café 🏠"), QStringLiteral("café 🏠")},
    };
    for (const auto& lender : cases) {
        EnterText(SheetToWrite(), {FieldId::Who, Row{0}}, lender.stored);
        EXPECT_EQ(Read().rows.front().back().toStdString(), lender.printed.toStdString());
    }
}

} // namespace
