// The sources of the help: every link has a target, every control has a topic, and all languages
// have the same contents.

#include "HelpPages.h"
#include "Forms.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

const std::string English = "000";

class Pages : public testing::TestWithParam<std::string> {
protected:
    const HelpPages m_help{GetParam()};

    /// Whether the target of a link from this page exists.
    bool Leads(const QString& page, const QString& link) const {
        const QString file = link.section(u'#', 0, 0);
        const QString place = link.section(u'#', 1);
        const QString target = file.isEmpty() ? page : file;
        return m_help.pages.contains(target) &&
               (place.isEmpty() || m_help.places[target].contains(place));
    }
};

INSTANTIATE_TEST_SUITE_P(Every, Pages, testing::ValuesIn(HelpIdentifiers()),
                         [](const auto& tested) { return tested.param; });

TEST_P(Pages, LinksLeadToWhatIsThere) {
    for (auto page = m_help.pages.begin(); page != m_help.pages.end(); ++page) {
        for (const QString& link : AllOf(QStringLiteral("href=\"([^\"]*)\""), *page)) {
            EXPECT_TRUE(Leads(page.key(), link))
                << page.key().toStdString() << ": " << link.toStdString();
        }
    }
    for (const auto& links : {m_help.keywords, m_help.topics}) {
        for (auto link = links.begin(); link != links.end(); ++link) {
            EXPECT_TRUE(Leads({}, *link)) << link.key().toStdString();
        }
    }
}

TEST_P(Pages, PicturesAreThereAndSmall) {
    constexpr qint64 most = 20'000;
    QStringList pictures;
    for (auto page = m_help.pages.begin(); page != m_help.pages.end(); ++page) {
        pictures += AllOf(QStringLiteral("<img src=\"([^\"]*)\" alt=\"[^\"]+\">"), *page);
        EXPECT_EQ(page->count(QStringLiteral("<img")),
                  AllOf(QStringLiteral("<img src=\"([^\"]*)\" alt=\"[^\"]+\">"), *page).size());
    }
    EXPECT_FALSE(pictures.isEmpty());
    for (const QString& picture : pictures) {
        const QFileInfo file(m_help.PathOf(picture));
        EXPECT_TRUE(file.exists() && file.size() < most) << picture.toStdString();
        EXPECT_TRUE(m_help.files.contains(picture)) << picture.toStdString();
    }
}

TEST_P(Pages, EveryPageIsInTheFileAndInTheContents) {
    for (const QString& page : m_help.pages.keys()) {
        EXPECT_TRUE(m_help.files.contains(page)) << page.toStdString();
        EXPECT_TRUE(m_help.contents.contains(page)) << page.toStdString();
    }
    for (const QString& page : m_help.contents) {
        EXPECT_TRUE(m_help.pages.contains(page)) << page.toStdString();
    }
}

/// The text under the heading of a topic is what a click on its control shows.
TEST_P(Pages, TopicsAreWhereTheirNumberSays) {
    for (auto topic = m_help.topics.begin(); topic != m_help.topics.end(); ++topic) {
        EXPECT_EQ(topic->section(u'#', 1), u't' + topic.key());
    }
    for (const QString& page : m_help.pages) {
        for (const QString& number : AllOf(QStringLiteral("<a name=\"t(\\d+)\">"), page)) {
            EXPECT_TRUE(m_help.topics.contains(number)) << number.toStdString();
            const QStringList text = AllOf(
                QStringLiteral("<h2><a name=\"t%1\"></a>[^<]+</h2>\n<p>(.*?)</p>").arg(number),
                page);
            ASSERT_EQ(1, text.size()) << number.toStdString();
            EXPECT_GE(text.front().size(), 15) << number.toStdString();
            EXPECT_LE(text.front().size(), 420)
                << number.toStdString() << " is a page, not a topic";
        }
    }
}

TEST_P(Pages, EveryControlHasItsTopic) {
    const auto topics = NumbersOfForms({QStringLiteral("helpTopic")});
    EXPECT_GT(topics.size(), 50U);
    for (const FormNumber& topic : topics) {
        EXPECT_TRUE(m_help.topics.contains(QString::number(topic.number)))
            << topic.number << " of " << topic.form.toStdString();
    }
}

/// Their numbers are in tables of the program, not in forms.
TEST_P(Pages, EveryColumnOfTheComparisonHasItsTopic) {
    constexpr int first = 700;
    constexpr int last = 723;
    for (int topic = first; topic <= last; ++topic) {
        EXPECT_TRUE(m_help.topics.contains(QString::number(topic))) << topic;
    }
}

TEST_P(Pages, SaysWhatTheOtherLanguagesSay) {
    const HelpPages english(English);
    EXPECT_EQ(english.topics, m_help.topics);
    EXPECT_EQ(english.contents, m_help.contents);
    EXPECT_EQ(english.pages.keys(), m_help.pages.keys());
    EXPECT_GE(m_help.keywords.size(), 50);
    for (const QString& page : english.pages.keys()) {
        SCOPED_TRACE(page.toStdString());
        EXPECT_EQ(english.places[page], m_help.places[page]);
        for (const char* part : {"<h2>", "<p>", "<li>", "<td", "<span", "<a href"}) {
            EXPECT_EQ(english.pages[page].count(QLatin1String(part)),
                      m_help.pages[page].count(QLatin1String(part)))
                << part;
        }
    }
}

/// Texts, pages and manual have many authors, so each key and thing must have one name.
TEST(SpanishWords, AreTheSameThroughout) {
    const QRegularExpression others(
        QStringLiteral("oprim\\w+|presion(?:e|ar)\\b|rengl[oó]n\\w*|ordenador|\\ben por ciento|"
                       "con mucho\\.|parejas de puntos|\\bborra\\b|importes?\\b"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    const HelpPages help("40a");
    QMap<QString, QString> written = help.pages;
    for (const char* name :
         {"language/components/40a/texts.txt", "packaging/man/quend-loan.es.1.in",
          "packaging/man/quend-compare.es.1.in"}) {
        written.insert(QLatin1String(name),
                       TextOfFile(QStringLiteral(QUEND_SOURCE_DIR "/") + QLatin1String(name)));
    }
    for (auto part = written.begin(); part != written.end(); ++part) {
        const QRegularExpressionMatch found = others.match(*part);
        EXPECT_FALSE(found.hasMatch())
            << part.key().toStdString() << ": " << found.captured().toStdString();
    }
}

TEST_P(Pages, AreWholeAndNameTheirLanguage) {
    for (auto page = m_help.pages.begin(); page != m_help.pages.end(); ++page) {
        SCOPED_TRACE(page.key().toStdString());
        QString xml = *page;
        xml.remove(QStringLiteral("<!DOCTYPE html>"));
        xml.replace(QStringLiteral("charset=\"utf-8\">"), QStringLiteral("charset=\"utf-8\"/>"));
        xml.replace(QRegularExpression(QStringLiteral("(<img [^>]*)>")), QStringLiteral("\\1/>"));
        QXmlStreamReader reader(xml);
        while (!reader.atEnd()) {
            reader.readNext();
        }
        EXPECT_FALSE(reader.hasError())
            << reader.errorString().toStdString() << " in line " << reader.lineNumber();
        EXPECT_TRUE(page->contains(
            QStringLiteral("<html lang=\"%1\">").arg(GetParam() == English ? u"en" : u"es")));
        EXPECT_EQ(AllOf(QStringLiteral("<title>(.*?)</title>"), *page),
                  AllOf(QStringLiteral("<h1>(.*?)</h1>"), *page));
    }
}

} // namespace
