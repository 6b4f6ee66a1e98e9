#pragma once

#include "CompareNames.h"
#include "ComparedWorksheet.h"
#include "LoanSchedule.h"
#include "Money.h"
#include "OverTime.h"

#include <QString>

#include <utility>
#include <vector>

namespace quend::compare {

enum class ChartShows { Cost, Balance };

struct ChartLine {
    int place = CurrentLoanPlace; ///< CurrentLoanPlace, or that of the offer
    QString name;
    std::vector<Money> values; ///< by month 0, 1, 2, …; at least one

    bool IsCurrent() const { return place == CurrentLoanPlace; }
    /// Of a month from 0; after the last value it stays.
    Money By(int month) const;
};

/// What the chart and its table show. Does not compute: the values are those of OverTime.
struct ChartData {
    ChartShows shows = ChartShows::Cost;
    std::vector<ChartLine>
        lines;      ///< in the order of the main window's rows, the loan held today last
    int months = 1; ///< of the longest loan, from 1
    int years = 5;  ///< the horizon

    int Horizon() const; ///< in months
    /// The last month shown: that of the longest loan or the horizon, the later of both.
    int Span() const;
};

/// Copies the shown values of every loan that takes part.
ChartData MakeChartData(const ComparedWorksheet& worksheet, const std::vector<LoanOverTime>& loans,
                        ChartShows shows);

/// The least and the greatest value; zero is always among them.
std::pair<Money, Money> RangeOf(const ChartData& data);

} // namespace quend::compare
