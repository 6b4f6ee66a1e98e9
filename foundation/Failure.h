#pragma once

#include <stdexcept>
#include <string>
#include <utility>

/// The source of a failure that arose in the program itself.
inline constexpr const char* ProgramSource = "Loan";

/// A failure that a user is told about: its number, where it arose, and what went wrong.
/// The description is a fixed English text, the same in every language.
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

/// A result lies outside its type: an amount, a whole number of months, or a date.
class OverflowFailure : public Failure {
public:
    explicit OverflowFailure(const std::string& source) : Failure(6, source, "Overflow") {}
};

/// A payment that never repays its loan: the balance would grow, or stay, for ever.
class NeverRepaidFailure : public OverflowFailure {
public:
    using OverflowFailure::OverflowFailure;
};

/// A text is no number, amount or date.
class ConversionFailure : public Failure {
public:
    explicit ConversionFailure(const std::string& source) : Failure(13, source, "Type mismatch") {}
};

/// A component that was asked for by name cannot be made.
class ComponentFailure : public Failure {
public:
    explicit ComponentFailure(const std::string& source)
        : Failure(429, source, "Unable to create the component") {}
};
