#include "FailureReport.h"

QString FailureText(const Failure& failure) {
    return QStringLiteral("errn=%1  src=%2  desc=%3")
        .arg(QString::number(failure.Number()), QString::fromStdString(failure.Source()),
             QString::fromStdString(failure.Description()));
}

void FailureReport::Report(const std::exception& failure) const {
    if (const auto* ours = dynamic_cast<const Failure*>(&failure)) {
        m_messages->Post(FailureText(*ours));
    } else {
        constexpr int unexpected = 5;
        m_messages->Post(FailureText(Failure(unexpected, "Loan", failure.what())));
    }
}
