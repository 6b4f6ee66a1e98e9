#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace quend {

/// The source of a failure raised by the program itself.
inline constexpr const char* ProgramSource = "Loan";

/// A failure that is reported to the user: its number, its source, and a description. The
/// description is a fixed English text, the same in every language.
class Failure : public std::runtime_error {
public:
    Failure(int number, std::string source, const std::string& description)
        : std::runtime_error(description), m_number(number), m_source(std::move(source)) {}

    int Number() const noexcept { return m_number; }
    const std::string& Source() const noexcept { return m_source; }
    std::string Description() const { return what(); }

private:
    int m_number;
    std::string m_source;
};

/// A result is outside the range of its type: an amount, a whole number of months, or a date.
class OverflowFailure : public Failure {
public:
    explicit OverflowFailure(const std::string& source) : Failure(6, source, "Overflow") {}
};

/// A payment that never repays its loan: the balance would grow or stay the same forever.
class NeverRepaidFailure : public OverflowFailure {
public:
    using OverflowFailure::OverflowFailure;
};

/// A text is not a number, amount or date.
class ConversionFailure : public Failure {
public:
    explicit ConversionFailure(const std::string& source) : Failure(13, source, "Type mismatch") {}
};

/// A component requested by name cannot be created.
class ComponentFailure : public Failure {
public:
    explicit ComponentFailure(const std::string& source)
        : Failure(429, source, "Unable to create the component") {}
};

} // namespace quend
