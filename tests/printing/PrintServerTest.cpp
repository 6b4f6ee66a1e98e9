// The Print command from its dialog to the sheet in the printer's tray: a real print server, a real
// IPP printer. Where they are not installed, into a file.

#include "PrintServer.h"
#include "FilePrinter.h"
#include "Language.h"
#include "LoanForm.h"
#include "PrintCommands.h"
#include "SystemPrinter.h"
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QtEndian>

#include <cmath>
#include <iostream>
#include <span>

namespace {

using namespace std::chrono_literals;

PrintServer* Server = nullptr; // NOLINT: lives as long as the test program

class ServerHouse : public testing::Environment {
public:
    void SetUp() override {
        if (PrintServer::IsInstalled()) {
            m_server = std::make_unique<PrintServer>();
            Server = m_server.get();
        } else {
            std::cout << "No print server is installed: printing into files instead.\n";
        }
    }
    void TearDown() override {
        Server = nullptr;
        m_server.reset();
    }

private:
    std::unique_ptr<PrintServer> m_server;
};

/// Answers the next print dialog as a user would.
class DialogAnswer : public QObject {
public:
    explicit DialogAnswer(std::function<void(QPrintDialog&)> answer) {
        connect(&m_timer, &QTimer::timeout, this, [this, answer = std::move(answer)] {
            if (auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
                m_timer.stop();
                ++m_count;
                answer(*dialog);
            }
        });
        m_timer.start(10ms);
    }
    int Count() const { return m_count; }

private:
    QTimer m_timer;
    int m_count = 0;
};

void Accept(QPrintDialog& dialog) {
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

/// In points, such as "612 x 792".
QString PageSizeOf(const QString& document) {
    const QString info = PrintServer::Run(QStringLiteral("pdfinfo"), {document});
    const QRegularExpression size(QStringLiteral("Page size:\\s*([0-9.]+) x ([0-9.]+)"));
    const auto found = size.match(info);
    return QStringLiteral("%1 x %2")
        .arg(std::lround(found.captured(1).toDouble()))
        .arg(std::lround(found.captured(2).toDouble()));
}

/// A path in the server's own folder.
QString InServerFolder(const QString& path) {
    return QFileInfo(qEnvironmentVariable("CUPS_SERVER")).dir().filePath(u"../"_qs + path);
}

/// What the server was told of the job with this number.
int CopiesOf(int job) {
    QFile file(InServerFolder(QStringLiteral("spool/c%1").arg(job, 5, 10, QLatin1Char('0'))));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("there is no such job");
    }
    const QByteArray attributes = file.readAll();
    const QByteArray name("\x21\0\6copies\0\4", 11);
    const qsizetype at = attributes.indexOf(name);
    return at < 0 ? 1 : qFromBigEndian<qint32>(attributes.constData() + at + name.size());
}

void ShowAllOptions(const QPrintDialog& dialog) {
    for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().endsWith(u">>")) {
            button->click();
        }
    }
}

/// A second printer, which takes every document and keeps none.
void AddOther() {
    PrintServer::Run(QStringLiteral("lpadmin"),
                     {QStringLiteral("-p"), QStringLiteral("Other"), QStringLiteral("-E"),
                      QStringLiteral("-v"), QStringLiteral("file:///dev/null"),
                      QStringLiteral("-m"), QStringLiteral("raw")});
}

class PrintServerTest : public WindowTest {
protected:
    void Begin(std::chrono::milliseconds shownAtLeast = 0ms, std::function<void()> yield = {}) {
        Open();
        if (Server) {
            m_printer = std::make_unique<SystemPrinter>(GetResourceText);
        } else {
            m_printer = std::make_unique<FilePrinter>(m_folder.filePath(QStringLiteral("job.pdf")),
                                                      QPageSize(QPageSize::Letter));
        }
        m_commands = std::make_unique<PrintCommands>(
            Window(), *m_printer,
            frmPrint::Pace{.shownAtLeast = shownAtLeast, .yield = std::move(yield)});
    }
    void FillRows(int count) {
        Fill(u"cboLoanName", u"Our home");
        Window().Rows().GrowTo(Row{count - 1});
        for (int row = 0; row < count; ++row) {
            const QString name = QStringLiteral("Bank%1").arg(row);
            SheetToWrite().StoreWho(
                Row{row}, (name + QStringLiteral(" of the far prairie ")).repeated(5).trimmed());
            SheetToWrite().ShowOffer(Row{row});
        }
    }
    void Print(const std::function<void(QPrintDialog&)>& answer = Accept) {
        const DialogAnswer dialog(answer);
        Window().Form().mnuFilePrint->trigger();
    }
    frmPrint* Job() const { return m_commands->Job(); }
    bool WaitForEnd() {
        return WaitFor([this] { return Job() == nullptr; });
    }
    QStringList Printed() const {
        if (Server) {
            return Server->Printed();
        }
        const QString file = m_folder.filePath(QStringLiteral("job.pdf"));
        return QFile::exists(file) ? QStringList{file} : QStringList{};
    }
    /// Documents come out of the printer some time after they were handed over.
    bool WaitForPaper(int count) {
        return QTest::qWaitFor(
            [&] {
                const QStringList printed = Printed();
                return printed.size() == count && IsWhole(printed.back());
            },
            30'000);
    }
    void ExpectNoTrace(const QStringList& told = {}) {
        Settle();
        EXPECT_TRUE(Printed().isEmpty());
        if (Server) {
            EXPECT_TRUE(PrintServer::Jobs().isEmpty());
            EXPECT_TRUE(Server->Spooled().isEmpty()) << Server->Spooled().join(u' ').toStdString();
        }
        EXPECT_EQ(SettledMessages(), told);
    }
    QTimer& JobTimer() const { return *Job()->findChild<QTimer*>(QStringLiteral("tmrPrint")); }
    void HurryJob() const { JobTimer().setInterval(0ms); }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PrinterDoor> m_printer;
    std::unique_ptr<PrintCommands> m_commands;
};

/// What only a print server can be asked.
class ServerOnlyTest : public PrintServerTest {
protected:
    void SetUp() override {
        if (!Server) {
            GTEST_SKIP() << "no print server is installed";
        }
    }
};

TEST_F(PrintServerTest, AJobArrivesAsOneDocument) {
    Begin();
    FillRows(16);
    Print();
    ASSERT_TRUE(WaitForEnd());
    ASSERT_TRUE(WaitForPaper(1));
    const QString document = Printed().front();
    EXPECT_EQ(Title(document), u"Test Job");
    ASSERT_EQ(PageCount(document), 2);
    EXPECT_EQ(PictureCount(document), 0);
    const QString first = PageText(document, 1);
    const QString second = PageText(document, 2);
    EXPECT_TRUE(first.contains(u"Our home"));
    EXPECT_TRUE(first.contains(u"Current Balance:"));
    EXPECT_TRUE(first.contains(u"Payoff Date"));
    EXPECT_FALSE(first.contains(u"Page"));
    EXPECT_TRUE(second.contains(u"Our home"));
    EXPECT_TRUE(second.contains(u"Page 2"));
    EXPECT_TRUE(second.contains(u"Payoff Date"));
    qsizetype before = -1;
    const QString all = first + second;
    for (int row = 0; row < 16; ++row) {
        const qsizetype at = all.indexOf(QStringLiteral("Bank%1 ").arg(row));
        EXPECT_GT(at, before) << row;
        before = at;
    }
    EXPECT_LT(all.indexOf(u"Bank0 "), first.size());
    EXPECT_GT(before, first.size());
    for (const QString& page : {first, second}) {
        EXPECT_TRUE(page.contains(u"Copyright 2026 Quend Halverworks."));
    }
    EXPECT_TRUE(SettledMessages().isEmpty());
    if (Server) {
        EXPECT_EQ(PrintServer::Jobs(), QStringList{QStringLiteral("Lab-1")});
    }
}

class CancelAt : public PrintServerTest, public testing::WithParamInterface<int> {};

// 1 to 4: in a yield; 5: while the window waits for its timer.
INSTANTIATE_TEST_SUITE_P(Moments, CancelAt, testing::Values(1, 2, 3, 4, 5));

TEST_P(CancelAt, LeavesNoTrace) {
    int yields = 0;
    const auto cancel = [&] { Job()->findChild<QPushButton*>()->click(); };
    Begin(1h, [&] {
        if (++yields == GetParam()) {
            cancel();
        }
    });
    FillRows(3);
    Print();
    if (GetParam() == 5) {
        ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
        cancel();
    }
    ASSERT_TRUE(WaitForEnd());
    ExpectNoTrace();
}

TEST_F(ServerOnlyTest, ACancelledDialogLeavesNoTrace) {
    Begin();
    Print([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(Job(), nullptr);
    ExpectNoTrace();
}

TEST_F(ServerOnlyTest, TheDialogAsksForPaperAndCopiesAlone) {
    Begin();
    int asked = 0;
    Print([&](QPrintDialog& dialog) {
        ++asked;
        for (const auto option :
             {QAbstractPrintDialog::PrintSelection, QAbstractPrintDialog::PrintPageRange,
              QAbstractPrintDialog::PrintCurrentPage, QAbstractPrintDialog::PrintToFile}) {
            EXPECT_FALSE(dialog.testOption(option)) << option;
        }
        ShowAllOptions(dialog);
        for (const char* choice : {"printRange", "pagesRadioButton", "pageSetCombo"}) {
            const auto* widget = dialog.findChild<QWidget*>(QLatin1String(choice));
            ASSERT_NE(widget, nullptr) << choice;
            EXPECT_FALSE(widget->isVisible()) << choice;
        }
        EXPECT_TRUE(dialog.findChild<QSpinBox*>(QStringLiteral("copies"))->isVisible());
        EXPECT_EQ(dialog.minPage(), 1);
        EXPECT_EQ(dialog.maxPage(), 9999);
        EXPECT_EQ(dialog.printer()->printerName(), u"Lab");
        EXPECT_EQ(dialog.printer()->pageLayout().pageSize().id(), QPageSize::Letter);
        EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->text(),
                  u"Cancel");
        dialog.reject();
    });
    EXPECT_EQ(asked, 1);
}

TEST_F(ServerOnlyTest, TheDialogsSpeakTheLanguageInUse) {
    struct {
        int language;
        QStringList print;
        QStringList setUp;
        QStringView landscape;
    } const table[]{
        {English,
         {u"Print"_qs, u"&Print"_qs, u"Cancel"_qs},
         {u"Print Setup"_qs, u"OK"_qs, u"Cancel"_qs},
         u"Landscape"},
        {Spanish,
         {u"Imprimir"_qs, u"Im&primir"_qs, u"Cancelar"_qs},
         {u"Configurar impresión"_qs, u"Aceptar"_qs, u"Cancelar"_qs},
         u"Apaisado"},
    };
    Begin();
    for (const std::size_t which : {0U, 1U, 0U}) {
        const auto& row = std::span(table)[which];
        SwitchLanguage(row.language);
        QStringList shown;
        const auto look = [&](QPrintDialog& dialog) {
            const auto* buttons = dialog.findChild<QDialogButtonBox*>();
            shown += {dialog.windowTitle(), buttons->button(QDialogButtonBox::Ok)->text(),
                      buttons->button(QDialogButtonBox::Cancel)->text().remove(u'&')};
            dialog.reject();
        };
        Print(look);
        const DialogAnswer setUp(look);
        Window().Form().mnuFilePrintSetup->trigger();
        EXPECT_EQ(shown, row.print + row.setUp);
        EXPECT_EQ(QCoreApplication::translate("QPageSetupWidget", "Landscape"), row.landscape);
    }
}

TEST_F(ServerOnlyTest, SetUpChoosesThePrinterAndStartsNoJob) {
    AddOther();
    Begin();
    {
        const DialogAnswer answer([](QPrintDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"Print Setup");
            for (auto* list : dialog.findChildren<QComboBox*>()) {
                if (list->findText(QStringLiteral("Other")) >= 0) {
                    list->setCurrentIndex(list->findText(QStringLiteral("Other")));
                }
            }
            Accept(dialog);
        });
        Window().Form().mnuFilePrintSetup->trigger();
        EXPECT_EQ(answer.Count(), 1);
    }
    EXPECT_EQ(Job(), nullptr);
    EXPECT_TRUE(PrintServer::Jobs().isEmpty());
    EXPECT_EQ(QPrinterInfo::defaultPrinterName(), u"Other");
    EXPECT_TRUE(PrintServer::Run(QStringLiteral("lpstat"), {QStringLiteral("-d")})
                    .contains(QStringLiteral("Other")));
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.printer()->printerName(), u"Other");
        dialog.reject();
    });
}

/// Chooses in the properties of the open dialog, which are a dialog, too.
void InProperties(const QPrintDialog& dialog, const std::function<void(QWidget&)>& choose) {
    QTimer::singleShot(0, &dialog, [choose] {
        QWidget& properties = *QApplication::activeModalWidget();
        choose(properties);
        properties.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().contains(u"roperties")) {
            button->click();
        }
    }
}

QComboBox& ListNamed(const QObject& dialog, const char* name) {
    return *dialog.findChild<QComboBox*>(QLatin1String(name));
}

/// The paper shown, the side up, and the upper margin in points.
QString ShownPage(const QWidget& properties) {
    const auto unit = ListNamed(properties, "unitCombo").currentData().value<QPageLayout::Unit>();
    const double top = properties.findChild<QDoubleSpinBox*>(QStringLiteral("topMargin"))->value();
    const QMarginsF margins =
        QPageLayout(QPageSize(QPageSize::A0), QPageLayout::Portrait, {0, top, 0, 0}, unit)
            .margins(QPageLayout::Point);
    return ListNamed(properties, "pageSizeCombo").currentText() +
           (properties.findChild<QRadioButton*>(QStringLiteral("landscape"))->isChecked()
                ? QStringLiteral(" lying ")
                : QStringLiteral(" upright ")) +
           QString::number(std::lround(margins.top()));
}

QString PageOf(const QPrinter& printer) {
    const QPageLayout page = printer.pageLayout();
    return page.pageSize().key() +
           (page.orientation() == QPageLayout::Landscape ? QStringLiteral(" lying ")
                                                         : QStringLiteral(" upright ")) +
           QString::number(std::lround(page.margins(QPageLayout::Point).top()));
}

void ChooseLyingA4(QWidget& properties) {
    auto& papers = ListNamed(properties, "pageSizeCombo");
    papers.setCurrentIndex(papers.findText(QStringLiteral("A4")));
    properties.findChild<QRadioButton*>(QStringLiteral("landscape"))->click();
    auto& units = ListNamed(properties, "unitCombo");
    units.setCurrentIndex(2); // points
    Q_EMIT units.activated(2);
    properties.findChild<QDoubleSpinBox*>(QStringLiteral("topMargin"))->setValue(100);
}

TEST_F(ServerOnlyTest, ThePageChosenInSetUpIsPrinted) {
    Begin();
    FillRows(1);
    {
        const DialogAnswer answer([](QPrintDialog& dialog) {
            InProperties(dialog, [](QWidget& properties) {
                EXPECT_EQ(ShownPage(properties), u"Letter upright 18");
                ChooseLyingA4(properties);
            });
            Accept(dialog);
        });
        Window().Form().mnuFilePrintSetup->trigger();
        EXPECT_EQ(answer.Count(), 1);
    }
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(PageOf(*dialog.printer()), u"A4 lying 100");
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    ASSERT_TRUE(WaitForPaper(1));
    EXPECT_EQ(PageSizeOf(Printed().front()), u"595 x 842"); // a sheet of A4
}

TEST_F(ServerOnlyTest, ThePageOfTheLastDialogIsThatOfTheNext) {
    Begin();
    Print([](QPrintDialog& dialog) {
        InProperties(dialog, ChooseLyingA4);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) { dialog.reject(); });
    Print(); // without a look at the page
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        InProperties(
            dialog, [](QWidget& properties) { EXPECT_EQ(ShownPage(properties), u"A4 lying 100"); });
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(PageOf(*dialog.printer()), u"A4 lying 100");
        dialog.reject();
    });
}

/// The paper is taken as chosen, though it is that of the printer before.
TEST_F(ServerOnlyTest, ThePaperChosenForAnotherPrinterHolds) {
    AddOther();
    Begin();
    Print([](QPrintDialog& dialog) {
        InProperties(dialog, ChooseLyingA4);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        auto& printers = ListNamed(dialog, "printers");
        printers.setCurrentIndex(printers.findText(QStringLiteral("Other")));
        InProperties(dialog, ChooseLyingA4);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.printer()->printerName(), u"Other");
        EXPECT_EQ(PageOf(*dialog.printer()), u"A4 lying 100");
        dialog.reject();
    });
}

TEST_F(ServerOnlyTest, CopiesAreThoseOfOneJob) {
    Begin();
    FillRows(1);
    const auto copies = [](QPrintDialog& dialog) {
        return dialog.findChild<QSpinBox*>(QStringLiteral("copies"));
    };
    Print([&](QPrintDialog& dialog) {
        copies(dialog)->setValue(3);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([&](QPrintDialog& dialog) {
        EXPECT_EQ(copies(dialog)->value(), 1);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(CopiesOf(1), 3);
    EXPECT_EQ(CopiesOf(2), 1);
}

TEST_F(ServerOnlyTest, NoPrinterAtAllIsToldInsteadOfAsking) {
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    const DialogAnswer answer(Accept);
    Window().Form().mnuFilePrint->trigger();
    EXPECT_EQ(answer.Count(), 0);
    EXPECT_EQ(Job(), nullptr);
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
    ExpectNoTrace({GetResourceText(660)});
}

TEST_F(ServerOnlyTest, APrinterThatIsGoneDoesNotPrintOnAnother) {
    Begin(1h);
    FillRows(1);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    AddOther();
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("Other")});
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("Lab")});
    HurryJob();
    EXPECT_TRUE(WaitForEnd());
    ExpectNoTrace({GetResourceText(662).arg(QStringLiteral("Lab"))});
}

TEST_F(ServerOnlyTest, AStoppedQueueKeepsTheJob) {
    PrintServer::Run(QStringLiteral("cupsdisable"), {QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    Print();
    EXPECT_TRUE(WaitForEnd());
    EXPECT_TRUE(SettledMessages().isEmpty());
    EXPECT_EQ(PrintServer::Jobs(), QStringList{QStringLiteral("Lab-1")});
    EXPECT_TRUE(Printed().isEmpty());
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
    PrintServer::Run(QStringLiteral("cupsenable"), {QStringLiteral("Lab")});
    EXPECT_TRUE(WaitForPaper(1));
}

TEST_F(ServerOnlyTest, AQueueThatRejectsIsToldAndStartsNoJob) {
    PrintServer::Run(QStringLiteral("cupsreject"), {QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    Print();
    EXPECT_EQ(Job(), nullptr);
    ExpectNoTrace({GetResourceText(663).arg(QStringLiteral("Lab"))});
}

TEST_F(ServerOnlyTest, AQueueThatRejectsMeanwhileIsTold) {
    Begin(1h);
    FillRows(1);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    PrintServer::Run(QStringLiteral("cupsreject"), {QStringLiteral("Lab")});
    HurryJob();
    EXPECT_TRUE(WaitForEnd());
    ExpectNoTrace({GetResourceText(663).arg(QStringLiteral("Lab"))});
}

TEST_F(ServerOnlyTest, AServerThatIsGoneIsTold) {
    Begin(1h);
    FillRows(1);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    Server->EndServer();
    HurryJob();
    EXPECT_TRUE(WaitForEnd());
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(661)});
    EXPECT_TRUE(Printed().isEmpty());
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
    Door().Clear();
    Print();
    EXPECT_EQ(Job(), nullptr);
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(661)});
}

/// Stops the server's process for as long as it lives: it takes requests and answers none.
class HungServer {
public:
    HungServer() {
        QFile file(InServerFolder(QStringLiteral("run/cupsd.pid")));
        if (!file.open(QIODevice::ReadOnly)) {
            throw std::runtime_error("the server has no process");
        }
        m_process = QString::fromLatin1(file.readAll().trimmed());
        Signal(QStringLiteral("-STOP"));
    }
    HungServer(const HungServer&) = delete;
    HungServer& operator=(const HungServer&) = delete;
    HungServer(HungServer&&) = delete;
    HungServer& operator=(HungServer&&) = delete;
    ~HungServer() { Signal(QStringLiteral("-CONT")); }

private:
    void Signal(const QString& signal) const {
        PrintServer::Run(QStringLiteral("kill"), {signal, m_process});
    }
    QString m_process;
};

TEST_F(ServerOnlyTest, AServerThatHangsIsToldInsteadOfAsking) {
    Begin();
    FillRows(1);
    const HungServer hung;
    QElapsedTimer clock;
    clock.start();
    const DialogAnswer answer(Accept);
    Window().Form().mnuFilePrint->trigger();
    EXPECT_LT(clock.elapsed(), 10'000) << "of two seconds";
    EXPECT_EQ(answer.Count(), 0);
    EXPECT_EQ(Job(), nullptr);
    EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(661)});
}

TEST_F(ServerOnlyTest, AServerThatHangsIsWaitedFor) {
    Begin(1h);
    FillRows(1);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    {
        const HungServer hung;
        HurryJob();
        ASSERT_TRUE(WaitFor([&] { return !JobTimer().isActive(); }));
        Settle();
        ASSERT_NE(Job(), nullptr);
        EXPECT_TRUE(Job()->isVisible());
    }
    ASSERT_TRUE(WaitForEnd());
    EXPECT_TRUE(WaitForPaper(1));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(ServerOnlyTest, CancelLeavesNoTraceInAServerThatHangs) {
    Begin(1h);
    FillRows(1);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    {
        const HungServer hung;
        HurryJob();
        ASSERT_TRUE(WaitFor([&] { return !JobTimer().isActive(); }));
        Job()->findChild<QPushButton*>()->click();
        ASSERT_TRUE(WaitForEnd());
    }
    ExpectNoTrace();
}

} // namespace

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    testing::AddGlobalTestEnvironment(new ServerHouse); // which GoogleTest deletes
    return RUN_ALL_TESTS();
}
