// The same code paints on screens, paper and pictures.

#include "Chart.h"
#include "ChartSamples.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

constexpr QColor Untouched(255, 0, 255);

QImage Empty(const QSize& size, double ratio = 1) {
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Untouched);
    return image;
}

struct Painted {
    ChartLayout layout;
    QImage image;
};

Painted Paint(const ChartData& data, const ChartLook& look, const QRectF& place, double ratio = 1) {
    Painted painted{{}, Empty({760, 420}, ratio)};
    QPainter painter(&painted.image);
    painted.layout =
        LayOutChart(data, Dollars(), look, {.place = place, .device = painter.device()});
    PaintChart(painter, painted.layout, look);
    return painted;
}

ChartLook Light() { return LookOfScreen(LightPalette(), SampleFont()); }
ChartLook Dark() { return LookOfScreen(DarkPaletteOfChart(), SampleFont()); }

/// How many pixels inside the rectangle have nearly this colour.
int PixelsOf(const QImage& image, const QRect& place, const QColor& colour) {
    constexpr int near = 40;
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const bool isNear = std::abs(pixel.red() - colour.red()) < near &&
                                std::abs(pixel.green() - colour.green()) < near &&
                                std::abs(pixel.blue() - colour.blue()) < near;
            count += isNear ? 1 : 0;
        }
    }
    return count;
}

TEST(ChartPainting, PaintsTheWholePlaceAndNothingElse) {
    for (const QRect& place :
         {QRect(30, 20, 700, 360), QRect(5, 5, 120, 90), QRect(40, 40, 30, 20)}) {
        for (const ChartLook& look : {Light(), Dark(), LookOfPaper(SampleFont(30))}) {
            Painted painted = Paint(MakeSample({.lines = 17, .spread = 0}), look, place);
            QPainter painter(&painted.image);
            const ChartData data = MakeSample({.lines = 17});
            PaintReading(painter, painted.layout,
                         LayOutReading(data, Dollars(), painted.layout, {.month = 360}, nullptr),
                         look);
            painter.end();
            const QRect all = painted.image.rect();
            EXPECT_EQ(all.width() * all.height() - place.width() * place.height(),
                      PixelsOf(painted.image, all, Untouched));
            EXPECT_EQ(0, PixelsOf(painted.image, place, Untouched));
        }
    }
}

TEST(ChartPainting, TinyAndEmptyPlacesDoNotFail) {
    for (const QRectF& place :
         {QRectF(), QRectF(0, 0, 1, 1), QRectF(3, 3, 0.5, 300), QRectF(0, 0, 300, 2)}) {
        Paint(MakeSample({.lines = 3}), Light(), place);
        Paint({}, Light(), place);
    }
}

/// The line of the label in the label's row, seen in both palettes.
TEST(ChartPainting, LinesReachTheirLabels) {
    for (const ChartLook& look : {Light(), Dark(), LookOfPaper(SampleFont())}) {
        const Painted painted = Paint(MakeSample({.lines = 17}), look, QRectF(30, 20, 700, 360));
        for (const ChartCurve& curve : painted.layout.curves) {
            const QPointF end = curve.leader.back();
            const QRect before(QPointF(end.x() - 20, end.y() - 1).toPoint(), QSize(20, 3));
            EXPECT_GT(60 - 6, PixelsOf(painted.image, before, look.background)) << curve.loan;
            EXPECT_LT(3, PixelsOf(painted.image, curve.labelPlace.toRect(), look.text))
                << curve.loan;
        }
    }
}

/// The lengths of dashes and gaps beside the labels of lines without colours.
TEST(ChartPainting, LinesHaveDifferentDashes) {
    const ChartLook look = LookOfPaper(SampleFont(24));
    ChartData data = MakeSample({.lines = 8, .spread = 0});
    for (ChartLine& line : data.lines) {
        line.values = {Money(), Money()}; // so that curves do not cross the leaders
    }
    data.lines.back().values = {Units(1), Units(1)};
    const Painted painted = Paint(data, look, QRectF(0, 0, 760, 420));
    std::set<std::vector<bool>> rows;
    for (const ChartCurve& curve : painted.layout.curves) {
        std::vector<bool> row;
        for (int x = 0; x < 36; ++x) {
            const QPoint point = (curve.leader[1] + QPointF(x, 0)).toPoint();
            row.push_back(painted.image.pixelColor(point).lightness() < 128);
        }
        rows.insert(row);
    }
    EXPECT_LE(7U, rows.size());
}

/// A grid line that is not on whole pixels would be blurred over two.
TEST(ChartPainting, GridLinesAreSharpAtEveryPixelRatio) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const ChartLook look = Light();
        const Painted painted = Paint(MakeSample({}), look, QRectF(30.3, 20.6, 700, 360), ratio);
        // Right of the highest line, where nothing but the grid is.
        const int x = static_cast<int>((painted.layout.plot.left() + 40) * ratio);
        const int bottom = static_cast<int>(painted.layout.plot.center().y() * ratio);
        for (int y = static_cast<int>(painted.layout.plot.top() * ratio) + 1; y < bottom; ++y) {
            const QColor pixel = painted.image.pixelColor(x, y);
            EXPECT_TRUE(pixel == look.grid || pixel == look.background)
                << ratio << " " << y << " " << pixel.name().toStdString();
        }
    }
}

TEST(ChartPainting, APictureReplaysTheChart) {
    const ChartData data = MakeSample({});
    const QRectF place(30, 20, 700, 360);
    QPicture picture;
    QPainter recorder(&picture);
    PaintChart(recorder, place, data, Dollars(), LookOfPaper(SampleFont()));
    recorder.end();
    QImage image = Empty({760, 420});
    QPainter painter(&image);
    painter.drawPicture(0, 0, picture);
    painter.end();
    EXPECT_EQ(0, PixelsOf(image, place.toRect().adjusted(1, 1, -1, -1), Untouched));
    EXPECT_LT(2000, PixelsOf(image, place.toRect(), Qt::black));
    EXPECT_TRUE(place.adjusted(-1, -1, 1, 1).contains(picture.boundingRect()));
}

/// Twips with a font in pixels, as printed pages count.
TEST(ChartPainting, AnyUnitWillDo) {
    QFont font = SampleFont();
    font.setPixelSize(180);
    QPicture picture;
    QPainter painter(&picture);
    const ChartLayout layout =
        LayOutChart(MakeSample({}), Dollars(), LookOfPaper(font),
                    {.place = QRectF(0, 0, 10'000, 6'000), .device = &picture});
    PaintChart(painter, layout, LookOfPaper(font));
    EXPECT_EQ(180, layout.labelFont.pixelSize());
    EXPECT_NEAR(180 * 1.17 / 16, layout.unit, 2);
    EXPECT_LT(4'000, layout.plot.width());
}

TEST(ChartPainting, PdfHoldsLinesAndTexts) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    QPdfWriter writer(&file);
    QPainter painter(&writer);
    PaintChart(painter, QRectF(0, 0, writer.width(), writer.height() / 2.0), MakeSample({}),
               Dollars(), LookOfPaper(SampleFont()));
    painter.end();
    EXPECT_LT(5'000, file.size());
    EXPECT_GT(200'000, file.size());
}

/// 17 lines of 360 months in well under 10 ms; sanitizers and busy machines take their time.
} // namespace
