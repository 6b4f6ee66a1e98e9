#include "Options.h"

#include "LoanSchedule.h"
#include "OptionTable.h"
#include "ValueTexts.h"

#include <QByteArrayView>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string_view>

namespace quend::tool {

namespace {

using Error = std::optional<UsageError>;

/// All digits, within the range of int.
std::optional<int> WholeNumber(std::string_view text) {
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [next, fault] = std::from_chars(text.data(), end, number);
    const bool isNumber = fault == std::errc() && next == end && text.front() != '-';
    return isNumber ? std::optional(number) : std::nullopt;
}

Error SetFormat(Options& options, const std::string& value) {
    struct Name {
        std::string_view name;
        Format format;
    };
    constexpr std::array Names{Name{"text", Format::Text}, Name{"csv", Format::Csv},
                               Name{"json", Format::Json}};
    const auto* const found =
        std::ranges::find_if(Names, [&](const Name& known) { return known.name == value; });
    if (found == Names.end()) {
        return UsageError{UsageFault::BadFormat, value, {}};
    }
    options.format = found->format;
    return {};
}

Error SetYears(Options& options, const std::string& value) {
    options.years = WholeNumber(value);
    const bool inRange = options.years && *options.years >= 1 && *options.years <= MostYears;
    return inRange ? Error() : UsageError{UsageFault::BadYears, value, {}};
}

Error SetPayments(Options& options, const std::string& value) {
    if (value == "intended") {
        options.payments = PaymentChoice::Intended;
        return {};
    }
    if (value == "computed") {
        options.payments = PaymentChoice::Required;
        return {};
    }
    const std::optional<Money> amount = AmountFromText(value);
    if (!amount) {
        return UsageError{UsageFault::BadPayments, value, {}};
    }
    options.payments = PaymentChoice::Monthly;
    options.monthlyPayment = *amount;
    return {};
}

template <typename Target>
Error SetDate(Target& target, const std::string& value) {
    const std::optional<Date> date = DateFromText(value);
    if (!date || date->IsNone()) {
        return UsageError{UsageFault::BadDate, value, {}};
    }
    target = *date;
    return {};
}

Error SetPlace(Options& options, const std::string& value) {
    const std::optional<int> place = value == "current" ? CurrentLoanPlace : WholeNumber(value);
    if (!place || (*place == CurrentLoanPlace && value != "current")) {
        return UsageError{UsageFault::BadPlace, value, {}};
    }
    options.place = *place;
    return {};
}

/// Reads the arguments one after the other.
class Parser {
public:
    explicit Parser(const std::vector<std::string>& arguments) : m_arguments(&arguments) {}

    std::variant<Options, UsageError> Parse() {
        bool hasEnded = false;
        while (m_next < m_arguments->size()) {
            const std::string& argument = (*m_arguments)[m_next++];
            if (hasEnded || argument == "-" || !argument.starts_with('-')) {
                m_options.files.push_back(argument);
            } else if (argument == "--") {
                hasEnded = true;
            } else if (Error error = ReadOption(argument)) {
                return *error;
            }
        }
        if (Error error = Check()) {
            return *error;
        }
        return m_options;
    }

private:
    Error ReadOption(const std::string& argument) {
        const std::size_t equals =
            argument.starts_with("--") ? argument.find('=') : std::string::npos;
        const std::string name = argument.substr(0, equals);
        const auto* const row = std::ranges::find_if(OptionTable, [&](const OptionRow& option) {
            return option.name == name || (!option.shortName.empty() && option.shortName == name);
        });
        if (row == OptionTable.end()) {
            return UsageError{UsageFault::UnknownOption, name, {}};
        }
        const std::string known(row->name);
        std::string value;
        if (row->value.empty()) {
            if (equals != std::string::npos) {
                return UsageError{UsageFault::TakesNoValue, known, {}};
            }
        } else if (equals != std::string::npos) {
            value = argument.substr(equals + 1);
        } else if (m_next < m_arguments->size()) {
            value = (*m_arguments)[m_next++];
        } else {
            return UsageError{UsageFault::NeedsValue, known, {}};
        }
        m_given.push_back(row->id);
        return Set(row->id, value);
    }

    Error Set(OptionId option, const std::string& value) {
        switch (option) {
        case OptionId::Format:
            return SetFormat(m_options, value);
        case OptionId::Years:
            return SetYears(m_options, value);
        case OptionId::Payments:
            return SetPayments(m_options, value);
        case OptionId::Today:
            return SetDate(m_options.today, value);
        case OptionId::Schedule:
            return SetPlace(m_options, value);
        case OptionId::PaymentBy:
            return SetDate(m_options.paymentBy, value);
        case OptionId::Lines:
        case OptionId::Help:
        case OptionId::Version:
            break;
        }
        return {};
    }

    bool Has(OptionId option) const { return std::ranges::find(m_given, option) != m_given.end(); }

    /// Which task, and whether the options and files suit it.
    Error Check() {
        struct TaskOption {
            OptionId option;
            Task task;
        };
        constexpr std::array Tasks{TaskOption{OptionId::Help, Task::Help},
                                   TaskOption{OptionId::Version, Task::Version},
                                   TaskOption{OptionId::Schedule, Task::Schedule},
                                   TaskOption{OptionId::PaymentBy, Task::PaymentBy},
                                   TaskOption{OptionId::Lines, Task::Lines}};
        const auto* const task =
            std::ranges::find_if(Tasks, [&](const TaskOption& row) { return Has(row.option); });
        m_options.task = task == Tasks.end() ? Task::Compare : task->task;
        if (m_options.task == Task::Help || m_options.task == Task::Version) {
            return {};
        }
        Error error = CheckTogether();
        return error ? error : CheckFiles();
    }

    Error CheckTogether() const {
        struct Pair {
            OptionId first;
            OptionId second;
            bool isRefused;
        };
        const bool isCsv = m_options.format == Format::Csv;
        const bool isJson = m_options.format == Format::Json;
        const std::array pairs{
            Pair{OptionId::Schedule, OptionId::PaymentBy, true},
            Pair{OptionId::Schedule, OptionId::Lines, true},
            Pair{OptionId::PaymentBy, OptionId::Lines, true},
            Pair{OptionId::Schedule, OptionId::Format, !isCsv},
            Pair{OptionId::Lines, OptionId::Format, !isJson},
        };
        for (const Pair& pair : pairs) {
            if (pair.isRefused && Has(pair.first) && Has(pair.second)) {
                return UsageError{UsageFault::NotTogether, NameOf(pair.first), NameOf(pair.second)};
            }
        }
        return {};
    }

    /// As the user sees it.
    std::string NameOf(OptionId option) const {
        const auto* const row = std::ranges::find_if(
            OptionTable, [option](const OptionRow& known) { return known.id == option; });
        return std::string(row->name);
    }

    Error CheckFiles() const {
        const std::size_t files = m_options.files.size();
        if (m_options.task == Task::Lines || files == 1) {
            return {};
        }
        const UsageFault fault = files == 0 ? UsageFault::NoFile : UsageFault::OneFileOnly;
        return UsageError{fault, {}, {}};
    }

    const std::vector<std::string>* m_arguments;
    std::size_t m_next = 0;
    Options m_options;
    std::vector<OptionId> m_given;
};

} // namespace

std::variant<Options, UsageError> ParseOptions(const std::vector<std::string>& arguments) {
    return Parser(arguments).Parse();
}

void Override(ComparisonRequest& request, const Options& options) {
    if (options.today) {
        request.today = options.today;
    }
    if (options.years) {
        request.years = options.years;
    }
    if (options.payments) {
        request.payments = options.payments;
        request.monthlyPayment = options.monthlyPayment;
    }
}

} // namespace quend::tool
