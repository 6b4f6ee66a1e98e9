#include "FailureReport.h"

#include "Failure.h"
#include "Language.h"
#include "TextNumbers.h"
#include "WindowNames.h"

#include <QStringList>

namespace quend::window {

QString FailureText(const Failure& failure) {
    return QStringLiteral("errn=%1  src=%2  desc=%3")
        .arg(QString::number(failure.Number()), QString::fromStdString(failure.Source()),
             QString::fromStdString(failure.Description()));
}

QString FailureMessage(const Failure& failure) {
    const auto explained = [&failure](int text) {
        return GetResourceText(text) + u'\n' + FailureText(failure);
    };
    if (dynamic_cast<const NeverRepaidFailure*>(&failure) != nullptr) {
        return explained(TextNumber::NeverRepaid);
    }
    if (dynamic_cast<const OverflowFailure*>(&failure) != nullptr) {
        return explained(TextNumber::NumberTooLarge);
    }
    return FailureText(failure);
}

QString FailureLines(const std::vector<Failure>& failures) {
    constexpr std::size_t most = 10;
    QStringList lines;
    for (const Failure& failure : failures) {
        if (static_cast<std::size_t>(lines.size()) == most) {
            lines.append(QStringLiteral("… (%1)").arg(failures.size()));
            break;
        }
        lines.append(FailureText(failure));
    }
    return lines.join(u'\n');
}

void FailureReport::Report(const std::exception& failure) const {
    if (const auto* ours = dynamic_cast<const Failure*>(&failure)) {
        m_messages->Post(FailureMessage(*ours));
    } else {
        constexpr int unexpected = 5;
        m_messages->Post(FailureText(Failure(unexpected, ProgramSource, failure.what())));
    }
}

} // namespace quend::window
