#include "HelpCollection.h"

#include <QRegularExpression>

namespace quend::help {

QUrl HelpCollection::FirstPage() const { return Page(QStringLiteral("welcome.html")); }

bool HelpCollection::Has(const QUrl& page) const { return !Data(page).isEmpty(); }

QString HelpCollection::TopicText(int topic) const {
    const QString page = QString::fromUtf8(Data(PageOfTopic(topic)));
    const QRegularExpression section(
        QStringLiteral("<h2><a name=\"t%1\"></a>(.*?)</h2>(.*?)(?=<h2>|</body>)").arg(topic),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch found = section.match(page);
    return found.hasMatch()
               ? QStringLiteral("<p><b>%1</b></p>%2").arg(found.captured(1), found.captured(2))
               : QString();
}

} // namespace quend::help
