// Renders pages as pictures and compares them with those in tests/data/pages. There is a folder for
// each version of Qt, because each draws text a little differently. To store new pictures, run with
// QUEND_KEEP_PAGES=1 and check them by eye.

#include "EnterValues.h"
#include "OfferRows.h"
#include "PagePainter.h"
#include "QuendNames.h"
#include "Report.h"
#include "ReportInputReader.h"
#include "SampleSheet.h"
#include "WindowFixture.h"

#include <QDir>
#include <QImage>
#include <QLibraryInfo>
#include <QPageLayout>
#include <QPainter>
#include <QVersionNumber>

namespace {

constexpr double Dpi = 75;

struct ReferencePage {
    const char* name;
    QPageSize::PageSizeId size;
    QPageLayout::Orientation orientation;
    int language;
    int rows;
    int lenderWords; ///< number of words in each lender's text; the first one has ten times as many
    int windowWidth; ///< 0: the initial width
    std::size_t pages;
};

void PrintTo(const ReferencePage& page, std::ostream* out) { *out << page.name; }

class ReferencePages : public WindowTest, public testing::WithParamInterface<ReferencePage> {
protected:
    void Fill() {
        FillSampleLoans(SheetToWrite());
        Window().Rows().GrowTo(Row{GetParam().rows - 1});
        for (int row = 0; row < GetParam().rows; ++row) {
            FillRow(Row{row});
        }
        Settle();
    }
    void FillRow(Row row) {
        constexpr std::array codes{"M", "B", "W", "Q"};
        const QLatin1String code(codes.at(static_cast<std::size_t>(row.value) % codes.size()));
        const int words = GetParam().lenderWords * (row.value == 0 ? 10 : 1);
        QStringList text;
        constexpr std::array lenders{"First", "Prairie", "Savings-Bank", "Mrs.", "Miller"};
        for (int word = 0; word < words; ++word) {
            text << QLatin1String(lenders.at(static_cast<std::size_t>(word) % lenders.size()));
        }
        EnterOffer(SheetToWrite(), row,
                   {{FieldId::Points, Percent::FromPercent(row.value % 3 * 0.5)},
                    {FieldId::FinancePoints, row.value % 3 == 1},
                    {FieldId::InterestRate, Rate::FromFraction(SampleRate(row))},
                    {FieldId::Term, Months{360}},
                    {FieldId::Frequency, FrequencyCode(code)},
                    {FieldId::Who, text.join(u' ')}});
    }
};

QImage Picture(const PrintedPage& page, QSizeF space) {
    const double scale = Dpi / TwipsPerInch;
    QImage picture((space * scale).toSize(), QImage::Format_Grayscale8);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    PaintPage(painter, page);
    return picture;
}

/// The fraction of pixels with a clearly different grey, after blurring both pictures slightly.
double Difference(const QImage& one, const QImage& other) {
    if (one.size() != other.size()) {
        return 1;
    }
    const QSize half = one.size() / 2;
    const auto blurred = [&](const QImage& picture) {
        return picture.scaled(half, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage a = blurred(one);
    const QImage b = blurred(other);
    int different = 0;
    for (int y = 0; y < half.height(); ++y) {
        for (int x = 0; x < half.width(); ++x) {
            different += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 64 ? 1 : 0;
        }
    }
    return different / (double(half.width()) * half.height());
}

// clang-format off
const std::vector<ReferencePage> Kept{
    // name                size               orientation             language rows words window pages
    {"letter",           QPageSize::Letter, QPageLayout::Portrait,  English,  6,    2,    0,   1},
    {"letter-landscape", QPageSize::Letter, QPageLayout::Landscape, English, 16,    4,    0,   2},
    {"letter-one-row",   QPageSize::Letter, QPageLayout::Portrait,  English,  1,    1,    0,   1},
    {"a4-spanish",       QPageSize::A4,     QPageLayout::Portrait,  Spanish, 16,    3,    0,   1},
    {"a4-landscape",     QPageSize::A4,     QPageLayout::Landscape, Spanish, 16,    9,    0,   2},
    {"letter-page-long", QPageSize::Letter, QPageLayout::Portrait,  English,  2,   40,    0,   4},
    {"letter-wide",      QPageSize::Letter, QPageLayout::Portrait,  English,  6,    2, 1900,   1},
};
// clang-format on

bool Keeps() { return qEnvironmentVariableIsSet("QUEND_KEEP_PAGES"); }

/// The folder for the Qt version in use, such as "6.4".
QDir KeptPages() {
    const QVersionNumber version = QLibraryInfo::version();
    return {QStringLiteral(QUEND_TEST_DATA "/pages/%1.%2")
                .arg(version.majorVersion())
                .arg(version.minorVersion())};
}

TEST_P(ReferencePages, LookAsKept) {
    const ReferencePage& wanted = GetParam();
    const QDir kept = KeptPages();
    if (Keeps() ? !kept.mkpath(QStringLiteral(".")) : !kept.exists()) {
        GTEST_SKIP() << "no pages are kept in " << kept.path().toStdString();
    }
    Open({.language = wanted.language});
    if (wanted.windowWidth > 0) {
        Window().resize(wanted.windowWidth, Window().height());
        Settle();
    }
    Fill();
    const QPageLayout layout(QPageSize(wanted.size), wanted.orientation, QMarginsF(18, 18, 18, 18));
    const QSizeF space = layout.paintRect(QPageLayout::Point).size() * TwipsPerPoint;
    const FontMetrics metrics;
    const double widest =
        Report::WidestWindow(space.width(), LabelPoints(Window()), PixelsPerPoint(Window()));
    Report report(ReadForm(Window(), widest), space, metrics);
    for (const Report::Section section : Report::Sections) {
        (report.*section)();
    }
    report.PrintPageFooter();
    int number = 0;
    for (const PrintedPage& page : report.Pages().pages) {
        const QString file = kept.filePath(
            QStringLiteral("%1-%2.png").arg(QLatin1String(wanted.name)).arg(++number));
        const QImage picture = Picture(page, space);
        if (Keeps()) {
            EXPECT_TRUE(picture.save(file));
        }
        EXPECT_LT(Difference(picture, QImage(file)), 0.002) << file.toStdString();
    }
    EXPECT_EQ(report.Pages().pages.size(), wanted.pages);
}

INSTANTIATE_TEST_SUITE_P(Pages, ReferencePages, testing::ValuesIn(Kept), [](const auto& page) {
    return QString::fromUtf8(page.param.name).replace(u'-', u'_').toStdString();
});

/// A different page is recognised as different.
TEST(Difference, IsSeen) {
    QImage white(100, 100, QImage::Format_Grayscale8);
    white.fill(Qt::white);
    QImage marked = white;
    QPainter(&marked).fillRect(10, 10, 20, 10, Qt::black);
    EXPECT_EQ(Difference(white, white), 0);
    EXPECT_GT(Difference(white, marked), 0.01);
    EXPECT_EQ(Difference(white, QImage(50, 100, QImage::Format_Grayscale8)), 1);
}

} // namespace
