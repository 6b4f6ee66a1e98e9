#pragma once

#include "Failure.h"
#include "MessageQueue.h"

#include <QString>

#include <exception>
#include <functional>
#include <vector>

namespace quend::window {

/// The text of a failure: "errn=" number "  src=" source "  desc=" description.
QString FailureText(const Failure& failure);

/// The message about a failure: its text, preceded by advice in the user's language if the user can
/// do something about it. An exception of another library has the number 5 and the program's
/// source.
QString FailureMessage(const std::exception& failure);

/// Only the description of a failure.
QString FailureDescription(const std::exception& failure);

/// No message, for handlers whose stated behaviour is to fail in silence.
QString NoMessage(const std::exception& failure);

/// Several failures, one in each line; of many, only the first ones and the total.
QString FailureLines(const std::vector<Failure>& failures);

/// The one policy for failures: every handler of a menu, button or key runs in Guard, which reports
/// any exception to the user, and the program continues. Elsewhere a failure is caught only to be
/// turned into a result or another text, or where ignoring it is the stated behaviour.
class FailureReport {
public:
    /// What the user reads about a failure; an empty text is not shown.
    using Wording = QString (*)(const std::exception& failure);

    explicit FailureReport(MessageQueue& messages) : m_messages(&messages) {}

    /// Runs a handler; returns false if it failed.
    bool Guard(const std::function<void()>& handler, Wording wording = FailureMessage) const;

private:
    MessageQueue* m_messages;
};

} // namespace quend::window
