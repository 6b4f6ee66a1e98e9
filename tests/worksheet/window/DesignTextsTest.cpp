// The captions in the forms equal the English texts, except for access keys.

#include "Captions.h"
#include "Language.h"
#include "QuendNames.h"

#include <QFile>
#include <QHash>
#include <QString>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

/// One object of a form: its name and its properties, numbers as text.
struct Drawn {
    QString name;
    QHash<QString, QString> properties;
};

QList<Drawn> ObjectsOf(const char* form) {
    QFile file(QStringLiteral(QUEND_SOURCE_DIR "/") + QLatin1String(form));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << form;
    QXmlStreamReader xml(&file);
    QList<Drawn> all;
    QList<Drawn> open;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        const bool object = xml.name() == u"widget" || xml.name() == u"action";
        if (token == QXmlStreamReader::StartElement && object) {
            open.append({xml.attributes().value(QStringLiteral("name")).toString(), {}});
        } else if (token == QXmlStreamReader::StartElement && xml.name() == u"property" &&
                   !open.isEmpty()) {
            const QString name = xml.attributes().value(QStringLiteral("name")).toString();
            open.last().properties.insert(
                name, xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed());
        } else if (token == QXmlStreamReader::EndElement && object) {
            all.append(open.takeLast());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return all;
}

class DesignTexts : public ::testing::TestWithParam<const char*> {
protected:
    DesignTexts() {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    }
    static QString EnglishText(const QString& number) {
        return Language::DefaultText(number.toInt());
    }
};

INSTANTIATE_TEST_SUITE_P(
    Forms, DesignTexts,
    ::testing::Values("worksheet/window/Loan.ui", "worksheet/window/offers/OfferRow.ui",
                      "comparison/window/frmCompare.ui", "comparison/window/CostsPage.ui",
                      "comparison/window/OverTimePage.ui", "comparison/window/SchedulePage.ui",
                      "comparison/window/frmFindPayment.ui"),
    [](const auto& form) {
        return QString::fromLatin1(form.param).section(u'/', -1).remove(u'.').toStdString();
    });

TEST_P(DesignTexts, AreTheEnglishCaptions) {
    for (const Drawn& object : ObjectsOf(GetParam())) {
        const QString number = object.properties.value(QStringLiteral("captionText"));
        if (number.isEmpty()) {
            continue;
        }
        QString drawn;
        for (const QLatin1String property :
             {QLatin1String("title"), QLatin1String("text"), QLatin1String("windowTitle")}) {
            drawn += object.properties.value(property);
        }
        EXPECT_EQ(WithoutAccessKey(EnglishText(number)).toStdString(),
                  WithoutAccessKey(drawn).toStdString())
            << object.name.toStdString();
    }
}

TEST_P(DesignTexts, OfTermsDifferInTheUnitAlone) {
    for (const Drawn& object : ObjectsOf(GetParam())) {
        const QString inYears = object.properties.value(QStringLiteral("captionTextInYears"));
        if (!inYears.isEmpty()) {
            const QString inMonths =
                EnglishText(object.properties.value(QStringLiteral("captionText")));
            EXPECT_EQ(EnglishText(inYears).toStdString(),
                      QString(inMonths)
                          .replace(QStringLiteral("months"), QStringLiteral("years"))
                          .toStdString());
        }
    }
}

TEST_P(DesignTexts, OfOneControlAndItsLabelShareTheirTopic) {
    QHash<QString, Drawn> byName;
    for (const Drawn& object : ObjectsOf(GetParam())) {
        EXPECT_FALSE(byName.contains(object.name)) << object.name.toStdString();
        byName.insert(object.name, object);
    }
    EXPECT_GT(byName.size(), 3);
    for (const Drawn& object : byName) {
        const QString buddy = object.properties.value(QStringLiteral("buddy"));
        if (!buddy.isEmpty()) {
            EXPECT_EQ(object.properties.value(QStringLiteral("helpTopic")).toStdString(),
                      byName[buddy].properties.value(QStringLiteral("helpTopic")).toStdString())
                << object.name.toStdString();
        }
    }
}

} // namespace
