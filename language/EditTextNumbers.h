#pragma once

/// The numbers of the texts of editing and of files of worksheets, as TextNumbers.h has those of
/// the others; a separate file, because most sources do without them.
namespace quend::language::TextNumber {

// The menus.
inline constexpr int EditMenu = 1300;
inline constexpr int Undo = 1301;
inline constexpr int Redo = 1302;
inline constexpr int UndoStep = 1303; ///< %1: the step
inline constexpr int RedoStep = 1304; ///< %1: the step
inline constexpr int ClearOffer = 1305;
inline constexpr int DuplicateOffer = 1306;
inline constexpr int MoveOfferUp = 1307;
inline constexpr int MoveOfferDown = 1308;
inline constexpr int CopyTable = 1309;
inline constexpr int PasteCells = 1310;
inline constexpr int OpenFile = 1311;
inline constexpr int SaveAsFile = 1312;
inline constexpr int Rename = 1313;
inline constexpr int BringBack = 1314; ///< %1: the worksheet
inline constexpr int PrintPreview = 1315;
inline constexpr int ExportAsPdf = 1316;

// What a step changes, after the words of UndoStep and RedoStep. %1: the number of the offer.
inline constexpr int StepLoanName = 1320;
inline constexpr int StepLoanType = 1321;
inline constexpr int StepLoanAmount = 1322;
inline constexpr int StepLoanTerm = 1323;
inline constexpr int StepTaxes = 1324;
inline constexpr int StepInsurance = 1325;
inline constexpr int StepCurrentAmount = 1326;
inline constexpr int StepCurrentTerm = 1327;
inline constexpr int StepCurrentRate = 1328;
inline constexpr int StepCurrentFrequency = 1329;
inline constexpr int StepCurrentPayment = 1330;
inline constexpr int StepCurrentBalance = 1331;
inline constexpr int StepCurrentActualPayment = 1332;
inline constexpr int StepCurrentActualFrequency = 1333;
inline constexpr int StepNextPayment = 1334;
inline constexpr int StepFinancePoints = 1335;
inline constexpr int StepPoints = 1336;
inline constexpr int StepRate = 1337;
inline constexpr int StepTerm = 1338;
inline constexpr int StepFrequency = 1339;
inline constexpr int StepActualPayment = 1340;
inline constexpr int StepLender = 1341;
inline constexpr int StepCosts = 1342;
inline constexpr int StepClear = 1343;
inline constexpr int StepDuplicate = 1344;
inline constexpr int StepMove = 1345;
inline constexpr int StepPasteCells = 1346;

// Tables and cells.
inline constexpr int CellYes = 1380;
inline constexpr int CellNo = 1381;
inline constexpr int CellFinanced = 1382;
inline constexpr int CellPoints = 1383;
inline constexpr int CellsNotTaken = 1384;
inline constexpr int CellRefused = 1385;      ///< %1: the cell, %2: the field
inline constexpr int CellFailed = 1386;       ///< %1: the cell, %2: the field, %3: why
inline constexpr int CellWithoutField = 1387; ///< %1: the cell
inline constexpr int MoreCells = 1388;        ///< %1: how many

// Files of worksheets. %1: a file, or for ValueNotForFile a member such as offers[2].rate.
inline constexpr int OpenFileTitle = 1410;
inline constexpr int SaveFileTitle = 1411;
inline constexpr int WorksheetFilter = 1412;
inline constexpr int AllFilesFilter = 1413;
inline constexpr int UnnamedWorksheet = 1414;
inline constexpr int ReplaceFile = 1415;
inline constexpr int FileNotOpened = 1416;
inline constexpr int FileIncomplete = 1417;
inline constexpr int NoFileOfThis = 1418;
inline constexpr int ValueNotForFile = 1419;
inline constexpr int SavedAsFile = 1420;

// The print preview.
inline constexpr int PreviewOf = 1440; ///< %1: the worksheet
inline constexpr int PreviewPage = 1441;
inline constexpr int PreviewZoom = 1442;

// The worksheet's name, saving, and the end of the session. %1: the worksheet
inline constexpr int TitleWithName = 1460; ///< %2: the program; [*]: the mark of unsaved changes
inline constexpr int Saved = 1461;
inline constexpr int SavedOver = 1462;
inline constexpr int DeletedAndKept = 1463;
inline constexpr int NotBroughtBack = 1464; ///< the failure follows it on a separate line
inline constexpr int RenameTitle = 1465;
inline constexpr int RenameTo = 1466;
inline constexpr int NothingToRename = 1467;
inline constexpr int NameTaken = 1468;
inline constexpr int NotRenamed = 1469; ///< the failure follows it on a separate line
inline constexpr int UnsavedTitle = 1470;
inline constexpr int OpenUnsaved = 1471;
inline constexpr int OpenUnsavedUnnamed = 1472;
inline constexpr int WithoutName = 1473;
inline constexpr int UnsavedNotKept = 1474;
inline constexpr int BroughtBack = 1475;
inline constexpr int Renamed = 1476;

} // namespace quend::language::TextNumber
