#include "MailInterface.h"
#include "QuendNames.h"
#include "ShareCommands.h"
#include "WindowFixture.h"

#include <stdexcept>
#include <vector>

namespace {

/// Records the calls to the mail client.
class FakeMail : public MailInterface {
public:
    int SignOn() override {
        steps.append(QStringLiteral("on"));
        return session;
    }
    void Send(int number, const MailMessage& message) override {
        steps.append(QStringLiteral("send %1").arg(number));
        if (fails) {
            throw std::runtime_error("no client");
        }
        messages.push_back(message);
    }
    void SignOff(int number) override { steps.append(QStringLiteral("off %1").arg(number)); }

    int session = 7;
    bool fails = false;
    QStringList steps;
    std::vector<MailMessage> messages;
};

TEST(ShareBody, FirstMarkerGivesWayToTheReferral) {
    struct Case {
        const char* text;
        const char* referral;
        const char* body;
    };
    for (const Case& tested : {
             Case{"see https://a.example?ID", "", "see https://a.example"},
             Case{"see https://a.example?ID", "0", "see https://a.example"},
             Case{"see https://a.example?ID", "000", "see https://a.example"},
             Case{"see https://a.example?ID", "none", "see https://a.example"},
             Case{"see https://a.example?ID", "12abc", "see https://a.example"},
             Case{"see https://a.example?ID", "12 34", "see https://a.example"},
             Case{"see https://a.example?ID", "nan", "see https://a.example"},
             Case{"see https://a.example?ID", "inf", "see https://a.example"},
             Case{"see https://a.example?ID", "4711", "see https://a.example?ref=4711"},
             Case{"see https://a.example?ID", "-1", "see https://a.example?ref=-1"},
             Case{"see https://a.example?ID", "007", "see https://a.example?ref=007"},
             Case{"?ID and ?ID", "", " and ?ID"},
             Case{"?ID and ?ID", "5", "?ref=5 and ?ID"},
             Case{"?id stays", "5", "?id stays"},
             Case{"no marker", "5", "no marker"},
             Case{"", "5", ""},
         }) {
        EXPECT_EQ(ShareBody(QString::fromLatin1(tested.text), QString::fromLatin1(tested.referral)),
                  QString::fromLatin1(tested.body));
    }
}

class Share : public WindowTest {
protected:
    FakeMail m_mail;
};

TEST_F(Share, SendsTheTextsOfTheLanguage) {
    struct Case {
        int language;
        QStringView subject;
        QStringView begins;
        const char* referral;
        QStringView ends;
    };
    for (const Case& tested : {Case{English, u"A loan calculator you may like", u"Hello,\n\n", "",
                                    u"https://quend.example/loan"},
                               Case{Spanish, u"Una calculadora de préstamos que te puede gustar",
                                    u"Hola:\n\n", "12", u"https://quend.example/loan?ref=12"}}) {
        Open({.language = tested.language});
        const ShareCommands share(Window(), m_mail, QString::fromLatin1(tested.referral));
        Click(u"cmdShare");
        ASSERT_FALSE(m_mail.messages.empty());
        EXPECT_EQ(m_mail.messages.back().subject, tested.subject);
        EXPECT_TRUE(m_mail.messages.back().body.startsWith(tested.begins));
        EXPECT_TRUE(m_mail.messages.back().body.endsWith(tested.ends));
    }
    EXPECT_EQ(m_mail.steps.join(u' '), u"on send 7 off 7 on send 7 off 7");
    EXPECT_EQ(SettledMessages(), QStringList());
}

TEST_F(Share, NoSessionEndsItSilently) {
    Open();
    m_mail.session = 0;
    const ShareCommands share(Window(), m_mail);
    Click(u"cmdShare");
    EXPECT_EQ(m_mail.steps, QStringList(QStringLiteral("on")));
    EXPECT_EQ(SettledMessages(), QStringList());
}

TEST_F(Share, FailingClientEndsItSilently) {
    Open();
    m_mail.fails = true;
    const ShareCommands share(Window(), m_mail);
    Click(u"cmdShare");
    EXPECT_EQ(m_mail.steps.join(u' '), u"on send 7");
    EXPECT_EQ(SettledMessages(), QStringList());
    EXPECT_FALSE(Sheet().Dirty());
}

} // namespace
