#pragma once

#include "ControlMap.h"
#include "DragHandlers.h"
#include "DragScroll.h"
#include "FailureReport.h"
#include "FieldBehaviour.h"
#include "FieldClipboard.h"
#include "FieldHandlers.h"
#include "FileDrop.h"
#include "FocusTranslator.h"
#include "HintLine.h"
#include "LanguageMenu.h"
#include "Loan.h"
#include "MessageQueue.h"
#include "OfferColumns.h"
#include "OfferCommands.h"
#include "OfferDragging.h"
#include "OfferRows.h"
#include "PaymentNotice.h"
#include "PayoffAdvice.h"
#include "QtTexts.h"
#include "ResultKeys.h"
#include "RowCommands.h"
#include "TableClipboard.h"
#include "UndoCommands.h"
#include "ValueTransfer.h"
#include "Wallpaper.h"
#include "WholeText.h"
#include "WindowDisplay.h"
#include "WindowSize.h"
#include "Worksheet.h"
#include "WorksheetTitle.h"

namespace quend::window {

/// The objects that do the work of the main window, in the order in which each needs the others.
struct Loan::Parts {
    Parts(Loan& window, const World& world, Settings initial);

    bool loaded = false;
    Settings settings;
    std::function<bool()> mayClose;
    MessageQueue messages;
    FailureReport report;
    ControlMap controls;
    HintLine hint;
    WorksheetTitle title;
    WindowDisplay display;
    Worksheet worksheet;
    OfferColumns columns;
    OfferRows rows;
    WindowSize size;
    PaymentNotice notice;
    FieldBehaviour behaviour;
    FieldHandlers handlers;
    FocusTranslator focus;
    OfferCommands offers;
    ValueTransfer values;
    DragHandlers dragHandlers;
    DragScroll dragScroll;
    OfferDragging dragging;
    FileDrop fileDrop;
    FieldClipboard clipboard;
    QtTexts qtTexts;
    LanguageMenu languages;
    Wallpaper wallpaper;
    ResultKeys resultKeys;
    WholeText wholeText;
    PayoffAdvice payoffAdvice;
    UndoCommands undo;
    RowCommands rowCommands;
    TableClipboard table;
};

} // namespace quend::window
