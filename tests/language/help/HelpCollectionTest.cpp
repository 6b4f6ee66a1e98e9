#include "CompiledHelp.h"
#include "Failure.h"
#include "HelpWindow.h"
#include "QuendNames.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString Built(const char* file) {
    return QStringLiteral(QUEND_PROGRAM_DIR "/%1").arg(QLatin1String(file));
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(HelpCollection, HoldsPagesTopicsAndKeywords) {
    CompiledHelp english(Built("loan000.hlp"));
    CompiledHelp spanish(Built("loan40a.hlp"));
    EXPECT_EQ(english.FirstPage().fileName(), u"welcome.html");
    EXPECT_TRUE(english.Data(english.FirstPage()).contains("Welcome to Quend Loan"));
    EXPECT_TRUE(spanish.Data(spanish.FirstPage()).contains("Bienvenido a Quend Loan"));
    EXPECT_EQ(english.PageOfTopic(1003).fileName(), u"wanted.html");
    EXPECT_EQ(english.PageOfTopic(1003).fragment(), u"t1003");
    EXPECT_EQ(english.PageOfKeyword(QStringLiteral("points")).fileName(), u"points.html");
    EXPECT_EQ(spanish.PageOfKeyword(QStringLiteral("puntos")).fileName(), u"points.html");
    EXPECT_TRUE(english.Has(english.Page(QStringLiteral("pictures/loan.png"))));
}

TEST(HelpCollection, KnowsNothingOfWhatItDoesNotHold) {
    CompiledHelp content(Built("loan000.hlp"));
    EXPECT_TRUE(content.PageOfTopic(0).isEmpty());
    EXPECT_TRUE(content.PageOfTopic(99'999).isEmpty());
    EXPECT_TRUE(content.TopicText(99'999).isEmpty());
    EXPECT_TRUE(content.PageOfKeyword(QStringLiteral("no such thing")).isEmpty());
    EXPECT_FALSE(content.Has(content.Page(QStringLiteral("none.html"))));
    EXPECT_TRUE(content.Data(QUrl(QStringLiteral("https://quend.example/loan"))).isEmpty());
}

TEST(HelpCollection, CutsATopicOutOfItsPage) {
    CompiledHelp content(Built("loan000.hlp"));
    const QString text = content.TopicText(1006);
    EXPECT_TRUE(text.startsWith(QStringLiteral("<p><b>Annual Insurance</b></p>")));
    EXPECT_TRUE(text.contains(QStringLiteral("insurance premiums")));
    EXPECT_FALSE(text.contains(QStringLiteral("Monthly Escrow")));
    const QString last = content.TopicText(1052); // the last topic of its page
    EXPECT_TRUE(last.contains(QStringLiteral("needs")));
    EXPECT_FALSE(last.contains(QStringLiteral("body")));
}

TEST(HelpCollection, MissingOrDamagedFileIsAFailureWithItsMessage) {
    const QTemporaryDir folder;
    const QByteArray sound = BytesOf(Built("loan000.hlp"));
    QByteArray torn = sound;
    torn.replace(1'000, sound.size() - 1'000, QByteArray(sound.size() - 1'000, 'x'));
    struct Case {
        const char* what;
        QByteArray bytes;
    };
    for (const Case& tested :
         {Case{"missing", {}}, Case{"empty", ""}, Case{"garbage", "this is no help file at all"},
          Case{"cut off", sound.left(sound.size() / 2)}, Case{"short", sound.left(100)},
          Case{"overwritten", torn}}) {
        SCOPED_TRACE(tested.what);
        const QString path = folder.filePath(QString::fromLatin1(tested.what));
        if (!tested.bytes.isNull()) {
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(tested.bytes);
        }
        try {
            const CompiledHelp content(path);
            ADD_FAILURE() << "opens";
        } catch (const Failure& failure) {
            EXPECT_NE(failure.Description(), "");
            EXPECT_NE(failure.Description().find(path.toStdString()), std::string::npos)
                << failure.Description();
        }
    }
}

TEST(HelpPlace, IsIn1024thsOfTheScreen) {
    struct Case {
        QRect screen;
        QRect place;
    };
    for (const Case& tested :
         {Case{{0, 0, 1024, 1024}, {400, 400, 620, 620}},
          Case{{0, 0, 1920, 1080}, {750, 421, 1162, 653}},
          Case{{1920, -200, 800, 600}, {2232, 34, 484, 363}}, Case{{0, 0, 1, 1}, {0, 0, 0, 0}}}) {
        EXPECT_EQ(HelpPlace{}.On(tested.screen), tested.place);
        EXPECT_TRUE(tested.screen.contains(HelpPlace{}.On(tested.screen)) ||
                    tested.place.isEmpty());
    }
}

} // namespace
