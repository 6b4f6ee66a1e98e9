#include "Forms.h"

#include <QDirIterator>
#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

std::vector<FormNumber> NumbersOfForm(const QString& form, const QByteArray& content,
                                      const std::set<QString>& properties) {
    std::vector<FormNumber> numbers;
    QXmlStreamReader reader(content);
    QString property;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == u"property") {
            property = reader.attributes().value(QLatin1String("name")).toString();
        } else if (reader.name() == u"number" && properties.contains(property)) {
            numbers.push_back({form, property, reader.readElementText().toInt()});
        }
    }
    EXPECT_FALSE(reader.hasError())
        << form.toStdString() << ": " << reader.errorString().toStdString();
    return numbers;
}

std::vector<FormNumber> NumbersOfForms(const std::set<QString>& properties) {
    std::vector<FormNumber> numbers;
    for (const char* folder :
         {"worksheet", "comparison", "storage", "printing", "extras", "language"}) {
        QDirIterator files(QStringLiteral(QUEND_SOURCE_DIR "/") + QString::fromUtf8(folder),
                           {QStringLiteral("*.ui")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
            const auto found = NumbersOfForm(file.fileName(), file.readAll(), properties);
            numbers.insert(numbers.end(), found.begin(), found.end());
        }
    }
    return numbers;
}
