#include "HelpPages.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

const QString HelpFolder = QStringLiteral(QUEND_SOURCE_DIR "/language/help");

void ReadProject(HelpPages& help) {
    QXmlStreamReader reader(TextOfFile(help.PathOf(QStringLiteral("loan.qhp"))));
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const auto attribute = [&](const char* name) {
            return reader.attributes().value(QLatin1String(name)).toString();
        };
        if (reader.name() == u"section") {
            help.contents.append(attribute("ref"));
        } else if (reader.name() == u"keyword" && !attribute("id").isEmpty()) {
            EXPECT_FALSE(help.topics.contains(attribute("id"))) << attribute("id").toStdString();
            help.topics.insert(attribute("id"), attribute("ref"));
        } else if (reader.name() == u"keyword") {
            EXPECT_FALSE(help.keywords.contains(attribute("name")));
            help.keywords.insert(attribute("name"), attribute("ref"));
        } else if (reader.name() == u"file") {
            help.files.append(reader.readElementText());
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
}

} // namespace

HelpPages::HelpPages(const std::string& identifier)
    : folder(HelpFolder + u'/' + QString::fromStdString(identifier)) {
    for (const QString& file : QDir(folder).entryList({QStringLiteral("*.html")})) {
        pages[file] = TextOfFile(PathOf(file));
        const QStringList names = AllOf(QStringLiteral("<a name=\"([^\"]*)\">"), pages[file]);
        places[file] = QSet<QString>(names.begin(), names.end());
        EXPECT_EQ(names.size(), places[file].size()) << file.toStdString();
    }
    ReadProject(*this);
}

std::vector<std::string> HelpIdentifiers() {
    std::vector<std::string> identifiers;
    for (const QString& name : QDir(HelpFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        identifiers.push_back(name.toStdString());
    }
    return identifiers;
}

QString TextOfFile(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList AllOf(const QString& expression, const QString& text) {
    QStringList found;
    const QRegularExpression pattern(expression, QRegularExpression::DotMatchesEverythingOption);
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        found.append(match.next().captured(1));
    }
    return found;
}
