#pragma once

#include <QString>
#include <QtPlugin>

namespace quend::language {

/// The interface of a language component: texts by number. A component does not know which window
/// shows a text or which language is current.
class LanguageComponent {
public:
    virtual ~LanguageComponent() = default;

    /// The text of this number, with "&" before its access key; a null QString if the component
    /// lacks the number. Never throws.
    virtual QString Text(int id) const = 0;
};

} // namespace quend::language

// A macro, because moc reads it. Change the number with the interface, so that components built for
// another version are not loaded.
#define LanguageComponent_iid "quend.loan.LanguageComponent/1"
Q_DECLARE_INTERFACE(quend::language::LanguageComponent, LanguageComponent_iid)
