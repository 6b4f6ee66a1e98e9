// The offers as a table on the clipboard, and blocks of cells pasted into them.

#include "EnterValues.h"
#include "OfferRows.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class TableClipboards : public WindowTest {
protected:
    static void Clip(const QString& text) { QGuiApplication::clipboard()->setText(text); }
    void PressPaste() { Press(Qt::Key_V, Qt::ControlModifier); }
    void Trigger(QStringView name) { Window().findChild<QAction*>(name.toString())->trigger(); }
    /// The entry fields of a row as they show, "|" between them.
    QString RowTexts(int row) {
        Enter(u"txtCurrentBalance");
        QStringList texts;
        for (const QStringView name : {u"txtPoints", u"txtInterestRate", u"txtTerm",
                                       u"cboFrequency", u"txtActualPayment", u"txtWho"}) {
            texts.append(Text(RowName(name, row)));
        }
        return texts.join(u'|');
    }
};

/// What a spreadsheet in this locale has on the clipboard for a sheet of offers.
std::unique_ptr<QMimeData> SpreadsheetCopy(const QString& name) {
    const auto read = [&](const QString& ending) {
        QFile file(QStringLiteral(QUEND_TEST_DATA "/spreadsheet/") + name + ending);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        return QString::fromUtf8(file.readAll());
    };
    auto data = std::make_unique<QMimeData>();
    data->setText(read(u".txt"_s));
    data->setHtml(read(u".html"_s));
    return data;
}

TEST_F(TableClipboards, PasteABlockToTheRightAndDown) {
    struct Case {
        QString text;
        QString into;
        QString first;
        QString second;
        QString messages; ///< what the only message contains; empty: there is none
    };
    const Case cases[] = {
        {u"1\t6.5%\t30\tMonthly\t\tFirst\n2\t7%\t15\tEvery two weeks\t\tNext\n"_s,
         u"txtPoints(0)"_s, u"1.000|6.500%|30|Monthly||First"_s,
         u"2.000|7.000%|15|Every two weeks||Next"_s, u""_s},
        {u"6.5\n7\n"_s, u"txtInterestRate(0)"_s, u"|6.500%||||"_s, u"|7.000%||||"_s, u""_s},
        {u"6.5\tnever\tDaily\n7\t15\tEvery two weeks\n"_s, u"txtInterestRate(0)"_s,
         u"|6.500%||||"_s, u"|7.000%|15|Every two weeks||"_s,
         u"“never”: not possible as the term of offer 1"_s},
        {u"Bank\tsurplus\nNext\t\n"_s, u"txtWho(0)"_s, u"|||||Bank"_s, u"|||||Next"_s,
         u"“surplus”: there is no field for it"_s},
        {u"Who\tInt. %\nBank\t6\nNext\t7\n"_s, u"txtPoints(0)"_s, u"|6.000%||||Bank"_s,
         u"|7.000%||||Next"_s, u""_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.toStdString());
        Open();
        Clip(c.text);
        Enter(c.into);
        PressPaste();
        EXPECT_EQ(FocusName(), c.into);
        EXPECT_EQ(RowTexts(0), c.first);
        EXPECT_EQ(RowTexts(1), c.second);
        EXPECT_EQ(SettledMessages().size(), c.messages.isEmpty() ? 0 : 1);
        EXPECT_TRUE(SettledMessages().join(u' ').contains(c.messages));
        Press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(RowTexts(0), u"|||||");
        EXPECT_EQ(RowTexts(1), u"|||||");
        EXPECT_FALSE(Window().findChild<QAction*>(u"mnuEditUndo"_s)->isEnabled()) << "one step";
        Messages().Clear();
        Shut();
    }
}

TEST_F(TableClipboards, FillsAllRowsAndTellsTheRest) {
    Open();
    QString text;
    for (int row = 1; row <= 20; ++row) {
        text += QString::number(row) + u'\n';
    }
    Clip(text);
    Enter(u"txtPoints(0)");
    PressPaste();
    EXPECT_EQ(Text(u"txtPoints(15)"), u"16.000");
    ASSERT_EQ(SettledMessages().size(), 1);
    EXPECT_TRUE(SettledMessages().front().contains(u"“20”"_s));
}

TEST_F(TableClipboards, LeaveOneCellAndALendersLinesToTheField) {
    Open();
    Clip(u"Ann\nCedar & Sons"_s);
    Enter(u"txtWho(0)");
    PressPaste();
    EXPECT_EQ(Text(u"txtWho(1)"), u"");
    Clip(u"6.5\n"_s);
    Enter(u"txtInterestRate(0)");
    PressPaste();
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"6.5") << "typed, not yet stored";
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).InterestRate(), Rate());
}

TEST_F(TableClipboards, TakeWhatTheyCopied) {
    Open();
    FillFirstOffer();
    Fill(u"txtWho(0)", u"=Bank & Sons");
    Click(u"chkPoints(0)");
    Fill(u"txtPoints(0)", u"1.5");
    const QString shown = RowTexts(0);
    Trigger(u"mnuEditCopyTable");
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    const QStringList lines = copied->text().split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], u"Finance Points\tPoints\tInt. %\tTerm\tFrequency\tP & I\tPayment\t"
                        u"Act. Payment\tPayoff Date\tInterest\tWho");
    EXPECT_TRUE(lines[1].startsWith(u"Yes\t1.500\t6.000%\t30\tMonthly\t"_s));
    EXPECT_TRUE(lines[1].endsWith(u"\t'=Bank & Sons"_s)) << "no formula";
    EXPECT_TRUE(copied->html().contains(u"<th align=\"right\">Int. %</th>"_s));
    EXPECT_TRUE(copied->html().contains(u"&amp; Sons"_s));
    Enter(u"txtPoints(2)");
    PressPaste();
    EXPECT_EQ(RowTexts(2), shown) << "the computed columns are passed over";
    EXPECT_TRUE(Sheet().OfferOfRow(Row{2}).FinancePoints());
}

/// The copies were made in a spreadsheet program: 1.5 points at 6.5 %, 0 at 6.25 %, none at 7 %.
TEST_F(TableClipboards, TakeWhatSpreadsheetsCopy) {
    const struct {
        const char* copy;
        QLocale locale;
        QString rate;
        QString payment;
    } cases[] = {
        {"en-block", UnitedStates, u"6.500%"_s, u"$1,580.17"_s},
        {"en-headings", UnitedStates, u"6.500%"_s, u"$1,580.17"_s},
        {"de-block", Germany, u"6,500%"_s, u"1.580,17\u00a0€"_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.copy);
        Open({.locale = c.locale});
        QGuiApplication::clipboard()->setMimeData(
            SpreadsheetCopy(QString::fromLatin1(c.copy)).release());
        Enter(u"txtPoints(0)");
        PressPaste();
        EXPECT_EQ(SettledMessages(), QStringList());
        EXPECT_EQ(Text(u"txtInterestRate(0)"), c.rate);
        EXPECT_EQ(Text(u"txtActualPayment(0)"), c.payment);
        EXPECT_EQ(Text(u"txtWho(0)"), u"First Prairie Bank");
        EXPECT_EQ(Text(u"cboFrequency(1)"), u"Every two weeks");
        EXPECT_EQ(Text(u"txtTerm(2)"), u"30");
        Shut();
    }
}

} // namespace
