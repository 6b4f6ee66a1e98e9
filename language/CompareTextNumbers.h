#pragma once

/// The numbers of the texts of the comparison window, as TextNumbers.h has those of the others; a
/// separate file, because all other sources do without them.
namespace quend::language::TextNumber {

// Names of loans.
inline constexpr int CompareCurrentLoan = 800;
inline constexpr int CompareOffer = 801;    ///< %1: the place of an offer without a lender
inline constexpr int CompareNamesake = 802; ///< %1: the lender, %2: the place of the offer

// What the comparison says in words.
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
inline constexpr int CompareOnlyOffer = 822;   ///< %1: kept, %2: offer, %3: cost
inline constexpr int CompareLeast = 823;       ///< as above, %4: how much less than %5
inline constexpr int CompareLeastTie = 824;    ///< as above, %4: the other offer

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
// The answer. A kept time is a duration; amounts are costs until then, or how much less or more.
inline constexpr int CompareOnlyOffer = 822;  ///< %1: kept, %2: offer, %3: cost
inline constexpr int CompareLeast = 823;      ///< as above, %4: how much less than %5
inline constexpr int CompareLeastTie = 824;   ///< as above, %4: the other offer
inline constexpr int CompareLeastOfAll = 825; ///< as Least, %6: how much less than the current loan
inline constexpr int CompareCurrentAsMuch = 826; ///< follows one of those above
inline constexpr int CompareCurrentMore = 827;   ///< follows one of those above; %1: how much more
inline constexpr int CompareCurrentLeast = 828;  ///< %1: kept, %2: cost, %3: how much less than %4
inline constexpr int CompareCurrentLess = 829;   ///< the same where there is one offer
inline constexpr int CompareOffersLeast = 830;   ///< %1: offer, %2: cost, %3: how much less than %4
inline constexpr int CompareOffersTie = 831;     ///< %1: offer, %2: cost, %3: the other offer
inline constexpr int CompareOfferCosts = 832;    ///< %1: offer, %2: cost
inline constexpr int CompareCurrentAlone = 833;  ///< %1: kept, %2: cost
inline constexpr int CompareEnterAmount = 834;
inline constexpr int CompareEnterOffers = 835;
inline constexpr int CompareNoneComplete = 836;
inline constexpr int CompareCheapestUpTo = 837;
inline constexpr int CompareCheapestBetween = 838;
inline constexpr int CompareCheapestFromOn = 839;
inline constexpr int CompareCheapestAt = 840;
inline constexpr int CompareHardlyMore = 841;        ///< %1: offer
inline constexpr int CompareNoMoreThanCurrent = 842; ///< %1: offer, %2: the stretches
inline constexpr int CompareAlwaysMore = 843;        ///< %1: offer
inline constexpr int CompareAlwaysLess = 844;        ///< %1: offer
inline constexpr int CompareBorrowMore = 845;        ///< %1: how much more
inline constexpr int CompareBorrowLess = 846;        ///< %1: how much less
inline constexpr int CompareAccruesFrom = 847;       ///< %1: the day, %2: that of the next payment
inline constexpr int CompareNextPaymentPassed = 848; ///< %1: the day
inline constexpr int ComparePaysMore = 849;          ///< %1: offer, %2: amount
inline constexpr int CompareNoAmount = 850;
inline constexpr int CompareNoRate = 851; ///< %2: a rate of zero
inline constexpr int CompareNoFrequency = 852;
inline constexpr int CompareNoTerm = 853;
inline constexpr int CompareNoPayment = 854;
inline constexpr int CompareTooLarge = 855;
inline constexpr int CompareNeverEnds = 856;
inline constexpr int CompareNeverEndsEnough = 857;    ///< %2: payment
inline constexpr int CompareNeverEndsEnoughFor = 858; ///< %2: payment, %3: payment by %4
inline constexpr int CompareNoBalance = 859;
inline constexpr int CompareNoActualPayment = 860;
inline constexpr int CompareNoActualFrequency = 861;
inline constexpr int CompareEnough = 862;    ///< %1: payment
inline constexpr int CompareEnoughFor = 863; ///< %1: payment, %2: payment by %3

// The chart.
inline constexpr int ChartCostSoFar = 870;
inline constexpr int ChartBalance = 871;
inline constexpr int ChartMonthsAxis = 872;
inline constexpr int ChartYearsAxis = 873;
inline constexpr int ChartHorizonOfOne = 874;
inline constexpr int ChartHorizon = 875; ///< %1: the years
inline constexpr int ChartToday = 876;
inline constexpr int ChartMonth = 877; ///< %1: the month after today
inline constexpr int ChartYear = 878;  ///< %1: the year after today
inline constexpr int ChartCost = 879;
inline constexpr int ChartOwed = 880;
inline constexpr int ChartCurrentCost = 881;
inline constexpr int ChartCurrentOwed = 882;
inline constexpr int ChartCostToday = 883;
inline constexpr int ChartOwedToday = 884;
inline constexpr int ChartCurrentCostToday = 885;
inline constexpr int ChartCurrentOwedToday = 886;
inline constexpr int ChartWithoutLines = 887;
inline constexpr int ChartKeys = 888; ///< for screen readers, until something is read

// The tables.
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
inline constexpr int HeadNumber = 932;
inline constexpr int HeadYear = 933;
inline constexpr int HeadDate = 934;
inline constexpr int HeadInterest = 935;
inline constexpr int HeadPrincipal = 936;
inline constexpr int HeadEscrow = 937;
inline constexpr int HeadBalance = 938;
inline constexpr int HeadInterestSoFar = 939;
inline constexpr int MarkedBest = 940; ///< %1: the value
inline constexpr int SpokenBest = 941; ///< %1: the value
inline constexpr int SortByColumn = 942;
inline constexpr int MoveColumnLeft = 943;
inline constexpr int MoveColumnRight = 944;
inline constexpr int UsualColumns = 945;
inline constexpr int DiskFull = 946;       ///< %1: the file
inline constexpr int MayNotWrite = 947;    ///< %1: the file
inline constexpr int FolderMissing = 948;  ///< %1: the file
inline constexpr int FileNotWritten = 949; ///< %1: the file, %2: the reason in the system's words

// Printing and saving.
inline constexpr int PrintingDocument = 950; ///< %1: the title of the document
inline constexpr int PageTooSmall = 951;
inline constexpr int StillPrinting = 952;
inline constexpr int FileNoFolder = 953; ///< %1: the path, as of all that follow
inline constexpr int FileNotAllowed = 954;
inline constexpr int FileIsNone = 955;
inline constexpr int FileDiskFull = 956;
inline constexpr int FileNotSaved = 957; ///< the system's reason follows

// How a figure came about.
inline constexpr int CompareOfferTerms = 1000; ///< %2: amount, %3: rate, %4: term, %5: payments
inline constexpr int CompareCurrentTerms = 1001;
inline constexpr int CompareMonthlyOfOffer = 1002;
inline constexpr int CompareMonthlyOfCurrent = 1003;
inline constexpr int CompareRequires = 1004; ///< %4: the sum
inline constexpr int CompareRequiresNoEscrow = 1005;
inline constexpr int CompareIntended = 1006;
inline constexpr int CompareRaisedTo = 1007;
inline constexpr int CompareSameForOffer = 1008; ///< %6: with escrow %5
inline constexpr int CompareActualOfCurrent = 1009;
inline constexpr int CompareSameForCurrent = 1010; ///< as SameForOffer without %1
inline constexpr int CompareUpfrontPoints = 1011;
inline constexpr int CompareUpfrontFinanced = 1012;
inline constexpr int CompareUpfrontCosts = 1013;
inline constexpr int CompareCostsEntered = 1014;
inline constexpr int CompareApr = 1015;      ///< %2: received, %3 times %4, %5: the last, %6: rate
inline constexpr int CompareAprOfTwo = 1016; ///< as above without %3
inline constexpr int CompareAprOfOne = 1017;
inline constexpr int CompareAprNothing = 1018;
inline constexpr int CompareAprLess = 1019;
inline constexpr int CompareAprTooHigh = 1020;
inline constexpr int CompareAprEndless = 1021;
inline constexpr int CompareEffective = 1022;
inline constexpr int CompareEffectiveNone = 1023;
inline constexpr int CompareCostOfOffer = 1024; ///< %2: kept, %3: cost
inline constexpr int CompareCostOfCurrent = 1025;
inline constexpr int CompareBalanceOfOffer = 1026; ///< %2: kept
inline constexpr int CompareBalanceOfOfferZero = 1027;
inline constexpr int CompareBalanceOfCurrent = 1028;
inline constexpr int CompareBalanceOfCurrentZero = 1029;
inline constexpr int CompareTotalOfOffer = 1030;
inline constexpr int CompareTotalOfCurrent = 1031;
inline constexpr int ComparePayoffOfOffer = 1032; ///< %3 payments from %4 on, %6: the last
inline constexpr int ComparePayoffOfOfferAtOnce = 1033;
inline constexpr int ComparePayoffOfCurrent = 1034; ///< as PayoffOfOffer without %1
inline constexpr int ComparePayoffOfCurrentAtOnce = 1035;
inline constexpr int CompareInterestSaved = 1036; ///< %4: interest, %5: with the required payment
inline constexpr int ComparePaymentsSaved = 1037; ///< %4: payments, %5: with the required one
inline constexpr int CompareNothingSaved = 1038;
inline constexpr int CompareSavedNone = 1039;
inline constexpr int CompareCheaperFrom = 1040;  ///< %2: points and costs, %3: the stretches
inline constexpr int CompareCheaperNever = 1041; ///< as above, %3: kept, %4: more
inline constexpr int CompareCheaperNone = 1042;
inline constexpr int CompareRateToMatch = 1043;  ///< %4: kept, %5: the cheapest offer, %6: its cost
inline constexpr int CompareRateCheapest = 1044; ///< %2: kept
inline constexpr int CompareRateTooLow = 1045;   ///< %2: half its rate, %3: kept, %4: cheapest
inline constexpr int CompareEnoughForOffer = 1046;    ///< %2: payment, %3: kept, %4: required
inline constexpr int CompareNotEnoughForOffer = 1047; ///< %2: kept
inline constexpr int CompareEnoughForCurrent = 1048;  ///< %1: payment, %2: kept, %3: actual payment
inline constexpr int CompareNotEnoughForCurrent = 1049; ///< %1: kept, %2: the next payment
inline constexpr int CompareNoFigureOfCurrent = 1050;
inline constexpr int CompareNoCostsEntered = 1051;
inline constexpr int CompareUpfrontNothing = 1052;
inline constexpr int CompareAprEven = 1053; ///< as Apr, without a last payment

// The window, and finding a payment.
inline constexpr int HorizonYear = 1240;
inline constexpr int HorizonYears = 1241;
inline constexpr int CompareTitle = 1242; ///< %1: the name of the worksheet
inline constexpr int CompareTitleUnnamed = 1243;
inline constexpr int CompareLeftOut = 1244; ///< One loan a line follows.
inline constexpr int ScheduleFromToday = 1245;
inline constexpr int ScheduleFromNextPayment = 1246;
inline constexpr int ScheduleOfNone = 1247;
inline constexpr int ScheduleTitle = 1248;    ///< %1: the loan
inline constexpr int PaymentEnds = 1249;      ///< %1: the payment, %2: the loan, %3: a date
inline constexpr int NoPaymentEnds = 1250;    ///< %1: the loan, %2: a date
inline constexpr int AmountAfforded = 1251;   ///< %1: the payment, %2: the offer, %3: the amount
inline constexpr int NoAmountAfforded = 1252; ///< %1: the payment, %2: the offer
inline constexpr int RateNeeded = 1253;       ///< %1: the payment, %2: the offer, %3: the rate
inline constexpr int NoRateNeeded = 1254;     ///< %1: the payment, %2: the offer
inline constexpr int EnterAPayment = 1255;
inline constexpr int EnterADate = 1256;
inline constexpr int NoLoanToAskAbout = 1257;
inline constexpr int ExportSemicolons = 1258;
inline constexpr int ExportCommas = 1259;
inline constexpr int ExportPdf = 1260;
inline constexpr int ExportTitle = 1261;
inline constexpr int CompareSelectFigure = 1263;
inline constexpr int CostOverTimeTitle = 1264;
inline constexpr int BalanceOverTimeTitle = 1265;

} // namespace quend::language::TextNumber
