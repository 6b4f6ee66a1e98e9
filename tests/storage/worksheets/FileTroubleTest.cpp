// The messages of the File menu about invalid names, and about a store that fails or was recovered.

#include "FileCommandsFixture.h"
#include "QuendNames.h"

#include "StoreNotice.h"

#include <QFile>

#include <fstream>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

class FileTrouble : public FileCommandsTest {
protected:
    /// Overwrites the first page of a store.
    static void Damage(const std::filesystem::path& file) {
        sqlite3* connection = nullptr;
        ASSERT_EQ(sqlite3_open(file.c_str(), &connection), SQLITE_OK);
        sqlite3_exec(connection, "PRAGMA wal_checkpoint(TRUNCATE)", nullptr, nullptr, nullptr);
        sqlite3_close(connection);
        std::fstream store(file, std::ios::in | std::ios::out | std::ios::binary);
        store << std::string(4'096, '?');
    }
};

TEST_F(FileTrouble, DeletingANameThatNoWorksheetCanHaveDeletesNone) {
    m_folder.Store().SetValue(StoreFolder::Root, BaseKey, "LoansDisplayed", RegistryType::Number,
                              3);
    for (const QStringView name : {u"\\", u"Alpha\\", u"\\Alpha", u"Alpha\\\\"}) {
        TypeName(name);
        Fill(u"txtLoanAmount", u"7");
        Messages().Clear();
        Messages().WillAnswer({Answer::Yes});
        Trigger(u"mnuFileDelete");
        EXPECT_TRUE(Messages().Questions().empty());
        EXPECT_EQ(SettledMessages(),
                  QStringList(u"No worksheet can have this name, so nothing has been deleted."_s));
        EXPECT_EQ(Sheet().LoanName(), name);
        EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(7));
        if (Kept().isEmpty()) {
            Begin({}, m_folder.Store());
            KeepLoan(u"Alpha", u"1000");
        }
        EXPECT_EQ(Kept(), QStringList(u"Alpha"_s));
    }
    EXPECT_EQ(m_folder.Number(BaseKey, "LoansDisplayed"), 3);
}

TEST_F(FileTrouble, AWorksheetThatCannotBeDeletedStays) {
    KeepLoan(u"Alpha", u"1000");
    Messages().WillAnswer({Answer::Yes});
    {
        const StoreOutOfReach closed(m_folder.File());
        Trigger(u"mnuFileDelete");
    }
    EXPECT_EQ(SettledMessages(), QStringList(u"The worksheet could not be deleted."_s));
    EXPECT_EQ(Sheet().LoanName(), u"Alpha");
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(1'000));
    EXPECT_EQ(Kept(), QStringList(u"Alpha"_s));
}

TEST_F(FileTrouble, APickFromAStoreOutOfReachChangesNothing) {
    KeepLoan(u"Alpha", u"1000");
    KeepLoan(u"Beta", u"2000");
    Click(u"cboLoanName");
    Press(Qt::Key_Down);
    ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    {
        const StoreOutOfReach closed(m_folder.File());
        Press(Qt::Key_Home);
        Press(Qt::Key_Down);
        Press(Qt::Key_Return);
        Settle();
    }
    EXPECT_EQ(SettledMessages(),
              QStringList(u"The worksheet could not be opened, because your saved worksheets "
                          "cannot be read at the moment. What you see stays as it is."_s));
    EXPECT_EQ(Text(u"cboLoanName"), u"Beta");
    EXPECT_EQ(Sheet().LoanName(), u"Beta");
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(2'000));
}

/// Another program is writing: the message gives this reason first, then the failure.
TEST_F(FileTrouble, AStoreInUseIsReportedInBothLanguages) {
    struct {
        int language;
        QStringView reason;
    } const table[]{
        {English, u"Another program is writing to your worksheets. Please try again in a moment."},
        {Spanish, u"Otro programa está escribiendo en sus hojas de trabajo. Inténtelo de nuevo "
                  u"dentro de un momento."},
    };
    for (const auto& row : table) {
        Begin({.language = row.language},
              RegistryAPI(m_folder.File(), std::chrono::milliseconds(20)));
        KeepLoan(u"Alpha", u"1000");
        Messages().Clear();
        sqlite3* connection = nullptr;
        ASSERT_EQ(sqlite3_open(m_folder.File().c_str(), &connection), SQLITE_OK);
        sqlite3_exec(connection, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        Trigger(u"mnuFileSave");
        Messages().WillAnswer({Answer::Yes});
        Trigger(u"mnuFileDelete");
        sqlite3_close(connection);
        const QStringList told = SettledMessages();
        ASSERT_EQ(told.size(), 2) << told.join(u'|').toStdString();
        EXPECT_TRUE(
            told.front().endsWith(u"\n\n"_s + row.reason.toString() +
                                  u"\nerrn=1001  src=  desc=Unable to create the registry key"_s))
            << told.front().toStdString();
        EXPECT_TRUE(told.back().endsWith(u"\n\n"_s + row.reason.toString()))
            << told.back().toStdString();
        EXPECT_EQ(Kept(), QStringList(u"Alpha"_s));
    }
}

TEST_F(FileTrouble, BadValuesAreReportedInOneMessage) {
    KeepLoan(u"Beta", u"70000");
    const RegistryAPI store = m_folder.Store();
    const std::string key = StoreFolder::LoanKey("Beta");
    for (const char* value :
         {"LoanTerm", "EscrowTaxes", "CurrentTerm", "CurrentBalance", "CurrentPayment",
          "CurrentLoanAmount", "CurrentNextPayment", "CurrentFrequency", "CurrentActualFrequency",
          "EscrowInsurance", "CurrentActualPayment"}) {
        store.SetValue(StoreFolder::Root, key, value, RegistryType::Text, std::string("bad"));
    }
    Pick(1);
    const QStringList told = SettledMessages();
    ASSERT_EQ(told.size(), 1) << told.join(u'|').toStdString();
    EXPECT_TRUE(told.front().startsWith(
        u"Some values of this worksheet could not be read. The rest has been loaded.\n\n"
        "errn=13  src=LoanTerm  desc=Type mismatch\nerrn=13  src=EscrowTaxes"))
        << told.front().toStdString();
    EXPECT_TRUE(told.front().endsWith(u"… (11)"));
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$70,000.00");
}

/// The store is damaged while the program runs; the next save recovers it and succeeds.
TEST_F(FileTrouble, ARepairInTheMiddleOfASaveIsReportedOnce) {
    struct {
        int language;
        QStringView told;
        QStringView opened;
    } const table[]{
        {English,
         u"The file with your saved worksheets was damaged. What could be read is in a new file: "
         u"1 complete worksheet. The damaged file has been kept as %1\n\n"
         u"Not complete, because some values could not be read: “Delta”",
         u"This worksheet is not complete: some of its values were lost when the file with your "
         u"saved worksheets was damaged. If you save it under this name, it will be kept as you "
         u"see it now."},
        {Spanish,
         u"El archivo con sus hojas de trabajo guardadas estaba dañado. Lo que se pudo "
         u"leer está en un archivo nuevo: 1 hoja de trabajo completa. El archivo dañado se "
         u"conservó como %1\n\n"
         u"Con valores que faltan, porque no se pudieron leer: “Delta”",
         u"Esta hoja de trabajo no está completa: algunos de sus valores se perdieron cuando se "
         u"dañó el archivo con sus hojas de trabajo guardadas. Si la guarda con este nombre, se "
         u"conservará como la ve ahora."},
    };
    for (const auto& row : table) {
        const StoreFolder folder;
        Begin({.language = row.language}, folder.Store());
        Take(ReportingStore(folder.File(), Window().GetMessages(),
                            [] { return std::string("2026-11-21"); }));
        KeepLoan(u"Alpha", u"1000");
        KeepLoan(u"Delta", u"4000");
        folder.Store().DeleteValue(StoreFolder::Root, StoreFolder::LoanKey("Delta"), "LoanTerm");
        Damage(folder.File());
        KeepLoan(u"Beta", u"2000");
        const QString kept =
            QString::fromStdString(folder.File().string()) + QStringLiteral(".damaged-2026-11-21");
        EXPECT_EQ(SettledMessages(), QStringList(row.told.toString().arg(kept)));
        EXPECT_TRUE(QFile::exists(kept));
        KeepLoan(u"Gamma", u"3000");
        EXPECT_EQ(SettledMessages().size(), 1);
        EXPECT_EQ(WorksheetStore(folder.Store()).Names(),
                  (QStringList{u"Alpha"_s, u"Beta"_s, u"Delta"_s, u"Gamma"_s}));
        for (const bool saved : {false, true}) {
            Messages().Clear();
            Pick(3);
            EXPECT_EQ(SettledMessages(),
                      saved ? QStringList() : QStringList(row.opened.toString()));
            EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(4'000));
            Trigger(u"mnuFileSave");
            Pick(1);
        }
        Messages().Clear();
    }
}

} // namespace
