#pragma once

#include "ChartData.h"
#include "ChartLook.h"
#include "DisplayFormats.h"
#include "QuendNames.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdint>

using namespace quend::compare;

inline Money Units(std::int64_t count) { return Money::FromTenThousandths(count * 10'000); }

/// Lines that rise more and more slowly, each a little lower than the one before; the last is that
/// of the loan held today.
struct SampleChart {
    int lines = 6;
    int months = 360;
    QString name = QStringLiteral("Lender %1");
    double spread = 0.04; ///< between one line and the next; 0: all are equal
    double credit = 0;    ///< the costs at closing, in units
    ChartShows shows = ChartShows::Cost;
};

inline ChartData MakeSample(const SampleChart& sample) {
    constexpr double whole = 250'000;
    ChartData data{.shows = sample.shows, .lines = {}, .months = sample.months, .years = 5};
    for (int i = 0; i < sample.lines; ++i) {
        const bool isCurrent = i == sample.lines - 1 && i > 0;
        const double height = whole * (1 - i * sample.spread);
        ChartLine line{isCurrent ? CurrentLoanPlace : i + 1,
                       isCurrent ? QStringLiteral("The loan held today") : sample.name.arg(i + 1),
                       {}};
        for (int month = 0; month <= sample.months; ++month) {
            const double left = 1 - static_cast<double>(month) / sample.months;
            const double share =
                sample.shows == ChartShows::Cost ? 1 - left * left : 1 - std::pow(1 - left, 3);
            line.values.push_back(Money::FromDouble(height * share - sample.credit));
        }
        data.lines.push_back(line);
    }
    return data;
}

inline QPalette LightPalette() {
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    return palette;
}

inline QPalette DarkPaletteOfChart() {
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(25, 25, 25));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return palette;
}

inline QFont SampleFont(double points = 9) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSizeF(points);
    return font;
}

inline DisplayFormats Dollars() { return DisplayFormats(QLocale(QStringLiteral("en_US"))); }
