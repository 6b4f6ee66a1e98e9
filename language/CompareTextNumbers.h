#pragma once

/// The numbers of the texts of the comparison window, as TextNumbers.h has those of the others; a
/// separate file, because all other sources do without them.
namespace quend::language::TextNumber {

// Names of loans.
inline constexpr int CompareCurrentLoan = 800;
inline constexpr int CompareOffer = 801;    ///< %1: the place of an offer without a lender
inline constexpr int CompareNamesake = 802; ///< %1: the lender, %2: the place of the offer

} // namespace quend::language::TextNumber
