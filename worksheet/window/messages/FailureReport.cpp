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

QString FailureMessage(const std::exception& failure) {
    const auto* ours = dynamic_cast<const Failure*>(&failure);
    if (ours == nullptr) {
        constexpr int unexpected = 5;
        return FailureText(Failure(unexpected, ProgramSource, failure.what()));
    }
    const auto explained = [ours](int text) {
        return GetResourceText(text) + u'\n' + FailureText(*ours);
    };
    if (dynamic_cast<const NeverRepaidFailure*>(ours) != nullptr) {
        return explained(TextNumber::NeverRepaid);
    }
    if (dynamic_cast<const OverflowFailure*>(ours) != nullptr) {
        return explained(TextNumber::NumberTooLarge);
    }
    return FailureText(*ours);
}

QString FailureDescription(const std::exception& failure) {
    return QString::fromUtf8(failure.what());
}

QString NoMessage(const std::exception& /*failure*/) { return {}; }

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

bool FailureReport::Guard(const std::function<void()>& handler, Wording wording) const {
    try {
        handler();
        return true;
    } catch (const std::exception& failure) {
        if (const QString text = wording(failure); !text.isEmpty()) {
            m_messages->Post(text);
        }
        return false;
    }
}

} // namespace quend::window
