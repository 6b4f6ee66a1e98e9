#pragma once

#include "HelpBook.h"

#include <QtPlugin>

/// The part of the program that reads help files, a library of its own.
class HelpPart {
public:
    HelpPart() = default;
    HelpPart(const HelpPart&) = delete;
    HelpPart& operator=(const HelpPart&) = delete;
    HelpPart(HelpPart&&) = delete;
    HelpPart& operator=(HelpPart&&) = delete;
    virtual ~HelpPart() = default;

    /// Throws Failure as a BookOpener does.
    virtual std::shared_ptr<HelpBook> Open(const QString& file) const = 0;
};

// A macro, because the meta-object compiler reads it.
#define HelpPart_iid "quend.loan.HelpPart/1"
Q_DECLARE_INTERFACE(HelpPart, HelpPart_iid)

/// A BookOpener that loads the part when the first book is opened. Throws ComponentFailure where
/// the part is missing.
std::shared_ptr<HelpBook> OpenByPart(const QString& file);
