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
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <iostream>
#include <span>

using namespace Qt::StringLiterals;

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

void ShowAllOptions(const QPrintDialog& dialog) {
    for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().endsWith(u">>")) {
            button->click();
        }
    }
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
    void ExpectNoTrace() {
        Settle();
        EXPECT_TRUE(Printed().isEmpty());
        if (Server) {
            EXPECT_TRUE(PrintServer::Jobs().isEmpty());
            EXPECT_TRUE(Server->Spooled().isEmpty()) << Server->Spooled().join(u' ').toStdString();
        }
        EXPECT_TRUE(SettledMessages().isEmpty());
    }

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
         {u"Print"_s, u"&Print"_s, u"Cancel"_s},
         {u"Print Setup"_s, u"OK"_s, u"Cancel"_s},
         u"Landscape"},
        {Spanish,
         {u"Imprimir"_s, u"Im&primir"_s, u"Cancelar"_s},
         {u"Configurar impresión"_s, u"Aceptar"_s, u"Cancelar"_s},
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
    PrintServer::Run(QStringLiteral("lpadmin"),
                     {QStringLiteral("-p"), QStringLiteral("Other"), QStringLiteral("-E"),
                      QStringLiteral("-v"), QStringLiteral("file:///dev/null"),
                      QStringLiteral("-m"), QStringLiteral("raw")});
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

TEST_F(ServerOnlyTest, NoPrinterAtAllIsNotTold) {
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    Print([](QPrintDialog& dialog) { dialog.accept(); });
    EXPECT_TRUE(WaitForEnd());
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
    ExpectNoTrace();
}

TEST_F(ServerOnlyTest, APrinterThatIsGoneDoesNotPrintOnAnother) {
    Begin(1h);
    FillRows(1);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    PrintServer::Run(QStringLiteral("lpadmin"),
                     {QStringLiteral("-p"), QStringLiteral("Other"), QStringLiteral("-E"),
                      QStringLiteral("-v"), QStringLiteral("file:///dev/null"),
                      QStringLiteral("-m"), QStringLiteral("raw")});
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("Other")});
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("Lab")});
    Job()->findChild<QTimer*>(QStringLiteral("tmrPrint"))->setInterval(0ms);
    EXPECT_TRUE(WaitForEnd());
    ExpectNoTrace();
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

TEST_F(ServerOnlyTest, AQueueThatRejectsIsNotTold) {
    PrintServer::Run(QStringLiteral("cupsreject"), {QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    Print();
    EXPECT_TRUE(WaitForEnd());
    ExpectNoTrace();
}

TEST_F(ServerOnlyTest, AServerThatIsGoneIsNotTold) {
    Begin(1h);
    FillRows(1);
    Print();
    ASSERT_TRUE(WaitFor([&] { return Job()->PrintFinished(); }));
    Server->EndServer();
    Job()->findChild<QTimer*>(QStringLiteral("tmrPrint"))->setInterval(0ms);
    EXPECT_TRUE(WaitForEnd());
    EXPECT_TRUE(SettledMessages().isEmpty());
    EXPECT_TRUE(Printed().isEmpty());
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
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
