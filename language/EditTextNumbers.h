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

} // namespace quend::language::TextNumber
