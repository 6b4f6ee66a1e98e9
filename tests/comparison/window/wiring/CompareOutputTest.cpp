// Copying, exporting and printing, and what is kept of the window.

#include "ChartWidget.h"
#include "CompareFixture.h"
#include "FigureTable.h"
#include "FigureTexts.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

QByteArray ContentOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class CompareOutput : public CompareTest {
protected:
    static void Click(QStringView button) {
        User().Click(button);
        Settle();
    }
    /// Exports the page that is shown.
    QByteArray Export(const QString& name, const QString& filter) {
        m_outside.file = {m_folder.filePath(name), filter};
        Click(u"cmdExport");
        return ContentOf(m_outside.file.name);
    }

    QTemporaryDir m_folder;
};

TEST_F(CompareOutput, IsSeparatedByTheLocaleOrTheChoice) {
    const QString commas = u"CSV separated by commas (*.csv)"_s;
    const QString semicolons = u"CSV separated by semicolons (*.csv)"_s;
    struct {
        QLocale locale;
        QString filter;
        QString offered; ///< first
        const char* part;
    } const table[]{
        {UnitedStates, commas, commas, ",0,6.00,"},
        {UnitedStates, semicolons, commas, ";0;6.00;"},
        {Germany, semicolons, semicolons, ";0;6,00;"},
        {Germany, commas, semicolons, ",0,6.00,"},
        {Germany, u""_s, semicolons, ";0;6,00;"},
    };
    for (const auto& row : table) {
        OpenCompare({.locale = row.locale});
        const QByteArray csv = Export(u"a.csv"_s, row.filter);
        EXPECT_EQ(m_outside.filters.value(0), row.offered);
        EXPECT_EQ(m_outside.filters.size(), 3);
        const char separator = row.part[0];
        EXPECT_EQ(csv.split('\n').size(), 5);
        EXPECT_GT(csv.count(separator), 20);
        EXPECT_TRUE(csv.contains("Cedar & Sons" + QByteArray(1, separator))) << csv.toStdString();
        EXPECT_TRUE(SettledMessages().isEmpty());
        EndCommands();
        Shut();
    }
}

TEST_F(CompareOutput, IsRefusedWithAMessageAndNoFile) {
    OpenCompare();
    const QString missing = m_folder.filePath(u"missing/a.csv"_s);
    m_outside.file = {missing, {}};
    Click(u"cmdExport");
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_FALSE(QFile::exists(missing));
    m_outside.file = {m_folder.filePath(u"a.PDF"_s), {}};
    m_outside.pdfFault = u"disk full"_s;
    Click(u"cmdExport");
    EXPECT_EQ(SettledMessages().value(1), u"disk full");
    m_outside.file = {};
    Click(u"cmdExport"); // cancelled
    EXPECT_EQ(SettledMessages().size(), 2);
}

TEST_F(CompareOutput, OfEachPageIsPrintedExportedAndCopied) {
    const QString titles[] = {u"Compare Offers: Our new home"_s,
                              u"What the loans have cost over time"_s,
                              u"Schedule of Cedar & Sons"_s};
    OpenCompare();
    for (int page = 0; page < 3; ++page) {
        ShowPage(page);
        m_outside.pages = 0;
        Click(u"cmdPrint");
        EXPECT_EQ(m_outside.printed.value(page), titles[page]);
        EXPECT_GT(m_outside.pages, 0U);
        m_outside.pages = 0;
        m_outside.file = {m_folder.filePath(u"a"_s), u"PDF (*.pdf)"_s};
        Click(u"cmdExport");
        EXPECT_EQ(m_outside.suggested, titles[page]);
        EXPECT_EQ(m_outside.pdfs.size(), page + 1);
        EXPECT_GT(m_outside.pages, 0U);
        QApplication::clipboard()->clear();
        Click(u"cmdCopy");
        const QMimeData* copied = QApplication::clipboard()->mimeData();
        EXPECT_TRUE(copied->hasHtml());
        EXPECT_GT(copied->text().count(u'\n'), 2) << page;
    }
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(CompareOutput, OverTimeNamesTheTimeOfEachRow) {
    OpenCompare();
    ShowPage(1);
    const quend::compare::ChartLine& first =
        User().Get<quend::compare::ChartWidget>(u"chtOverTime").Data().lines.front();
    const QList<QByteArray> lines =
        Export(u"a.csv"_s, u"CSV separated by commas (*.csv)"_s).split('\n');
    EXPECT_EQ(lines.at(0), "\xEF\xBB\xBF,Cedar & Sons,Lakeside,The loan held today\r");
    EXPECT_TRUE(lines.at(1).startsWith("Today,")) << lines.at(1).toStdString();
    const QByteArray third = "Year 3," + quend::compare::PlainNumberOf(first.By(36)).toUtf8() + ',';
    EXPECT_TRUE(lines.at(4).startsWith(third)) << lines.at(4).toStdString();
    Click(u"cmdCopy");
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->text().contains(
        QString::fromUtf8(third).replace(u',', u'\t')));
    Click(u"cmdPrint");
    EXPECT_TRUE(m_outside.texts.contains(u"Year 3"));
    EXPECT_TRUE(m_outside.texts.contains(u"The same figures as a table"));
}

TEST_F(CompareOutput, OfAnEmptyWorksheetIsPossible) {
    OpenMain();
    PressCtrlK();
    User().Activate();
    for (int page = 0; page < 3; ++page) {
        ShowPage(page);
        Click(u"cmdPrint");
        Click(u"cmdCopy");
        Export(u"a.csv"_s, {});
    }
    EXPECT_EQ(m_outside.printed.size(), 3);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(CompareOutput, PlaceAndColumnsAreKept) {
    OpenCompare();
    EXPECT_EQ(m_outside.restored, 1);
    auto& table = User().Get<compare::FigureTable>(u"tblCosts");
    table.ShowColumn(static_cast<int>(Figure::TotalCost), true);
    table.ShowColumn(static_cast<int>(Figure::Apr), false);
    const auto shown = table.ShownColumns();
    EXPECT_TRUE(CompareWindow()->close());
    EXPECT_EQ(m_outside.saved, 1);
    EndCommands();
    EXPECT_EQ(m_outside.saved, 1) << "closed already";
    OpenCompare();
    EXPECT_EQ(User().Get<compare::FigureTable>(u"tblCosts").ShownColumns(), shown);
    EXPECT_EQ(m_outside.restored, 2);
}

} // namespace
