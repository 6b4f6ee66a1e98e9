// File, Rename, with the dialog replaced by an answer, and the dialog itself.

#include "FileCommandsFixture.h"
#include "QuendNames.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class Rename : public FileCommandsTest {
protected:
    Rename() { Reach(m_folder.Store()); }

    void Reach(const RegistryAPI& store) {
        m_files.reset();
        m_files = std::make_unique<FileCommands>(Window(), WorksheetStore(store),
                                                 [this](QWidget&, const QString& name) {
                                                     m_asked.append(name);
                                                     return m_answer;
                                                 });
    }
    /// The program's key below which the worksheets are.
    std::vector<NamedValue> Values(const std::string& name) const {
        return m_folder.Store().GetValues(StoreFolder::Root, StoreFolder::LoanKey(name));
    }

    QStringList m_asked;
    std::optional<QString> m_answer;
};

const QString NotStored = u"This worksheet has not been saved, so there is nothing to rename. Type "
                          "its name into the field for the loan name, then save it."_s;

TEST_F(Rename, IsRefusedInWords) {
    struct Case {
        QString current; ///< “Home” and “Garden” are stored
        std::optional<QString> answer;
        QString message;
    };
    const QString notPossible = u"A worksheet cannot be saved under this name. Please choose "
                                "another one, without a backslash (\\) and not too long."_s;
    // clang-format off
    const std::vector<Case> cases{
        {u"Home"_s,  std::nullopt,           {}},
        {u"Home"_s,  u"Home"_s,              {}},
        {u"Home"_s,  u""_s,                  u"Please give the loan a name before you save it."_s},
        {u"Home"_s,  u" "_s,                 u"Please give the loan a name before you save it."_s},
        {u"Home"_s,  QString(256, u'x'),     notPossible},
        {u"Home"_s,  u"a\\b"_s,              notPossible},
        {u"Home"_s,  u"(new loan)"_s,        u"This is the name of the entry that begins a new worksheet, so none can "
                                             "be saved under it. Please choose another name."_s},
        {u"Home"_s,  u"Garden"_s,            u"There is already another worksheet named “Garden”. Please choose another name."_s},
        {u"Home"_s,  u"gARDEN"_s,            u"There is already another worksheet named “gARDEN”. Please choose another name."_s},
        {u"Other"_s, u"Third"_s,             NotStored},
        {u""_s,      u"Third"_s,             NotStored},
    };
    // clang-format on
    KeepLoan(u"Garden", u"7");
    KeepLoan(u"Home", u"8");
    for (const Case& row : cases) {
        SCOPED_TRACE(row.message.toStdString());
        TypeName(row.current);
        m_answer = row.answer;
        Messages().Clear();
        Trigger(u"mnuFileRename");
        EXPECT_EQ(SettledMessages(),
                  row.message.isEmpty() ? QStringList() : QStringList(row.message));
        EXPECT_EQ(Kept(), QStringList({u"Garden"_s, u"Home"_s}));
        EXPECT_EQ(Sheet().LoanName(), row.current);
        EXPECT_EQ(KeptText("Garden", "LoanAmount"), "7");
        EXPECT_EQ(KeptText("Home", "LoanAmount"), "8");
    }
    EXPECT_EQ(m_asked.size(), 9); // not about what is not stored
    EXPECT_EQ(m_asked.front(), u"Home");
}

TEST_F(Rename, MovesAllValuesAndLeavesTheRestAsItIs) {
    std::string old = "Home";
    KeepLoan(u"Home", u"7");
    m_folder.Store().SetValue(StoreFolder::Root, StoreFolder::LoanKey(old), "Of a later version",
                              RegistryType::Text, "x");
    Pick(1);
    for (const bool dirty : {false, true}) {
        for (const char* const to : {"Our home", "OUR HOME", "Home"}) {
            SCOPED_TRACE(to);
            Window().GetWorksheet().ClearDirty();
            if (dirty) {
                Fill(u"txtLoanTerm", u"10");
                Fill(u"txtLoanTerm", u"20");
            }
            std::vector<NamedValue> expected = Values(old);
            std::ranges::find(expected, "LoanName", &NamedValue::name)->value = std::string(to);
            m_answer = QString::fromUtf8(to);
            Trigger(u"mnuFileRename");
            EXPECT_EQ(Values(to), expected);
            EXPECT_EQ(Kept(), QStringList(*m_answer));
            EXPECT_EQ(Text(u"cboLoanName"), *m_answer);
            EXPECT_EQ(Announced(), u"Renamed.");
            EXPECT_EQ(Window().windowTitle(), *m_answer + u"[*] — Quend Loan"_s);
            EXPECT_EQ(Sheet().Dirty(), dirty);
            EXPECT_EQ(Window().isWindowModified(), dirty);
            EXPECT_TRUE(SettledMessages().isEmpty());
            old = to;
        }
    }
    Trigger(u"mnuFileSave"); // still the worksheet that was opened
    EXPECT_FALSE(Window().findChild<QAction*>(u"mnuFileBringBack"_s)->isVisible());
}

/// The sign of the kelvin is a k for Qt, but another character for the store.
TEST_F(Rename, ReplacesNoneThatOnlyLooksLikeTheSameName) {
    KeepLoan(u"\u212A", u"7");
    KeepLoan(u"k", u"8");
    m_answer = u"\u212A"_s;
    Trigger(u"mnuFileRename");
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(KeptText("\u212A", "LoanAmount"), "7");
    EXPECT_EQ(KeptText("k", "LoanAmount"), "8");
}

TEST_F(Rename, AStoreThatCannotBeWrittenIsReported) {
    KeepLoan(u"Home", u"7");
    m_answer = u"Other"_s;
    for (const bool mayRead : {false, true}) {
        Messages().Clear();
        if (mayRead) { // it goes while the user answers
            std::optional<StoreOutOfReach> away;
            m_files = std::make_unique<FileCommands>(Window(), WorksheetStore(m_folder.Store()),
                                                     [&](QWidget&, const QString&) {
                                                         away.emplace(m_folder.File());
                                                         return m_answer;
                                                     });
            Trigger(u"mnuFileRename");
            ASSERT_EQ(SettledMessages().size(), 1);
            EXPECT_TRUE(SettledMessages().front().startsWith(
                u"The worksheet could not be renamed. It keeps its name.\n\n"_s));
        } else {
            const StoreOutOfReach away(m_folder.File());
            Trigger(u"mnuFileRename");
            EXPECT_EQ(SettledMessages(), QStringList(NotStored));
        }
        EXPECT_EQ(Sheet().LoanName(), u"Home");
    }
    EXPECT_EQ(Kept(), QStringList(u"Home"_s));
}

struct DialogTexts {
    int language;
    QStringList texts;
};

TEST_F(Rename, TheDialogAsksInTheCurrentLanguage) {
    for (const DialogTexts& row :
         {DialogTexts{English, {u"Rename worksheet"_s, u"&New name:"_s, u"OK"_s, u"Cancel"_s}},
          DialogTexts{Spanish,
                      {u"Cambiar el nombre de la hoja"_s, u"&Nombre nuevo:"_s, u"Aceptar"_s,
                       u"Cancelar"_s}}}) {
        SwitchLanguage(row.language);
        for (const bool accepts : {true, false}) {
            QStringList shown;
            QTimer::singleShot(0, [&] {
                auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
                ASSERT_NE(dialog, nullptr);
                shown = {dialog->windowTitle(), dialog->labelText(), dialog->okButtonText(),
                         dialog->cancelButtonText()};
                EXPECT_EQ(dialog->textValue(), u"Home");
                EXPECT_GE(dialog->width(),
                          dialog->fontMetrics().horizontalAdvance(shown.front()) * 3 / 2);
                dialog->setTextValue(u"Other"_s);
                accepts ? dialog->accept() : dialog->reject();
            });
            EXPECT_EQ(AskForNewName(Window(), u"Home"_s),
                      accepts ? std::optional(u"Other"_s) : std::nullopt);
            EXPECT_EQ(shown, row.texts);
        }
    }
}

} // namespace
