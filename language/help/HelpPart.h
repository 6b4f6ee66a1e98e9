#pragma once

#include "HelpBook.h"

#include <QtPlugin>

/// The plugin that reads help files.
class HelpPart {
public:
    HelpPart() = default;
    HelpPart(const HelpPart&) = delete;
    HelpPart& operator=(const HelpPart&) = delete;
    HelpPart(HelpPart&&) = delete;
    HelpPart& operator=(HelpPart&&) = delete;
    virtual ~HelpPart() = default;

    /// Throws Failure like a BookOpener.
    virtual std::shared_ptr<HelpBook> Open(const QString& file) const = 0;
};

// A macro, because moc reads it.
#define HelpPart_iid "quend.loan.HelpPart/1"
Q_DECLARE_INTERFACE(HelpPart, HelpPart_iid)

/// A BookOpener that loads the plugin when the first book is opened. Throws ComponentFailure if the
/// plugin is missing.
std::shared_ptr<HelpBook> OpenByPart(const QString& file);
