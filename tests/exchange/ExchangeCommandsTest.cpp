// Open File and Save As File, operated by a user in the real window.

#include "ExchangeCommands.h"
#include "Colours.h"
#include "LoanNameBox.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <memory>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class ExchangeCommandsTest : public WindowTest {
protected:
    ExchangeCommandsTest() { Begin(); }
    ~ExchangeCommandsTest() override { m_commands.reset(); }

    void Begin(const Start& start = {}) {
        m_commands.reset();
        Open(start);
        m_commands = std::make_unique<ExchangeCommands>(
            Window(),
            ExchangeWorld{.askToOpen =
                              [this](QWidget& /*parent*/, const QString& folder) {
                                  m_proposed = folder;
                                  return m_chosen;
                              },
                          .askToSave =
                              [this](QWidget& /*parent*/, const QString& proposed) {
                                  m_proposed = proposed;
                                  return m_chosen;
                              }},
            [this] {
                ++m_asked;
                return m_mayDrop;
            });
    }
    void Trigger(QStringView entry, const QString& chosen) {
        m_proposed.clear();
        m_chosen = chosen;
        Window().findChild<QAction*>(entry.toString())->trigger();
        Settle();
    }
    QColor NameColour() {
        return Get<LoanNameBox>(u"cboLoanName").lineEdit()->palette().base().color();
    }
    QString In(const QString& name) const { return m_folder.filePath(name); }
    QString Write(const QByteArray& content) const {
        QFile file(In(u"a.quendloan"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    static QByteArray BytesOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    QString m_chosen;
    QString m_proposed;
    int m_asked = 0;
    bool m_mayDrop = true;
    std::unique_ptr<ExchangeCommands> m_commands;
};

const QByteArray Eight = R"({"name": "Eight", "amount": "8", "offers": [{}, {}, {}, {}, {}, {}, {},
                             {"lender": "Last"}]})";

TEST_F(ExchangeCommandsTest, OpeningReplacesTheWorksheetAndKeepsNothing) {
    Fill(u"txtLoanAmount", u"7");
    Enter(u"txtLoanAmount");
    Window().MarkNameMissing();
    ASSERT_EQ(NameColour(), Colours::Missing);
    Trigger(u"mnuFileOpen", Write(Eight));
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(Text(u"cboLoanName"), u"Eight");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"8") << "in entry form";
    EXPECT_EQ(Text(u"txtWho(7)"), u"Last");
    EXPECT_TRUE(Sheet().Dirty());
    EXPECT_NE(NameColour(), Colours::Missing);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(ExchangeCommandsTest, TheUserMayKeepTheWorksheet) {
    Fill(u"txtLoanAmount", u"7");
    m_mayDrop = false;
    Trigger(u"mnuFileOpen", Write(Eight));
    EXPECT_EQ(m_asked, 1);
    Trigger(u"mnuFileOpen", {}); // cancelled
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$7.00");
}

TEST_F(ExchangeCommandsTest, AFileInErrorChangesNothing) {
    for (const int language : {English, Spanish}) {
        Begin({.language = language});
        Fill(u"txtLoanAmount", u"7");
        Messages().Clear();
        Trigger(u"mnuFileOpen", Write("{\"amount\": \"8\",\n\"termMonths\": -1}"));
        ASSERT_EQ(SettledMessages().size(), 1);
        EXPECT_TRUE(Messages().Texts().front().contains(In(u"a.quendloan"_s)));
        EXPECT_TRUE(Messages().Texts().front().contains(
            language == English ? u"Line 2: the value of “termMonths”"_s
                                : u"Línea 2: el valor de «termMonths»"_s));
        EXPECT_EQ(m_asked, 0) << "nothing is to be replaced";
        EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(7));
    }
}

TEST_F(ExchangeCommandsTest, ValuesThatCannotBeUsedAreNamed) {
    m_commands->OpenFile(Write(R"({"loanType": "Boat", "amount": "8"})"));
    ASSERT_EQ(SettledMessages().size(), 1);
    EXPECT_TRUE(Messages().Texts().front().contains(u"src=loanType"));
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(8));
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_F(ExchangeCommandsTest, ARefusedFieldStopsBoth) {
    const QString file = Write(Eight);
    Enter(u"txtLoanAmount");
    Paste(u"1.2.3");
    Trigger(u"mnuFileOpen", file);
    Trigger(u"mnuFileSaveAs", In(u"b.quendloan"_s));
    m_commands->OpenFile(file);
    EXPECT_EQ(m_asked, 0);
    EXPECT_FALSE(QFile::exists(In(u"b.quendloan"_s)));
    EXPECT_EQ(Text(u"txtLoanAmount"), u"1.2.3");
}

TEST_F(ExchangeCommandsTest, SavingProposesANameAndTakesTheFieldBeingEdited) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString first = QDir(documents).exists() ? documents : QDir::homePath();
    Click(u"cboLoanName");
    Type(u"Home/2.5");
    Enter(u"txtLoanAmount");
    Type(u"250000.5");
    Trigger(u"mnuFileSaveAs", {});
    EXPECT_EQ(m_proposed, first + u"/Home 2.5.quendloan"_s);
    Trigger(u"mnuFileSaveAs", In(u"v2.5"_s));
    EXPECT_TRUE(BytesOf(In(u"v2.5.quendloan"_s)).contains("\"amount\": \"250000.50\""));
    EXPECT_EQ(Announced(), u"Saved as “%1”."_s.arg(In(u"v2.5.quendloan"_s)));
    EXPECT_TRUE(Sheet().Dirty());
    EXPECT_EQ(Text(u"txtLoanAmount"), u"250000.5");
    Trigger(u"mnuFileOpen", {});
    EXPECT_EQ(m_proposed, m_folder.path());
    m_folder.remove();
    Trigger(u"mnuFileOpen", {});
    EXPECT_EQ(m_proposed, QDir::homePath());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(ExchangeCommandsTest, AnAddedEndingReplacesNothingUnasked) {
    const QString file = Write("old");
    const struct {
        QString chosen;
        std::optional<window::Answer> answer;
        bool replaced;
    } table[]{
        {In(u"a"_s), window::Answer::No, false},
        {In(u"a"_s), window::Answer::Yes, true},
        {file, {}, true}, // the dialog has asked
    };
    for (const auto& row : table) {
        Write("old");
        Messages().Clear();
        if (row.answer) {
            Messages().WillAnswer({*row.answer});
        }
        Trigger(u"mnuFileSaveAs", row.chosen);
        EXPECT_EQ(Messages().Questions().size(), row.answer ? 1U : 0U);
        EXPECT_EQ(BytesOf(file) != "old", row.replaced);
    }
}

TEST_F(ExchangeCommandsTest, WhatIsNotSavedIsReported) {
    Write("old");
    const struct {
        QString path;
        QStringView words;
    } table[]{
        {In(u"none/b.quendloan"_s), u"folder"},
        {u"/dev/full.quendloan/x.quendloan"_s, u"folder"},
        {QString(m_folder.path() + u"/"_s + QString(300, u'x')), u"x.quendloan"},
    };
    for (const auto& row : table) {
        Messages().Clear();
        Trigger(u"mnuFileSaveAs", row.path);
        ASSERT_EQ(SettledMessages().size(), 1) << row.path.toStdString();
        EXPECT_TRUE(Messages().Texts().front().contains(row.words))
            << Messages().Texts().front().toStdString();
        EXPECT_EQ(Announced(), u"");
    }
    if (geteuid() != 0) {
        QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::ExeOwner);
        Messages().Clear();
        Trigger(u"mnuFileSaveAs", In(u"b.quendloan"_s));
        EXPECT_EQ(SettledMessages().size(), 1);
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777));
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList(u"a.quendloan"_s));
}

TEST_F(ExchangeCommandsTest, ANegativeRateIsSaidBeforeAFileIsAskedFor) {
    SheetToWrite().SetCurrentInterestRate(Rate::FromFraction(-0.01));
    Trigger(u"mnuFileSaveAs", In(u"b.quendloan"_s));
    EXPECT_EQ(m_proposed, QString());
    EXPECT_FALSE(QFile::exists(In(u"b.quendloan"_s)));
    EXPECT_EQ(SettledMessages(), QStringList(u"The worksheet was not saved as a file.\n\nA file "
                                             u"cannot hold the value of “current.rate”: rates and "
                                             u"terms are zero or more there."_s));
}

TEST_F(ExchangeCommandsTest, WhatIsSavedIsOpenedAlike) {
    FillFirstOffer();
    Fill(u"txtWho(2)", u"Cedar & Sons");
    Trigger(u"mnuFileSaveAs", In(u"b.quendloan"_s));
    const QString payoff = Text(u"txtPayoffDate(0)");
    const QByteArray saved = BytesOf(In(u"b.quendloan"_s));
    Begin({.locale = Germany, .language = Spanish});
    m_commands->OpenFile(In(u"b.quendloan"_s));
    EXPECT_EQ(Text(u"txtWho(2)"), u"Cedar & Sons");
    Trigger(u"mnuFileSaveAs", In(u"c.quendloan"_s));
    EXPECT_EQ(BytesOf(In(u"c.quendloan"_s)), saved);
    EXPECT_FALSE(payoff.isEmpty());
}

} // namespace
