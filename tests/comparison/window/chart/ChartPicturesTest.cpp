// Pictures of many charts: saved to look at where QUEND_CHART_PICTURES names a folder.

#include "Chart.h"
#include "ChartSamples.h"
#include "Language.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace {

struct Picture {
    const char* name;
    SampleChart sample;
    bool dark = false;
    bool paper = false;
    double ratio = 1;
    QSize size = {700, 360};
    std::optional<ChartMark> mark;
    const char* locale = "en_US";
    int language = 1;
};

std::vector<Picture> Pictures() {
    const QString names[] = {QStringLiteral("Lender %1"),
                             QStringLiteral("The Savings and Loan Association of Lake Wabasha %1")};
    const SampleChart balance{.shows = ChartShows::Balance};
    const ChartMark mark{.month = 90, .chosen = 2};
    return {
        {.name = "light", .sample = {}, .mark = {}},
        {.name = "dark", .sample = {}, .dark = true, .mark = {}},
        {.name = "light-2x", .sample = {}, .ratio = 2, .mark = mark},
        {.name = "paper", .sample = {.lines = 17}, .paper = true, .ratio = 2, .mark = {}},
        {.name = "1-line", .sample = {.lines = 1}, .mark = {}},
        {.name = "17-lines", .sample = {.lines = 17}, .mark = {}},
        {.name = "17-lines-dark", .sample = {.lines = 17}, .dark = true, .mark = mark},
        {.name = "17-equal-ends",
         .sample = {.lines = 17, .shows = ChartShows::Balance},
         .mark = {}},
        {.name = "17-read",
         .sample = {.lines = 17, .spread = 0.01},
         .mark = ChartMark{.month = 240}},
        {.name = "balance", .sample = balance, .mark = mark},
        {.name = "long-names", .sample = {.name = names[1]}, .mark = mark},
        {.name = "small", .sample = {.lines = 17}, .size = {360, 200}, .mark = {}},
        {.name = "large",
         .sample = {.lines = 17, .name = names[1]},
         .size = {1600, 900},
         .mark = {}},
        {.name = "credit", .sample = {.months = 24, .credit = 20'000}, .mark = {}},
        {.name = "1200-months", .sample = {.lines = 17, .months = 1200}, .mark = {}},
        {.name = "spanish", .sample = {}, .mark = mark, .locale = "es_ES", .language = 2},
        {.name = "spanish-mexico", .sample = balance, .mark = {}, .locale = "es_MX", .language = 2},
    };
}

void PaintPicture(const Picture& picture, const QString& folder) {
    Language::Instance().LoadLanguage(picture.language);
    const DisplayFormats formats(QLocale(QString::fromLatin1(picture.locale)));
    const QPalette palette = picture.dark ? DarkPaletteOfChart() : LightPalette();
    const ChartLook look =
        picture.paper ? LookOfPaper(SampleFont()) : LookOfScreen(palette, SampleFont());
    QImage image(picture.size * picture.ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(picture.ratio);
    QPainter painter(&image);
    const ChartData data = MakeSample(picture.sample);
    const ChartLayout layout =
        LayOutChart(data, formats, look,
                    {.place = QRectF(QPointF(), picture.size), .device = painter.device()});
    PaintChart(painter, layout, look);
    if (picture.mark) {
        PaintReading(painter, layout,
                     LayOutReading(data, formats, layout, *picture.mark, painter.device()), look);
    }
    painter.end();
    EXPECT_FALSE(image.allGray() && !picture.paper) << picture.name;
    if (!folder.isEmpty()) {
        const QString file = folder + QStringLiteral("/chart-") + QString::fromLatin1(picture.name);
        EXPECT_TRUE(image.save(file + QStringLiteral(".png")));
    }
}

TEST(ChartPictures, ArePaintedInEveryLookAndLanguage) {
    const QString folder = qEnvironmentVariable("QUEND_CHART_PICTURES");
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    for (const Picture& picture : Pictures()) {
        PaintPicture(picture, folder);
    }
    Language::Instance().SetUp({}, QStringLiteral("Loan"));
}

} // namespace
