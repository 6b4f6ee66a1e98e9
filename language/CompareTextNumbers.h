#pragma once

/// The numbers of the texts of the comparison window, as TextNumbers.h has those of the others; a
/// separate file, because all other sources do without them.
namespace quend::language::TextNumber {

// Names of loans.
inline constexpr int CompareCurrentLoan = 800;
inline constexpr int CompareOffer = 801;    ///< %1: the place of an offer without a lender
inline constexpr int CompareNamesake = 802; ///< %1: the lender, %2: the place of the offer

// Durations and stretches of months; the number of months of each is a duration.
inline constexpr int CompareMonth = 810;
inline constexpr int CompareMonths = 811; ///< %1: how many, not used for one
inline constexpr int CompareYear = 812;
inline constexpr int CompareYears = 813;          ///< %1: how many, not used for one
inline constexpr int CompareYearsAndMonths = 814; ///< %1: the years, %2: the months
inline constexpr int CompareFromTheStart = 815;
inline constexpr int CompareFromOn = 816;
inline constexpr int CompareFromTo = 817;
inline constexpr int CompareUpTo = 818;
inline constexpr int CompareOnlyAt = 819;
inline constexpr int CompareNever = 820;
inline constexpr int CompareNextStretch = 821; ///< %1: one or more stretches, %2: another

// Printing and saving what other windows than the main one show.
inline constexpr int PrintingDocument = 950; ///< %1: the title of the document
inline constexpr int PageTooSmall = 951;
inline constexpr int StillPrinting = 952;
inline constexpr int FileNoFolder = 953; ///< %1: the path, as of all that follow
inline constexpr int FileNotAllowed = 954;
inline constexpr int FileIsNone = 955;
inline constexpr int FileDiskFull = 956;
inline constexpr int FileNotSaved = 957; ///< the system's reason follows

} // namespace quend::language::TextNumber
