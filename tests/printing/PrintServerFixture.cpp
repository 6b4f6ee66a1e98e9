#include "PrintServerFixture.h"
#include "EnterValues.h"

#include "FilePrinter.h"
#include "Language.h"
#include "LoanForm.h"
#include "OfferRows.h"
#include "SystemPrinter.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPushButton>
#include <QTest>

#include <iostream>

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

std::unique_ptr<PrintServer> TheServer; // NOLINT: the test framework needs a global

class ServerEnvironment : public testing::Environment {
public:
    void SetUp() override {
        if (PrintServer::IsInstalled()) {
            TheServer = std::make_unique<PrintServer>();
        } else {
            std::cout << "No print server is installed: printing into files instead.\n";
        }
    }
    void TearDown() override { TheServer.reset(); }
};

} // namespace

PrintServer* Server() { return TheServer.get(); }

void Accept(QPrintDialog& dialog) {
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

QString InServerFolder(const QString& path) {
    return QFileInfo(qEnvironmentVariable("CUPS_SERVER")).dir().filePath(u"../"_s + path);
}

void AddOther() {
    PrintServer::Run(QStringLiteral("lpadmin"),
                     {QStringLiteral("-p"), QStringLiteral("Other"), QStringLiteral("-E"),
                      QStringLiteral("-v"), QStringLiteral("file:///dev/null"),
                      QStringLiteral("-m"), QStringLiteral("raw")});
}

void PrintServerTest::Begin(std::chrono::milliseconds shownAtLeast, std::function<void()> yield) {
    Open();
    if (Server() != nullptr) {
        m_printer = std::make_unique<SystemPrinter>(GetResourceText);
    } else {
        m_printer = std::make_unique<FilePrinter>(m_folder.filePath(QStringLiteral("job.pdf")),
                                                  QPageSize(QPageSize::Letter));
    }
    m_commands = std::make_unique<PrintCommands>(
        Window(), *m_printer,
        frmPrint::Pace{.shownAtLeast = shownAtLeast, .yield = std::move(yield)});
}

void PrintServerTest::FillRows(int count) {
    Fill(u"cboLoanName", u"Our home");
    Window().Rows().GrowTo(Row{count - 1});
    for (int row = 0; row < count; ++row) {
        const QString name = QStringLiteral("Bank%1").arg(row);
        EnterText(SheetToWrite(), {FieldId::Who, Row{row}},
                  (name + QStringLiteral(" of the far prairie ")).repeated(5).trimmed());
    }
}

void PrintServerTest::Print(const std::function<void(QPrintDialog&)>& answer) {
    const DialogAnswer dialog(answer);
    Window().Form().mnuFilePrint->trigger();
}

bool PrintServerTest::BeginJob() {
    Begin(1h);
    FillRows(1);
    Print();
    return WaitFor([this] { return Job()->PrintFinished(); });
}

QTimer& PrintServerTest::JobTimer() {
    return *Job()->findChild<QTimer*>(QStringLiteral("tmrPrint"));
}

bool PrintServerTest::WaitForEnd() {
    return WaitFor([this] { return Job() == nullptr; });
}

QStringList PrintServerTest::Printed() const {
    if (Server() != nullptr) {
        return Server()->Printed();
    }
    const QString file = m_folder.filePath(QStringLiteral("job.pdf"));
    return QFile::exists(file) ? QStringList{file} : QStringList{};
}

bool PrintServerTest::WaitForPaper(int count) {
    return QTest::qWaitFor(
        [&] {
            const QStringList printed = Printed();
            return printed.size() == count && IsWhole(printed.back());
        },
        30'000);
}

void PrintServerTest::ExpectNoTrace(const QStringList& reported) {
    Settle();
    EXPECT_TRUE(Printed().isEmpty());
    if (Server() != nullptr) {
        EXPECT_TRUE(PrintServer::Jobs().isEmpty());
        EXPECT_TRUE(Server()->Spooled().isEmpty()) << Server()->Spooled().join(u' ').toStdString();
    }
    EXPECT_EQ(SettledMessages(), reported);
}

void ServerOnlyTest::SetUp() {
    if (Server() == nullptr) {
        GTEST_SKIP() << "no print server is installed";
    }
}

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    testing::AddGlobalTestEnvironment(new ServerEnvironment); // GoogleTest deletes it
    return RUN_ALL_TESTS();
}
