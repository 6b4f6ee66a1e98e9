// Documents of other windows than the main one: printed as the report is, and saved as PDF.

#include "CompareTextNumbers.h"
#include "DrawnItems.h"
#include "FakePrinter.h"
#include "Language.h"
#include "LoanForm.h"
#include "PrintCommands.h"
#include "PrintServer.h"
#include "QuendNames.h"
#include "TablePages.h"
#include "TextNumbers.h"
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

/// A table of 250 rows is drawn in four sections.
TableOnPaper Payments(int rows = 250, int columns = 3) {
    TableOnPaper table{.title = u"Cedar & Sons"_s, .paragraphs = {u"Counted from today."_s}};
    for (int column = 0; column < columns; ++column) {
        table.headings << u"Column %1"_s.arg(column);
    }
    for (int row = 0; row < rows; ++row) {
        QStringList cells;
        for (int column = 0; column < columns; ++column) {
            cells << u"$%1,%2.00"_s.arg(row).arg(column);
        }
        table.rows.push_back(cells);
    }
    return table;
}

DrawDocument Drawn(const TableOnPaper& table) {
    return [table](const Paper& paper) { return DrawingOf(table, paper); };
}

class DocumentTest : public WindowTest {
protected:
    void Begin(std::chrono::milliseconds shownAtLeast = 0ms, const Start& start = {}) {
        Open(start);
        m_other = std::make_unique<QWidget>();
        m_other->show();
        m_commands = std::make_unique<PrintCommands>(
            Window(), m_printer,
            frmPrint::Pace{.shownAtLeast = shownAtLeast, .yield = [this] { m_yield(); }});
        m_busy = std::make_unique<QSignalSpy>(m_commands.get(), &PrintCommands::Busy);
    }
    void Print(const DrawDocument& draw = Drawn(Payments())) {
        m_commands->Print(*m_other, u"Schedule"_s, draw);
    }
    /// The error, empty if there is none.
    QString Export(const QString& file, const DrawDocument& draw = Drawn(Payments())) const {
        QString error;
        const bool saved = m_commands->ExportPdf(file, u"Schedule"_s, draw, error);
        EXPECT_EQ(saved, error.isEmpty());
        return error;
    }
    void OnYield(std::function<void()> yield) { m_yield = std::move(yield); }
    FakePrinter& Printer() { return m_printer; }
    PrintCommands& Commands() { return *m_commands; }
    frmPrint* Job() { return m_other ? m_other->findChild<frmPrint*>() : nullptr; }
    bool WaitForEnd() {
        return WaitFor([this] { return !m_commands->IsBusy(); });
    }
    void CloseOther() { m_other.reset(); }
    void End() { m_commands.reset(); }
    QList<bool> BusyChanges() const {
        QList<bool> changes;
        for (const QList<QVariant>& one : *m_busy) {
            changes << one.front().toBool();
        }
        return changes;
    }
    QString In(const QString& name) const { return m_folder.filePath(name); }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files); }

private:
    QTemporaryDir m_folder;
    FakePrinter m_printer;
    std::function<void()> m_yield = [] {};
    std::unique_ptr<QWidget> m_other;
    std::unique_ptr<PrintCommands> m_commands;
    std::unique_ptr<QSignalSpy> m_busy;
};

TEST_F(DocumentTest, IsPrintedBesideItsWindow) {
    Begin(1h);
    Print();
    ASSERT_NE(Job(), nullptr);
    EXPECT_TRUE(Commands().IsBusy());
    EXPECT_FALSE(Window().Form().mnuFilePrint->isEnabled());
    EXPECT_FALSE(Window().Form().mnuFilePrintSetup->isEnabled());
    ASSERT_TRUE(WaitFor([this] { return Job()->PrintFinished(); }));
    EXPECT_EQ(Job()->findChild<QLabel*>(u"lblPrintingText"_s)->text(), u"Printing\nSchedule...");
    Job()->findChild<QTimer*>(u"tmrPrint"_s)->setInterval(0ms);
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(Job(), nullptr);
    EXPECT_TRUE(Window().Form().mnuFilePrint->isEnabled());
    EXPECT_EQ(BusyChanges(), (QList{true, false}));
    ASSERT_EQ(Printer().printed.size(), 1U);
    const PrintedPages& pages = Printer().printed.front();
    EXPECT_EQ(pages.space, Printer().space);
    EXPECT_EQ(pages.title, u"Cedar & Sons");
    EXPECT_TRUE(TextsOf(pages.pages.front()).contains(u"$0,2.00"));
    EXPECT_TRUE(TextsOf(pages.pages.back()).contains(u"$249,2.00"));
    EXPECT_EQ(TextsOf(pages.pages.back()).last(), GetResourceText(TextNumber::LegalNotice));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

class CancelledDocument : public DocumentTest, public testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Sections, CancelledDocument, testing::Values(1, 2, 3, 4));

TEST_P(CancelledDocument, PrintsNothing) {
    Begin();
    int yields = 0;
    OnYield([&] {
        if (++yields == GetParam()) {
            Job()->findChild<QPushButton*>()->click();
        }
    });
    Print();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(yields, GetParam());
    EXPECT_TRUE(Printer().printed.empty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(DocumentTest, OneAtATime) {
    Begin(1h);
    Print();
    const frmPrint* first = Job();
    ASSERT_TRUE(WaitFor([&] { return first->PrintFinished(); }));
    Print();
    Window().Form().mnuFilePrint->trigger();
    EXPECT_EQ(Printer().asked, 1);
    EXPECT_EQ(Job(), first);
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(TextNumber::StillPrinting)});
    Job()->reject();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(BusyChanges(), (QList{true, false}));
}

TEST_F(DocumentTest, TheReportKeepsOthersWaiting) {
    Begin(1h);
    Window().Form().mnuFilePrint->trigger();
    Print();
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(TextNumber::StillPrinting)});
    EXPECT_EQ(Printer().asked, 1);
    EXPECT_EQ(BusyChanges(), QList{true});
    Window().findChild<frmPrint*>()->reject();
    ASSERT_TRUE(WaitForEnd());
}

TEST_F(DocumentTest, RefusalsAreReportedAsThoseOfTheReport) {
    struct {
        const char* why;
        std::function<void(FakePrinter&)> prepare;
        QString reported;
    } const table[]{
        {"cancelled", [](FakePrinter& printer) { printer.answer = false; }, {}},
        {"no printer", [](FakePrinter& printer) { printer.chance = {PrintFault::NoPrinter}; },
         GetResourceText(TextNumber::NoPrinter)},
        {"refused later", [](FakePrinter& printer) { printer.outcome = {PrintFault::NoServer}; },
         GetResourceText(TextNumber::NoPrintServer)},
        {"a failing dialog",
         [](FakePrinter& printer) {
             printer.whileAsking = [] { throw std::runtime_error("no printing system"); };
         },
         {}},
        {"a small page",
         [](FakePrinter& printer) {
             printer.space = {2000, 800};
         },
         GetResourceText(TextNumber::PageTooSmall)},
    };
    Begin();
    const FakePrinter usual;
    for (const auto& row : table) {
        Printer().answer = usual.answer;
        Printer().chance = usual.chance;
        Printer().outcome = usual.outcome;
        Printer().whileAsking = nullptr;
        row.prepare(Printer());
        Print();
        ASSERT_TRUE(WaitForEnd());
        EXPECT_EQ(SettledMessages(),
                  row.reported.isEmpty() ? QStringList() : QStringList{row.reported})
            << row.why;
        EXPECT_TRUE(Printer().printed.empty()) << row.why;
        Messages().Clear();
    }
}

TEST_F(DocumentTest, TheEndOfTheProgramWaitsForIt) {
    Begin(1h);
    Print();
    QTimer::singleShot(0, &Window(), [] { QCoreApplication::quit(); });
    QApplication::exec();
    EXPECT_FALSE(Commands().IsBusy());
    EXPECT_EQ(Printer().printed.size(), 1U);
    Print();
    End();
    EXPECT_EQ(Printer().printed.size(), 2U);
}

/// As when the window is destroyed before the commands at the end of the program.
TEST_F(DocumentTest, AWindowDestroyedMeanwhileTakesItAlong) {
    Printer().whileHandingOver = Hang;
    for (const bool handedOver : {false, true}) {
        Begin(handedOver ? 0ms : 1h);
        Print();
        ASSERT_TRUE(WaitFor([this] { return Job()->PrintFinished(); }));
        Settle();
        CloseOther();
        EXPECT_FALSE(Commands().IsBusy());
        EXPECT_EQ(BusyChanges(), (QList{true, false}));
        EXPECT_TRUE(Window().Form().mnuFilePrint->isEnabled());
        Settle();
        EXPECT_TRUE(Printer().printed.empty());
    }
}

TEST_F(DocumentTest, SpeaksTheLanguageInUse) {
    Begin(1h, {.language = Spanish});
    Print();
    ASSERT_TRUE(WaitFor([this] { return Job()->PrintFinished(); }));
    EXPECT_EQ(Job()->windowTitle(), u"Imprimiendo...");
    EXPECT_EQ(Job()->findChild<QLabel*>(u"lblPrintingText"_s)->text(), u"Imprimiendo\nSchedule...");
    Job()->reject();
    ASSERT_TRUE(WaitForEnd());
}

TEST_F(DocumentTest, BecomesAPdfFile) {
    Begin();
    const QString file = In(u"schedule.pdf"_s);
    EXPECT_EQ(Export(file), QString());
    EXPECT_TRUE(IsWhole(file));
    EXPECT_EQ(Title(file), u"Schedule");
    const int pages = PageCount(file);
    EXPECT_GT(pages, 3);
    const QString first = PageText(file, 1);
    for (const char* text : {"Cedar & Sons", "Counted from today.", "Column 2", "$0,2.00"}) {
        EXPECT_TRUE(first.contains(QLatin1String(text))) << text;
    }
    const QString last = PageText(file, pages);
    for (const QString& text : {u"Cedar & Sons"_s, u"Page %1"_s.arg(pages), u"Column 2"_s,
                                u"$249,2.00"_s, GetResourceText(TextNumber::LegalNotice)}) {
        EXPECT_TRUE(last.contains(text)) << text.toStdString();
    }
    EXPECT_FALSE(first.contains(GetResourceText(TextNumber::LegalNotice)));
    EXPECT_EQ(PictureCount(file), 0);
}

QString PageSizeOf(const QString& file) {
    const QString info = PrintServer::Run(u"pdfinfo"_s, {file});
    return info.section(u"Page size:"_s, 1).section(u'\n', 0, 0).simplified();
}

TEST_F(DocumentTest, ThePaperIsThatOfTheCountryAndTurnedForWideTables) {
    struct {
        const char* locale;
        int columns;
        const char* size;
    } const table[]{
        {"en_US", 3, "612 x 792 pts (letter)"}, {"en_US", 16, "792 x 612 pts (letter)"},
        {"es_MX", 3, "612 x 792 pts (letter)"}, {"es_ES", 3, "595 x 842 pts (A4)"},
        {"en_GB", 16, "842 x 595 pts (A4)"},    {"C", 3, "595 x 842 pts (A4)"},
    };
    Begin();
    const QString file = In(u"schedule.pdf"_s);
    for (const auto& row : table) {
        QLocale::setDefault(QLocale(QLatin1String(row.locale)));
        EXPECT_EQ(Export(file, Drawn(Payments(3, row.columns))), QString());
        EXPECT_EQ(PageSizeOf(file).toStdString(), row.size) << row.locale;
    }
    QLocale::setDefault(UnitedStates);
}

TEST_F(DocumentTest, AChartBecomesLinesAndText) {
    Begin();
    const QString file = In(u"chart.pdf"_s);
    const PictureOnPaper chart{.title = u"Over time"_s,
                               .paint =
                                   [](QPainter& painter, const QRectF& place) {
                                       painter.drawLine(place.topLeft(), place.bottomRight());
                                       painter.drawText(place, Qt::AlignCenter, u"Balance"_s);
                                   },
                               .table = Payments(2)};
    EXPECT_EQ(Export(file, [&](const Paper& paper) { return DrawingOf(chart, paper); }), QString());
    const QString text = PageText(file, 1);
    EXPECT_TRUE(text.contains(u"Over time"));
    EXPECT_TRUE(text.contains(u"Balance"));
    EXPECT_TRUE(text.contains(u"$1,2.00"));
    EXPECT_EQ(PictureCount(file), 0);
}

TEST_F(DocumentTest, AFileThatCannotBeSavedIsReportedAndNothingIsLeft) {
    Begin();
    const QString folder = In(u"missing/schedule.pdf"_s);
    EXPECT_EQ(Export(folder), GetResourceText(TextNumber::FileNoFolder).arg(folder));
    const QString device = u"/dev/full"_s;
    EXPECT_EQ(Export(device), GetResourceText(TextNumber::FileIsNone).arg(device));
    const QString file = In(QString(300, u'x'));
    const QString error = Export(file);
    EXPECT_TRUE(error.startsWith(GetResourceText(TextNumber::FileNotSaved).arg(file) + u"\n\n"_s))
        << error.toStdString();
    EXPECT_THROW(
        Export(In(u"new"_s),
               [](const Paper&) -> std::unique_ptr<Drawing> { throw std::runtime_error("torn"); }),
        std::runtime_error);
    EXPECT_TRUE(Files().isEmpty());
}

} // namespace
