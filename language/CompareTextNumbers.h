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

// Headings of the costs, and what they mean; in the order of Figure.
inline constexpr int HeadLender = 900;
inline constexpr int HeadMonthlyEquivalent = 901;
inline constexpr int HeadPayment = 902;
inline constexpr int HeadUpfront = 903;
inline constexpr int HeadCosts = 904;
inline constexpr int HeadApr = 905;
inline constexpr int HeadEffectiveRate = 906;
inline constexpr int HeadCostByYears = 907; ///< %1: how many years, not used for one
inline constexpr int HeadBalanceAtHorizon = 908;
inline constexpr int HeadTotalCost = 909;
inline constexpr int HeadPayoffDate = 910;
inline constexpr int HeadInterestSaved = 911;
inline constexpr int HeadPaymentsSaved = 912;
inline constexpr int HeadCheaper = 913;
inline constexpr int HeadRateToMatch = 914;
inline constexpr int HeadPaymentForHorizon = 915;
inline constexpr int HeadCostByYear = 916;
inline constexpr int ExplainMonthlyEquivalent = 917;
inline constexpr int ExplainPaymentCompared = 918;
inline constexpr int ExplainUpfront = 919;
inline constexpr int ExplainCosts = 920;
inline constexpr int ExplainApr = 921;
inline constexpr int ExplainEffectiveRate = 922;
inline constexpr int ExplainCostByHorizon = 923;
inline constexpr int ExplainBalanceAtHorizon = 924;
inline constexpr int ExplainTotalCost = 925;
inline constexpr int ExplainPayoffDate = 926;
inline constexpr int ExplainInterestSaved = 927;
inline constexpr int ExplainPaymentsSaved = 928;
inline constexpr int ExplainCheaper = 929;
inline constexpr int ExplainRateToMatch = 930;
inline constexpr int ExplainPaymentForHorizon = 931;

// The columns of a schedule; its payment has the heading of the costs.
inline constexpr int HeadNumber = 932;
inline constexpr int HeadYear = 933;
inline constexpr int HeadDate = 934;
inline constexpr int HeadInterest = 935;
inline constexpr int HeadPrincipal = 936;
inline constexpr int HeadEscrow = 937;
inline constexpr int HeadBalance = 938;
inline constexpr int HeadInterestSoFar = 939;

// The best of a column, as shown and as screen readers say it.
inline constexpr int MarkedBest = 940; ///< %1: the value
inline constexpr int SpokenBest = 941; ///< %1: the value

// The menu of the columns, below a list of them.
inline constexpr int SortByColumn = 942;
inline constexpr int MoveColumnLeft = 943;
inline constexpr int MoveColumnRight = 944;
inline constexpr int UsualColumns = 945;

// Why a file was not written.
inline constexpr int DiskFull = 946;       ///< %1: the file
inline constexpr int MayNotWrite = 947;    ///< %1: the file
inline constexpr int FolderMissing = 948;  ///< %1: the file
inline constexpr int FileNotWritten = 949; ///< %1: the file, %2: the reason in the system's words

} // namespace quend::language::TextNumber
