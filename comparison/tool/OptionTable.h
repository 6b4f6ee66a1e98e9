#pragma once

#include "CommandTextNumbers.h"
#include "ToolNames.h"

#include <array>
#include <string_view>

namespace quend::tool {

enum class OptionId { Format, Years, Payments, Today, Schedule, PaymentBy, Lines, Help, Version };

/// An option of the command line.
struct OptionRow {
    OptionId id;
    std::string_view name;
    std::string_view shortName; ///< may be empty
    std::string_view value;     ///< how the help shows it, with %1 for its word; empty: none
    int word;                   ///< number of the text for %1, or 0
    int about;                  ///< number of its description
};

// clang-format off
inline constexpr std::array<OptionRow, 9> OptionTable{{
    // id                   name            short   value                     word                     about
    { OptionId::Format,    "--format",     "",     "text|csv|json",          0,                       TextNumber::OptionFormat },
    { OptionId::Years,     "--years",      "",     "N",                      0,                       TextNumber::OptionYears },
    { OptionId::Payments,  "--payments",   "",     "intended|computed|%1",   TextNumber::ValueAmount, TextNumber::OptionPayments },
    { OptionId::Today,     "--today",      "",     "%1",                     TextNumber::ValueDate,   TextNumber::OptionToday },
    { OptionId::Schedule,  "--schedule",   "",     "N|current",              0,                       TextNumber::OptionSchedule },
    { OptionId::PaymentBy, "--payment-by", "",     "%1",                     TextNumber::ValueDate,   TextNumber::OptionPaymentBy },
    { OptionId::Lines,     "--lines",      "",     "",                       0,                       TextNumber::OptionLines },
    { OptionId::Help,      "--help",       "-h",   "",                       0,                       TextNumber::OptionHelp },
    { OptionId::Version,   "--version",    "-v",   "",                       0,                       TextNumber::OptionVersion },
}};
// clang-format on

} // namespace quend::tool
