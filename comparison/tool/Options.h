#pragma once

#include "Comparison.h"
#include "ToolNames.h"
#include "WorksheetFile.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quend::tool {

enum class Task { Compare, Schedule, PaymentBy, Lines, Help, Version };

enum class Format { Text, Csv, Json };

/// The command line. What is none was not given.
struct Options {
    Task task = Task::Compare;
    Format format = Format::Text;
    std::optional<int> years;
    std::optional<PaymentChoice> payments;
    Money monthlyPayment; ///< for PaymentChoice::Monthly
    std::optional<Date> today;
    int place = 0;  ///< for Task::Schedule: CurrentLoanPlace, or of an offer from 1
    Date paymentBy; ///< for Task::PaymentBy
    /// As given, in the system's encoding; "-" is standard input. For Task::Compare, Schedule and
    /// PaymentBy exactly one.
    std::vector<std::string> files;
};

enum class UsageFault {
    UnknownOption,
    NeedsValue,
    TakesNoValue,
    BadFormat,
    BadYears,
    BadPayments,
    BadDate,
    BadPlace,
    NotTogether,
    NoFile,
    OneFileOnly,
};

/// Why a command line cannot be used.
struct UsageError {
    UsageFault fault = UsageFault::NoFile;
    std::string subject; ///< the option, or the value that was given
    std::string other;   ///< for NotTogether: the second option
};

/// Arguments without the program's name. The last of two equal options counts; "--" ends the
/// options; help and version count before all others. Raises nothing.
std::variant<Options, UsageError> ParseOptions(const std::vector<std::string>& arguments);

/// What the options say replaces what the request says.
void Override(ComparisonRequest& request, const Options& options);

} // namespace quend::tool
