#pragma once

class QObject;

namespace quend::language {

/// The unit in which terms are typed.
enum class TermUnit { Months, Years };

// clang-format off
/// Applies the texts of the current language to a window and everything in it (controls, menus,
/// actions). Dynamic properties of the Designer form hold the numbers of the texts:
///
///     captionText         caption: title, text or window title, the first it has
///     captionTextInYears  instead of captionText where terms are typed in years
///     toolTipText         tooltip
///     accessibleText      name for screen readers
///     hintText            text in an empty field
///     activeText          screen-reader description while active, instead of the tooltip
///     toolTipAway         true while the control shows no tooltip, in any language
///     activeTextAway      true while the control is not active
///
/// A combo box has its accessible name also as description, because Qt reports its value instead of
/// the name as soon as it has one.
///
/// If the language lacks a text, the form's own text is shown, also after a switch from a language
/// that had it. If the form has none either, and for captions in years, the text is English.
///
/// An `ordinal` above 0 replaces "%1" in accessible names. It is stored in `window`, so that a
/// later call for an enclosing window finds it.
void ApplyTexts(QObject& window, TermUnit unit, int ordinal = 0);
// clang-format on

} // namespace quend::language
