#pragma once

#include "EnterValues.h"
#include "Printing.h"
#include "QuendNames.h"
#include "RecordingDisplay.h"
#include "Worksheet.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

inline Money Units(double units) { return Money::FromDouble(units); }
inline Money LargestAmount() { return Money::FromTenThousandths(INT64_MAX); }

/// The results that one recalculation of an offer shows, in its order.
std::vector<Field> OfferResults(Row row);

/// Joins and sorts lists of fields, to compare what was shown in any order.
std::vector<Field> Sorted(std::initializer_list<std::vector<Field>> lists);

/// A worksheet in English, dollars and months on 10 March 2026, with a recording display.
class WorksheetTest : public testing::Test {
protected:
    WorksheetTest();

    /// 100,000.00 at 6 % for 360 months, monthly, in this many rows: 599.55 a month.
    void EnterOffers(int count);
    /// The current loan: 120,000.00 at 6.5 % for 360 months, of which 10,000.00 is left and repaid
    /// by 1,000.00 a month from 1 March 2026 on.
    void EnterCurrentLoan();
    /// Resets what entering has changed: Dirty, the counts and the schedules run.
    void StartCounting();

    void Store(Field field, const QString& text) { EnterText(m_worksheet, field, text); }
    QString TextOf(Field field) const { return m_display.TextOf(field); }
    std::vector<QString> TextsOf(const std::vector<Field>& fields) const;
    /// The texts of an offer's results, from the payment to the interest.
    std::vector<QString> ResultTexts(Row row) const { return TextsOf(OfferResults(row)); }

    RecordingDisplay m_display;
    int m_offerSchedules = 0; ///< each schedule of an offer asks for today's date once
    Worksheet m_worksheet;
};
