#pragma once

/// The numbers of the texts of the command lines and of files of worksheets, as TextNumbers.h has
/// those of the others; a separate file, because all other sources do without them.
namespace quend::language::TextNumber {

// The help of quend-compare.
inline constexpr int ToolUsage = 700;
inline constexpr int ToolAbout = 701;
inline constexpr int OptionFormat = 702;
inline constexpr int OptionYears = 703;
inline constexpr int OptionPayments = 704;
inline constexpr int OptionToday = 705;
inline constexpr int OptionSchedule = 706;
inline constexpr int OptionPaymentBy = 707;
inline constexpr int OptionLines = 708;
inline constexpr int OptionHelp = 709;
inline constexpr int OptionVersion = 710;
inline constexpr int ToolNotes = 711;
inline constexpr int ValueDate = 712;
inline constexpr int ValueAmount = 713;

// A command line that cannot be used. %1: the option or the value that was given.
inline constexpr int UnknownOption = 715;
inline constexpr int OptionNeedsValue = 716;
inline constexpr int OptionTakesNoValue = 717;
inline constexpr int BadFormat = 718;
inline constexpr int BadYears = 719;
inline constexpr int BadPayments = 720;
inline constexpr int BadDate = 721;
inline constexpr int BadPlace = 722;
inline constexpr int NotTogether = 723; ///< %1, %2: two options
inline constexpr int NoFileNamed = 724;
inline constexpr int OneFileOnly = 725;
inline constexpr int SeeHelp = 726; ///< %1: the program's command

inline constexpr int FileMissing = 727;
inline constexpr int FileUnreadable = 728;
inline constexpr int StandardInput = 729; ///< in place of a file's name
inline constexpr int OutputFailed = 730;

// quend-loan.
inline constexpr int LoanUsage = 731;
inline constexpr int LoanAbout = 732;
inline constexpr int LoanQtOptions = 733;
inline constexpr int LoanTakesOneFile = 734; ///< %1: the second one

inline constexpr int LeastPayment = 735;
inline constexpr int NothingOwedOn = 736; ///< %1: the day
inline constexpr int NoLeastPayment = 737;

// Why a file of worksheets is refused. %1: the line, %2: the member or the limit.
inline constexpr int FileNotJson = 740;
inline constexpr int FileTooLarge = 741;
inline constexpr int FileTooDeep = 742;
inline constexpr int FileDuplicate = 743;
inline constexpr int FileWrongType = 744;
inline constexpr int FileNoWorksheet = 745;
inline constexpr int FileNotAnAmount = 746;
inline constexpr int FileNotANumber = 747;
inline constexpr int FileOutOfRange = 748;
inline constexpr int FileNoSuchDate = 749;
inline constexpr int FileTooManyOffers = 750;
inline constexpr int FileNewerVersion = 751;

// Why a loan takes no part in a comparison. %1: the offer.
inline constexpr int LeftOutNoAmount = 752;
inline constexpr int LeftOutNoRate = 753;
inline constexpr int LeftOutNoFrequency = 754;
inline constexpr int LeftOutNoTerm = 755;
inline constexpr int LeftOutNoPayment = 756;
inline constexpr int LeftOutNeverEnds = 757;
inline constexpr int CurrentNoBalance = 758;
inline constexpr int CurrentNoPayment = 759;
inline constexpr int CurrentNoFrequency = 760;
inline constexpr int CurrentNeverEnds = 761;
inline constexpr int NoCurrentLoan = 762;
inline constexpr int NoSuchOffer = 763; ///< %1: its number

// The table of quend-compare.
inline constexpr int ColumnLender = 764;
inline constexpr int ColumnPayment = 765;
inline constexpr int ColumnUpfront = 766;
inline constexpr int ColumnCosts = 767;
inline constexpr int ColumnApr = 768;
inline constexpr int ColumnTotalCost = 769;
inline constexpr int ColumnCostInAYear = 770;
inline constexpr int ColumnCostInYears = 771; ///< %1: years
inline constexpr int ColumnBalance = 772;
inline constexpr int ColumnPayoff = 773;
inline constexpr int BestOfColumn = 774;

inline constexpr int KeptAYear = 775; ///< %1: the horizon
inline constexpr int KeptYears = 776; ///< %1: years, %2: the horizon
inline constexpr int IntendedPayments = 777;
inline constexpr int RequiredPayments = 778;
inline constexpr int MonthlyPayments = 779; ///< %1: the amount a month

inline constexpr int CostsLeast = 780;       ///< %1: the offer, %2: its cost
inline constexpr int LessThanNext = 781;     ///< %1: the difference, %2: the offer
inline constexpr int NextCostsAsMuch = 782;  ///< %1: the offer
inline constexpr int LessThanCurrent = 783;  ///< %1: the difference
inline constexpr int CurrentCostsLess = 784; ///< %1: the difference
inline constexpr int CurrentCostsAsMuch = 785;
inline constexpr int NoOfferCompared = 786;
inline constexpr int WantsMore = 787; ///< %1: the difference
inline constexpr int WantsLess = 788; ///< %1: the difference

// How long an offer costs least. %1: the offer, %2: a time.
inline constexpr int CostsLeastAlways = 789;
inline constexpr int CostsLeastUpTo = 790;
inline constexpr int CostsLeastLonger = 791;

// Times. %1 and %2: the numbers that are not one.
inline constexpr int OneYear = 792;
inline constexpr int Years = 793;
inline constexpr int OneMonth = 794;
inline constexpr int ManyMonths = 795;
inline constexpr int OneYearOneMonth = 796;
inline constexpr int OneYearMonths = 797;
inline constexpr int YearsOneMonth = 798;
inline constexpr int YearsMonths = 799;

} // namespace quend::language::TextNumber
