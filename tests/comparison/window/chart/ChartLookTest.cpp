// Lines can be seen on every background and distinguished without colour.

#include "ChartLook.h"
#include "ChartSamples.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace {

constexpr int Offers = 16;

TEST(ChartLook, LinesContrastWithEveryBackground) {
    for (const QColor& base :
         {QColor(Qt::white), QColor(239, 239, 239), QColor(255, 250, 220), QColor(128, 128, 128),
          QColor(53, 53, 53), QColor(25, 25, 25), QColor(0, 43, 54), QColor(Qt::black)}) {
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, base.lightness() > 127 ? Qt::black : Qt::white);
        const ChartLook look = LookOfScreen(palette, {});
        for (int place = CurrentLoanPlace; place <= Offers; ++place) {
            EXPECT_LE(LeastContrast, ContrastOf(PenOfLine(look, place, 1).color(), base))
                << base.name().toStdString() << " " << place;
        }
        EXPECT_LE(LeastContrast, ContrastOf(look.accent, base)) << base.name().toStdString();
    }
}

TEST(ChartLook, ColoursOfTheUsualPalettesNeedNoChange) {
    for (const QPalette& palette : {LightPalette(), DarkPaletteOfChart()}) {
        const ChartLook look = LookOfScreen(palette, {});
        std::set<QRgb> colours;
        for (int place = 1; place <= Offers; ++place) {
            colours.insert(PenOfLine(look, place, 1).color().rgb());
        }
        EXPECT_EQ(8U, colours.size());
    }
}

TEST(ChartLook, DashesAndWidthsAloneDistinguishLines) {
    for (const ChartLook& look : {LookOfPaper({}), LookOfScreen(LightPalette(), {})}) {
        std::set<std::pair<double, QList<qreal>>> pens;
        for (int place = CurrentLoanPlace; place <= Offers; ++place) {
            const QPen pen = PenOfLine(look, place, 1);
            pens.insert({pen.widthF(), pen.dashPattern()});
        }
        EXPECT_EQ(Offers + 1U, pens.size());
    }
}

TEST(ChartLook, PaperIsBlackOnWhite) {
    const ChartLook look = LookOfPaper({});
    EXPECT_EQ(QColor(Qt::white), look.background);
    EXPECT_EQ(QColor(Qt::black), look.text);
    EXPECT_EQ(QColor(Qt::black), PenOfLine(look, 3, 1).color());
}

TEST(ChartLook, ContrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(21, ContrastOf(Qt::black, Qt::white), 1e-9);
    EXPECT_NEAR(1, ContrastOf(Qt::red, Qt::red), 1e-9);
    EXPECT_NEAR(4.48, ContrastOf(QColor(119, 119, 119), Qt::white), 0.01);
}

} // namespace
