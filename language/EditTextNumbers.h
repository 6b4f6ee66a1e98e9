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

// The print preview.
inline constexpr int PreviewOf = 1440; ///< %1: the worksheet
inline constexpr int PreviewPage = 1441;
inline constexpr int PreviewZoom = 1442;
inline constexpr int UnnamedWorksheet = 1443;

} // namespace quend::language::TextNumber
