#pragma once

#include "PrintedPage.h"

#include <QSizeF>

class QWidget;

/// What the world outside does about paper: its dialogs, its pages, its queue. Nothing here throws
/// or tells the user anything: what cannot be printed is not printed.
class PrinterDoor {
public:
    virtual ~PrinterDoor() = default;
    /// Asks which printer is to print, and how. False when the user gave up.
    virtual bool AskHowToPrint(QWidget& parent) = 0;
    /// The same without anything to be printed afterwards.
    virtual void AskSetUp(QWidget& parent) = 0;
    /// The printable part of a page, in twips.
    virtual QSizeF PageSpace() = 0;
    /// Hands a finished document over, whole. Pages reach the printer here and nowhere else.
    virtual void Print(const PrintedPages& pages) = 0;
};
