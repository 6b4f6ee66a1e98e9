#pragma once

#include "QuendNames.h"
#include "RecordingDisplay.h"
#include "Worksheet.h"

/// A worksheet with this many rows and no window, on 21 November 2026, terms in years.
struct Sheet {
    explicit Sheet(const QLocale& locale = QLocale(QLocale::English, QLocale::UnitedStates),
                   int rows = 6)
        : worksheet(display, FieldFormats(DisplayFormats(locale), false),
                    [] { return Date::FromCalendar(2026, 11, 21); }) {
        worksheet.GrowOfferArrays(Row{-1}, Row{rows - 1});
        worksheet.SetCurrentNextPayment(worksheet.Today());
        worksheet.ClearDirty();
    }

    RecordingDisplay display;
    Worksheet worksheet;
};
