#pragma once

#include "Date.h"
#include "ToolNames.h"

#include <QLocale>
#include <QString>

#include <functional>
#include <istream>
#include <ostream>

namespace quend::tool {

/// What the program gets from outside. The streams and functions must outlive its run.
struct World {
    std::istream* in = nullptr;
    std::ostream* out = nullptr;
    std::ostream* err = nullptr;
    std::function<Date()> today;
    std::function<QLocale()> locale;
    /// Called before a text of the language is used, perhaps several times.
    std::function<void()> loadLanguage;
};

/// The exit status.
enum class Status { Well = 0, BadInput = 1, BadUsage = 2 };

/// Writes a sentence to the error stream, after the program's name and without what would control
/// the terminal.
void Complain(const World& world, const QString& sentence);

/// Writes and flushes. False, after a complaint, where that failed; without one where nobody reads
/// any more.
bool Put(const World& world, const QByteArray& bytes);

} // namespace quend::tool
