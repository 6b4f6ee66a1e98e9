#pragma once

#include "HelpCollection.h"

#include <QtPlugin>

namespace quend::help {

/// The plugin that reads help files.
class HelpPlugin {
public:
    virtual ~HelpPlugin() = default;

    /// Throws Failure like a HelpOpener.
    virtual std::shared_ptr<HelpCollection> Open(const QString& file) const = 0;
};

/// A HelpOpener that loads the plugin when the first collection is opened. Throws ComponentFailure
/// if the plugin is missing.
std::shared_ptr<HelpCollection> OpenByPlugin(const QString& file);

} // namespace quend::help

// A macro, because moc reads it.
#define HelpPlugin_iid "quend.loan.HelpPlugin/1"
Q_DECLARE_INTERFACE(quend::help::HelpPlugin, HelpPlugin_iid)
