#pragma once

class QObject;

/// What terms are typed in.
enum class TermUnit { Months, Years };

/// Gives a window and everything in it (controls, menus, actions) the texts of the language in use.
/// Which texts, the Designer form says by dynamic properties, all of them text numbers:
///
///     captionText         the caption: title, text or window title, the first the object has
///     captionTextInYears  instead of captionText where terms are typed in years
///     toolTipText         the tooltip
///     accessibleText      the name for screen readers
///     hintText            the text in an empty field
///     activeText          what screen readers hear of a control that is active, instead of the
///     tooltip toolTipAway         true while the control shows no tooltip, whatever the language
///     activeTextAway      true while the control is not active
///
/// A list goes by its name for screen readers and, because the toolkit tells them its value instead
/// as soon as it has one, by the same words as description.
///
/// Where the language has no text of a number, the form's own text stands, also after a switch from
/// a language that had one; where the form has none either, and for captions in years, English.
///
/// `ordinal` above 0 stands for "%1" in names for screen readers, and is kept with `window`: a
/// later call for a window around it finds it again.
void ApplyTexts(QObject& window, TermUnit unit, int ordinal = 0);
