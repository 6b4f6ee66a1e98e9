// The title of the window and the line below its rows follow what happens to the worksheet.

#include "FileCommandsFixture.h"
#include "QuendNames.h"

#include <QCheckBox>
#include <QLabel>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class Signs : public FileCommandsTest {
protected:
    QLabel& Line() { return Get<QLabel>(u"lblAnnounced"); }
    QLabel& Hint() { return Get<QLabel>(u"lblHint"); }
    void LetItPass() {
        Window().findChild<QTimer*>(u"tmrAnnounced"_s)->start(1);
        ASSERT_TRUE(WaitFor([this] { return !Line().isVisible(); }));
    }
};

struct TitleStep {
    const char* action;
    std::function<void()> act;
    QString title;
    bool modified;
};

TEST_F(Signs, TheTitleFollowsEveryAction) {
    const QString bare = u"Quend Loan"_s;
    const QString marked = u"Quend Loan[*]"_s;
    const QString home = u"Home[*] — Quend Loan"_s;
    const auto fill = [this](QStringView field, QStringView text) {
        return [=, this] { Fill(field, text); };
    };
    const auto trigger = [this](QStringView entry) { return [=, this] { Trigger(entry); }; };
    // clang-format off
    const std::vector<TitleStep> steps{
        {"start",                      [] {},                                    bare,   false},
        {"sort",                       [this] { Click(u"cmdInterest"); },        bare,   false},
        {"pass through a field",       fill(u"txtLoanAmount", u""),              bare,   false},
        {"change a field",             fill(u"txtLoanAmount", u"7"),             marked, true},
        {"new, dropped",               [this] { Messages().WillAnswer({Answer::No}); Trigger(u"mnuFileNew"); },
                                                                                 bare,   false},
        {"type a name",                [this] { TypeName(u"Home"); Tab(); },     home,   false},
        {"save",                       trigger(u"mnuFileSave"),                  home,   false},
        {"pass through a filled field", [this] { Enter(u"cboLoanName"); Tab(); }, home,  false},
        {"an offer",                   fill(u"txtInterestRate(0)", u"6"),        home,   true},
        {"save",                       trigger(u"mnuFileSave"),                  home,   false},
        {"a tick",                     [this] { Click(u"chkPoints(0)"); }, home,  true},
        {"open again, dropped",        [this] { Messages().WillAnswer({Answer::No}); Pick(1); },
                                                                                 home,   false},
        {"a choice",                   [this] { Choose(u"cboFrequency(0)", 1); }, home,  true},
        {"save",                       trigger(u"mnuFileSave"),                  home,   false},
        {"the type",                   [this] { Choose(u"cboLoanType", 1); },    home,   true},
        {"another language",           [this] { SwitchLanguage(Spanish); },      home,   true},
        {"back",                       [this] { SwitchLanguage(English); },      home,   true},
        {"other settings",             [this] { Window().ApplySettings(Window().GetSettings()); },
                                                                                 home,   true},
        {"a name like the mark",       [this] { TypeName(u"a[*]"); Tab(); },
                                                            u"a[*][*][*] — Quend Loan"_s, true},
        {"delete",                     [this] { Messages().WillAnswer({Answer::Yes}); Trigger(u"mnuFileDelete"); },
                                                                                 bare,   false},
    };
    // clang-format on
    for (const TitleStep& step : steps) {
        SCOPED_TRACE(step.action);
        step.act();
        Settle();
        EXPECT_EQ(Window().windowTitle(), step.title);
        EXPECT_EQ(Window().isWindowModified(), step.modified);
        EXPECT_EQ(Window().isWindowModified(), Sheet().Dirty());
    }
}

TEST_F(Signs, ASaveSaysSoForAMomentAndNothingMoves) {
    for (const bool complete : {false, true}) {
        SCOPED_TRACE(complete);
        Begin({}, m_folder.Store());
        if (complete) {
            FillFirstOffer();
        }
        const QRect place = Hint().geometry();
        const QRect rows = Control(u"picScroll").geometry();
        ASSERT_EQ(Hint().isVisible(), !complete);
        KeepLoan(u"Home", u"7");
        EXPECT_EQ(Announced(), u"Saved.");
        EXPECT_EQ(Line().text(), u"Saved.");
        EXPECT_FALSE(Hint().isVisible());
        EXPECT_EQ(Line().geometry(), place);
        EXPECT_EQ(Control(u"picScroll").geometry(), rows);
        Window().resize(Window().width() + 40, Window().height() + 40);
        Settle();
        EXPECT_EQ(Line().geometry(), Hint().geometry());
        LetItPass();
        EXPECT_EQ(Hint().isVisible(), !complete);
        WorksheetStore(m_folder.Store()).Delete(u"Home"_s);
    }
}

TEST_F(Signs, ALongAnnouncementIsElidedAndReadWhole) {
    const QString name(200, u'W');
    KeepLoan(name, u"7");
    Trigger(u"mnuFileNew");
    const QRect rows = Control(u"picScroll").geometry();
    KeepLoan(name, u"8");
    EXPECT_EQ(Announced(),
              u"Saved. The earlier worksheet of this name is kept: File, Bring Back “%1…”"_s.arg(
                  QString(40, u'W')));
    EXPECT_LE(Line().heightForWidth(Line().width()), Line().height());
    EXPECT_EQ(Control(u"picScroll").geometry(), rows);
}

TEST_F(Signs, OnlyWhatASaveOrADeletionDidIsAnnounced) {
    Fill(u"txtLoanAmount", u"7");
    Trigger(u"mnuFileSave"); // no name
    EXPECT_EQ(Announced(), u"");
    Begin({}, RegistryAPI("/dev/null/no/such/place/Loan.store"));
    TypeName(u"Home");
    Trigger(u"mnuFileSave"); // no store
    EXPECT_EQ(Announced(), u"");
    Messages().WillAnswer({Answer::Yes});
    Trigger(u"mnuFileDelete");
    EXPECT_EQ(Announced(), u"");
}

} // namespace
