#pragma once

#include "Failure.h"
#include "Messages.h"

#include <QString>

#include <exception>
#include <vector>

/// How a failure is told: "errn=" number "  src=" source "  desc=" description.
QString FailureText(const Failure& failure);

/// The same below what it means in the user's language, where a user can do something about it.
QString FailureMessage(const Failure& failure);

/// Several of them, one a line; of many, the first ones and their number.
QString FailureLines(const std::vector<Failure>& failures);

/// The one place where a failure in a handler ends up: it is told to the user, and the program
/// carries on.
class FailureReport {
public:
    explicit FailureReport(Messages& messages) : m_messages(&messages) {}

    /// Runs a handler; false when it failed and the failure has been reported.
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

    Messages* m_messages;
};
