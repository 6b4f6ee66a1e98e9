#pragma once

#include <QString>
#include <QtPlugin>

/// What a language component is asked: one text by its number.
/// A component does not know which window shows a text, nor which language is in use.
class LanguageComponent {
public:
    LanguageComponent() = default;
    LanguageComponent(const LanguageComponent&) = delete;
    LanguageComponent& operator=(const LanguageComponent&) = delete;
    LanguageComponent(LanguageComponent&&) = delete;
    LanguageComponent& operator=(LanguageComponent&&) = delete;
    virtual ~LanguageComponent() = default;

    /// The text of this number, with "&" before its access key; a null QString when the component
    /// does not know the number. Never throws.
    virtual QString Text(int id) const = 0;
};

// A macro, because the meta-object compiler reads it. A changed interface takes a new number:
// components built for another one are then not loaded.
#define LanguageComponent_iid "quend.loan.LanguageComponent/1"
Q_DECLARE_INTERFACE(LanguageComponent, LanguageComponent_iid)
