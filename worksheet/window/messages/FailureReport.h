#pragma once

#include "Failure.h"
#include "MessageQueue.h"

#include <QString>

#include <exception>
#include <vector>

namespace quend::window {

/// The text of a failure: "errn=" number "  src=" source "  desc=" description.
QString FailureText(const Failure& failure);

/// The same, preceded by advice in the user's language if the user can do something about it.
QString FailureMessage(const Failure& failure);

/// Several failures, one in each line; of many, only the first ones and the total.
QString FailureLines(const std::vector<Failure>& failures);

/// The one place that catches the failures of handlers: it reports them to the user, and the
/// program continues.
class FailureReport {
public:
    explicit FailureReport(MessageQueue& messages) : m_messages(&messages) {}

    /// Runs a handler; returns false if it failed and the failure has been reported.
    template <class Handler>
    bool Guard(Handler&& handler) const {
        try {
            handler();
            return true;
        } catch (const std::exception& failure) {
            Report(failure);
            return false;
        }
    }

private:
    void Report(const std::exception& failure) const;

    MessageQueue* m_messages;
};

} // namespace quend::window
