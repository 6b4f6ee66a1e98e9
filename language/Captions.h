#pragma once

#include <QString>

class QObject;

namespace quend::language {

/// The unit in which terms are typed.
enum class TermUnit { Months, Years };

/// The dynamic properties of a Designer form that hold the numbers of the texts its controls show,
/// and two flags that hide one of them.
namespace TextProperty {

// clang-format off
inline constexpr const char* Caption        = "captionText";        ///< title, text or window title, the first it has
inline constexpr const char* CaptionInYears = "captionTextInYears"; ///< instead of it where terms are typed in years
inline constexpr const char* ToolTip        = "toolTipText";        ///< tooltip
inline constexpr const char* ToolTipAway    = "toolTipAway";        ///< true while there is no tooltip, in any language
inline constexpr const char* Name           = "accessibleText";     ///< name for screen readers
inline constexpr const char* Hint           = "hintText";           ///< text in an empty field
inline constexpr const char* Active         = "activeText";         ///< description for screen readers while active
inline constexpr const char* ActiveAway     = "activeTextAway";     ///< true while the control is not active
// clang-format on

} // namespace TextProperty

/// Applies the texts of the current language to a window and everything in it (controls, menus,
/// actions), as its text properties say.
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

/// A caption as it is shown: "&Loan" reads "Loan", "P && I" reads "P & I".
QString WithoutAccessKey(const QString& caption);

} // namespace quend::language
