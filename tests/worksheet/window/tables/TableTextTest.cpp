#include "TableText.h"
#include "HostileTexts.h"
#include "QuendNames.h"
#include "RandomCases.h"

#include <QItemSelectionModel>
#include <QMimeData>
#include <QStandardItemModel>
#include <QTextDocument>
#include <QTextTable>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

void SetNumber(QStandardItemModel& model, int row, const QString& shown, const QString& number) {
    auto* item = new QStandardItem(shown);
    item->setData(number, NumberRole);
    item->setData(QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter), Qt::TextAlignmentRole);
    model.setItem(row, 1, item);
}

/// A lender and an amount.
class TableTexts : public testing::Test {
protected:
    TableTexts() : m_model(1, 2) {
        m_model.setHorizontalHeaderLabels({u"Lender"_s, u"Costs"_s});
        SetLender(u"First Prairie"_s);
        SetNumber(m_model, 0, u"($1,234.50)"_s, u"-1234.5"_s);
    }
    void SetLender(const QString& lender) { m_model.setItem(0, 0, new QStandardItem(lender)); }
    TableCells Table() const { return WholeTable(m_model, {0, 1}); }

    QStandardItemModel m_model;
};

TEST_F(TableTexts, WriteWhatNoSpreadsheetTakesForAFormula) {
    const struct {
        QString lender;
        QString tabs;
        QString values;
        QString html;
    } cases[] = {
        // clang-format off
        {u"Plain"_s,                u"Plain"_s,               u"Plain"_s,                       u"Plain"_s},
        {u""_s,                     u""_s,                    u""_s,                            u""_s},
        {u"=cmd|' /C calc'!A0"_s,   u"'=cmd|' /C calc'!A0"_s, u"'=cmd|' /C calc'!A0"_s,         u"'=cmd|' /C calc'!A0"_s},
        {u"=1+1;2"_s,               u"'=1+1;2"_s,             u"'=1+1;2"_s,                     u"'=1+1;2"_s},
        {u"+1 Bank"_s,              u"'+1 Bank"_s,            u"'+1 Bank"_s,                    u"'+1 Bank"_s},
        {u"-5"_s,                   u"'-5"_s,                 u"'-5"_s,                         u"'-5"_s},
        {u"@SUM(A1)"_s,             u"'@SUM(A1)"_s,           u"'@SUM(A1)"_s,                   u"'@SUM(A1)"_s},
        {u"\t=1"_s,                 u"' =1"_s,                u"'\t=1"_s,                       u"'\t=1"_s},
        {u"\tTab"_s,                u"' Tab"_s,               u"'\tTab"_s,                      u"'\tTab"_s},
        {u"\rA"_s,                  u"' A"_s,                 u"\"'\rA\""_s,                    u"'\rA"_s},
        {u" =1"_s,                  u"' =1"_s,                u"' =1"_s,                        u"' =1"_s},
        {u"\uFEFF\u200B=1"_s,       u"'\uFEFF\u200B=1"_s,     u"'\uFEFF\u200B=1"_s,             u"'\uFEFF\u200B=1"_s},
        {u"\uFF1D1"_s,              u"'\uFF1D1"_s,            u"'\uFF1D1"_s,                    u"'\uFF1D1"_s},
        {u"A, B"_s,                 u"A, B"_s,                u"\"A, B\""_s,                    u"A, B"_s},
        {u"\"Best\" bank"_s,        u"\"Best\" bank"_s,       u"\"\"\"Best\"\" bank\""_s,       u"&quot;Best&quot; bank"_s},
        {u"A\tB"_s,                 u"A B"_s,                 u"A\tB"_s,                        u"A\tB"_s},
        {u"A\r\nB\u2028C"_s,        u"A  B C"_s,              u"\"A\r\nB\u2028C\""_s,           u"A\r\nB\u2028C"_s},
        {u"<script>x</script>&"_s,  u"<script>x</script>&"_s, u"<script>x</script>&"_s,         u"&lt;script&gt;x&lt;/script&gt;&amp;"_s},
        {u"%1 \u202Eknab"_s,        u"%1 \u202Eknab"_s,       u"%1 \u202Eknab"_s,               u"%1 \u202Eknab"_s},
        {u"בנק"_s,                  u"בנק"_s,                 u"בנק"_s,                         u"בנק"_s},
        // clang-format on
    };
    for (const auto& tested : cases) {
        SetLender(tested.lender);
        EXPECT_EQ(u"Lender\tCosts\n"_s + tested.tabs + u"\t-1234.5\n"_s,
                  TabSeparated(Table(), u'.'));
        EXPECT_EQ((u"\uFEFFLender,Costs\r\n"_s + tested.values + u",-1234.5\r\n"_s).toUtf8(),
                  SeparatedValues(Table(), {}));
        EXPECT_TRUE(
            HtmlTable(Table()).contains(u"<tr><td align=\"left\">"_s + tested.html +
                                        u"</td><td align=\"right\">($1,234.50)</td></tr>"_s))
            << HtmlTable(Table()).toStdString();
    }
}

TEST_F(TableTexts, FollowTheLocale) {
    const struct {
        QLocale locale;
        const char* line;
    } cases[] = {
        {UnitedStates, "A;B,-1234.5\r\n"},
        {Germany, "\"A;B\";-1234,5\r\n"},
        {QLocale(QLocale::Spanish, QLocale::Mexico), "A;B,-1234.5\r\n"},
        {QLocale(QLocale::Spanish, QLocale::Spain), "\"A;B\";-1234,5\r\n"},
        {QLocale::c(), "A;B,-1234.5\r\n"},
    };
    SetLender(u"A;B"_s);
    for (const auto& tested : cases) {
        TableCells cells = Table();
        cells.headings = false;
        EXPECT_EQ(QByteArray("\xEF\xBB\xBF") + tested.line,
                  SeparatedValues(cells, SymbolsOf(tested.locale)));
    }
    // The user may choose another separator.
    EXPECT_TRUE(SeparatedValues(Table(), {.separator = u',', .decimal = u','})
                    .endsWith("A;B,\"-1234,5\"\r\n"));
}

TEST_F(TableTexts, HaveTheColumnsShownInTheirOrder) {
    EXPECT_EQ(u"Costs\tLender\n-1234.5\tFirst Prairie\n"_s,
              TabSeparated(WholeTable(m_model, {1, 0}), u'.'));
    EXPECT_EQ(u"Lender\nFirst Prairie\n"_s, TabSeparated(WholeTable(m_model, {0}), u'.'));
}

TEST_F(TableTexts, HaveTheHeadingsOfRowsInFront) {
    m_model.setVerticalHeaderLabels({u"=Year <1>"_s});
    TableCells cells = Table();
    cells.rowHeadings = true;
    EXPECT_EQ(u"\tLender\tCosts\n'=Year <1>\tFirst Prairie\t-1234.5\n"_s,
              TabSeparated(cells, u'.'));
    const QString html = HtmlTable(cells);
    EXPECT_TRUE(html.contains(u"<tr><th align=\"left\"></th><th"_s)) << html.toStdString();
    EXPECT_TRUE(html.contains(u"<tr><th align=\"left\">'=Year &lt;1&gt;</th><td"_s))
        << html.toStdString();
}

TEST_F(TableTexts, LeaveOutWhatIsNotSelected) {
    m_model.appendRow({new QStandardItem(u"B"_s), new QStandardItem(u"C"_s)});
    QItemSelectionModel selection(&m_model);
    selection.select(m_model.index(0, 0), QItemSelectionModel::Select);
    selection.select(m_model.index(1, 1), QItemSelectionModel::Select);
    TableCells cells = Table();
    cells.headings = false;
    cells.selection = &selection;
    EXPECT_EQ(u"First Prairie\t\n\tC\n"_s, TabSeparated(cells, u'.'));
    EXPECT_FALSE(HtmlTable(cells).contains(u"th"));
}

TEST_F(TableTexts, AreOnTheClipboardTogether) {
    const auto data = TableMime(Table(), u',');
    EXPECT_EQ(u"Lender\tCosts\nFirst Prairie\t-1234,5\n"_s, data->text());
    QTextDocument document;
    document.setHtml(data->html());
    const auto* table = qobject_cast<QTextTable*>(document.rootFrame()->childFrames().value(0));
    ASSERT_NE(nullptr, table);
    EXPECT_EQ(2, table->rows());
    EXPECT_EQ(u"First Prairie"_s, table->cellAt(1, 0).firstCursorPosition().block().text());
    EXPECT_TRUE(table->cellAt(1, 1).firstCursorPosition().blockFormat().alignment().testFlag(
        Qt::AlignRight));
}

/// The cells of such a file, as a strict reader takes them; none for a malformed file.
std::vector<std::vector<QString>> ReadBack(const QByteArray& bytes, QChar separator) {
    std::vector<std::vector<QString>> lines{{u""_s}};
    const QString text = QString::fromUtf8(bytes).mid(bytes.startsWith("\xEF\xBB\xBF") ? 1 : 0);
    for (qsizetype i = 0; i < text.size(); ++i) {
        QString& cell = lines.back().back();
        if (text[i] == u'"' && cell.isEmpty()) {
            for (++i; i < text.size() && (text[i] != u'"' || text.mid(i + 1, 1) == u"\""); ++i) {
                i += text[i] == u'"' ? 1 : 0;
                cell += text[i];
            }
        } else if (text[i] == separator) {
            lines.back().emplace_back();
        } else if (text.mid(i, 2) == u"\r\n") {
            lines.push_back({u""_s});
            ++i;
        } else {
            cell += text[i];
        }
    }
    return lines;
}

TEST_F(TableTexts, SurviveAnyLender) {
    ForRandomCases(300, [this](Random& random) {
        std::string lender;
        for (int pieces = random.Int(0, 4); pieces > 0; --pieces) {
            lender += random.OneOf(HostilePieces);
        }
        SetLender(TextOf(lender));
        for (const QChar separator : {u',', u';', u'\t'}) {
            const auto lines = ReadBack(
                SeparatedValues(Table(), {.separator = separator, .decimal = u','}), separator);
            ASSERT_EQ(3U, lines.size());
            ASSERT_EQ(2U, lines[1].size());
            EXPECT_EQ(u"-1234,5"_s, lines[1][1]);
            const QString cell = lines[1][0].trimmed();
            EXPECT_FALSE(!cell.isEmpty() && u"=+-@"_s.contains(cell.front())) << lender;
        }
        const QString tabs = TabSeparated(Table(), u'.');
        EXPECT_EQ(2, tabs.count(u'\t'));
        EXPECT_EQ(2, tabs.count(u'\n'));
        EXPECT_EQ(2, HtmlTable(Table()).count(u"</td>"_s));
        EXPECT_FALSE(HtmlTable(Table()).contains(u"<b>"_s));
    });
}

} // namespace
