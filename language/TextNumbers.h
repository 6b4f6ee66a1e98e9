#pragma once

/// The numbers of the texts that code uses, in ascending order. A number is written only here and
/// in the tables of the languages; those that only forms use are not listed.
namespace quend::language::TextNumber {

inline constexpr int PaymentRaised = 3;
inline constexpr int LoanTypeAuto = 10;
inline constexpr int LoanTypeBusiness = 11;
inline constexpr int Cancel = 15;
inline constexpr int LoanTypeConstruction = 19;
inline constexpr int DeleteTitle = 20;
inline constexpr int LoanTypeDebtConsolidation = 29;
inline constexpr int DeleteQuestion = 31; ///< The loan's name and NameEnd follow it.
inline constexpr int LoanTypeHomeEquity = 39;
inline constexpr int NoNameToDelete = 45;
inline constexpr int NoNameToSave = 46;
inline constexpr int PictureTitle = 49;
inline constexpr int NewLoan = 52;
/// A menu entry; without its first character, the title of the About box.
inline constexpr int About = 64;
inline constexpr int LoanTypeMortgage = 83;
inline constexpr int NumberRefused = 87; ///< A picture such as " nnnn.nn" follows it.
inline constexpr int OffersRefused = 88;
inline constexpr int Ok = 90;
inline constexpr int Printing = 101; ///< The loan's name and "..." follow it.
inline constexpr int NameEnd = 102;  ///< The end of a question, after the loan's name.
/// The title of the question about unsaved changes; also its whole text for a loan without a name.
inline constexpr int SaveTitle = 103;
inline constexpr int SaveQuestion = 104;  ///< The loan's name and NameEnd follow it.
inline constexpr int PictureFilter = 105; ///< %1: the patterns of the supported image formats.
/// Contains "?ID" in place of the query of the web address.
inline constexpr int MailBody = 107;
inline constexpr int MailSubject = 108;
inline constexpr int FrequencyTwiceAMonth = 111;
inline constexpr int FrequencyEveryTwoWeeks = 112;
inline constexpr int FrequencyMonthly = 114;
inline constexpr int FrequencyEveryFourWeeks = 115;
inline constexpr int PictureNotLoaded = 124; ///< A blank and the picture's path follow it.
inline constexpr int Yes = 125;
inline constexpr int No = 126;
inline constexpr int NotSaved = 127; ///< the failure follows it on a separate line
inline constexpr int NameNotPossible = 128;
inline constexpr int LenderTooLong = 129;   ///< %1: the offer's number
inline constexpr int ValuesNotLoaded = 130; ///< the failures follow it, one a line
/// %1: where the damaged file is, %2: OneWholeLoan or WholeLoans
inline constexpr int StoreRepaired = 131;
inline constexpr int StoreNewer = 132;      ///< %1: the file
inline constexpr int SettingsNotRead = 133; ///< the failures follow it, one a line
inline constexpr int NotDeleted = 134;
inline constexpr int StoreUnusable = 135; ///< %1: the file
inline constexpr int WindowTitle = 200;
inline constexpr int NoPicture = 520;
inline constexpr int PictureNotShown = 521;
inline constexpr int CopyValue = 540;
inline constexpr int PasteValue = 541;
/// %1: what was to be pasted. A picture such as " nnnn.nn" follows it.
inline constexpr int ValueRefused = 542;
inline constexpr int PrintSetUpTitle = 561;
/// Not shown: the name of Qt's own translation file in this language. QtTexts overrides Qt's texts
/// with the following ones.
inline constexpr int QtTexts = 562;
inline constexpr int FileName = 563;
inline constexpr int FileType = 564;
inline constexpr int FolderAbove = 565;
inline constexpr int FileList = 566;
inline constexpr int HiddenFiles = 567;
inline constexpr int FileNotFound = 568; ///< %1: the file
inline constexpr int Collate = 569;
inline constexpr int PaperInInches = 570; ///< %1, %2: width and height
inline constexpr int PaperStatement = 571;
inline constexpr int KeyCtrl = 572;
inline constexpr int KeyShift = 573;
inline constexpr int DoubleSided = 574;
inline constexpr int DoubleSidedOff = 575;
inline constexpr int LongSide = 576;
inline constexpr int ShortSide = 577;
inline constexpr int HelpContents = 581;
inline constexpr int HelpIndex = 582;
inline constexpr int HelpSearch = 583;
inline constexpr int HelpNotFound = 589;
inline constexpr int HelpMore = 590;
inline constexpr int Version = 592; ///< A blank and the numbers follow it.
inline constexpr int NoSystemInfo = 593;
inline constexpr int NoSuchNameToDelete = 600;
inline constexpr int NameOfNewLoan = 601;
inline constexpr int NotLoaded = 602; ///< the reason follows it, if known
inline constexpr int StoreDiskFull = 603;
inline constexpr int StoreReadOnly = 604;
inline constexpr int StoreInUse = 605;
inline constexpr int StoreNotAllowed = 606;
inline constexpr int OneWholeLoan = 607;
inline constexpr int WholeLoans = 608;      ///< %1: how many, not used for one
inline constexpr int LoansIncomplete = 609; ///< Follows StoreRepaired; %1: their names
inline constexpr int LoanIncomplete = 610;
/// %1: what was typed, %2: a date as it is written, %3, %4: the first and the last year.
inline constexpr int DateRefused = 620;
inline constexpr int NeverRepaid = 621;    ///< the failure follows it on a separate line
inline constexpr int NumberTooLarge = 622; ///< the failure follows it on a separate line
inline constexpr int LoanNameEdit = 640;
inline constexpr int OffersEdit = 641;
inline constexpr int PictureCutOff = 642;
inline constexpr int NoPrinter = 660;
inline constexpr int NoPrintServer = 661;
inline constexpr int PrinterGone = 662;    ///< %1: the printer's name
inline constexpr int PrinterRejects = 663; ///< %1: the printer's name
inline constexpr int NotPrinted = 664;
inline constexpr int MarginsTooWide = 665;
inline constexpr int PartMissing = 666; ///< %1: the file
inline constexpr int LegalNotice = 682;

} // namespace quend::language::TextNumber
