#include "ChartLook.h"

#include "LoanSchedule.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quend::compare {

namespace {

constexpr int Styles = 8;

/// Safe for the colour-blind: neighbours differ in lightness, too.
struct LineColour {
    QColor onLight;
    QColor onDark;
};
const std::array<LineColour, Styles> LineColours{{
    {{0, 114, 178}, {86, 180, 233}},   // blue
    {{190, 70, 0}, {255, 138, 61}},    // vermilion
    {{0, 122, 94}, {47, 203, 155}},    // green
    {{176, 64, 143}, {229, 140, 198}}, // purple
    {{125, 98, 0}, {240, 228, 66}},    // yellow
    {{75, 63, 167}, {169, 164, 255}},  // indigo
    {{150, 30, 30}, {255, 160, 150}},  // red
    {{86, 112, 127}, {195, 205, 211}}, // grey
}};

/// Lengths of dashes and gaps, in widths of the line; none for a solid one.
const std::array<QList<qreal>, Styles> Dashes{{
    {},
    {6, 3},
    {1.5, 2},
    {9, 2.5, 1.5, 2.5},
    {14, 3},
    {9, 2, 1.5, 2, 1.5, 2},
    {3, 1.5},
    {14, 2.5, 4, 2.5},
}};

constexpr double ThinWidth = 1.5; ///< of the first offers
constexpr double ThickWidth = 2.75;
constexpr double CurrentWidth = 4; ///< of the loan held today

double Luminance(const QColor& colour) {
    const auto linear = [](float channel) {
        const auto part = static_cast<double>(channel);
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto between = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {between(one.red(), other.red()), between(one.green(), other.green()),
            between(one.blue(), other.blue())};
}

bool IsDarkColour(const QColor& colour) {
    return ContrastOf(colour, Qt::white) > ContrastOf(colour, Qt::black);
}

/// The colour, moved as far from the background as it needs to be seen on it.
QColor Visible(const QColor& colour, const QColor& background) {
    constexpr int shares = 20;
    const QColor end = IsDarkColour(background) ? Qt::white : Qt::black;
    QColor visible = colour;
    for (int share = 1; share <= shares && ContrastOf(visible, background) < LeastContrast;
         ++share) {
        visible = Mixed(colour, end, static_cast<double>(share) / shares);
    }
    return visible;
}

QColor ColourOfLine(const ChartLook& look, std::size_t style) {
    if (!look.coloured) {
        return look.text;
    }
    const LineColour& colour = LineColours.at(style);
    return Visible(IsDarkColour(look.background) ? colour.onDark : colour.onLight, look.background);
}

} // namespace

double ContrastOf(const QColor& one, const QColor& other) {
    constexpr double flare = 0.05;
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + flare) / (dark + flare);
}

ChartLook LookOfScreen(const QPalette& palette, const QFont& font) {
    constexpr double faint = 0.18;
    const QColor background = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    return {.font = font,
            .background = background,
            .text = text,
            .grid = Mixed(background, text, faint),
            .accent = Visible(palette.color(QPalette::Highlight), background),
            .coloured = true};
}

ChartLook LookOfPaper(const QFont& font) {
    constexpr int faint = 208;
    return {.font = font,
            .background = Qt::white,
            .text = Qt::black,
            .grid = QColor(faint, faint, faint),
            .accent = Qt::black,
            .coloured = false};
}

QPen PenOfLine(const ChartLook& look, int place, double unit) {
    if (place == CurrentLoanPlace) {
        return {look.text, CurrentWidth * unit, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin};
    }
    const int number = place - 1;
    const auto style = static_cast<std::size_t>(number % Styles);
    const bool isThick = number / Styles % 2 != 0;
    QPen pen(ColourOfLine(look, style), (isThick ? ThickWidth : ThinWidth) * unit, Qt::SolidLine,
             Qt::FlatCap, Qt::RoundJoin);
    if (!Dashes.at(style).isEmpty()) {
        pen.setDashPattern(Dashes.at(style));
    }
    return pen;
}

} // namespace quend::compare
