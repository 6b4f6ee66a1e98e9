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

} // namespace quend::language::TextNumber
