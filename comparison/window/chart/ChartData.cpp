#include "ChartData.h"

#include "Quantities.h"

#include <algorithm>
#include <cstddef>

namespace quend::compare {

Money ChartLine::By(int month) const {
    return values[std::min(static_cast<std::size_t>(month), values.size() - 1)];
}

int ChartData::Horizon() const { return years * MonthsPerYear; }

int ChartData::Span() const { return std::max(months, Horizon()); }

ChartData MakeChartData(const ComparedWorksheet& worksheet, const std::vector<LoanOverTime>& loans,
                        ChartShows shows) {
    ChartData data{.shows = shows,
                   .lines = {},
                   .months = worksheet.result.months,
                   .years = worksheet.input.years};
    for (const int place : PlacesThatTakePart(worksheet)) {
        const auto loan = std::ranges::find(loans, place, &LoanOverTime::place);
        if (loan != loans.end()) {
            data.lines.push_back({place, NameOfLoan(worksheet, place),
                                  shows == ChartShows::Cost ? loan->cost : loan->balance});
        }
    }
    return data;
}

std::pair<Money, Money> RangeOf(const ChartData& data) {
    std::pair<Money, Money> range;
    for (const ChartLine& line : data.lines) {
        const auto [least, greatest] = std::ranges::minmax(line.values);
        range.first = std::min(range.first, least);
        range.second = std::max(range.second, greatest);
    }
    return range;
}

} // namespace quend::compare
