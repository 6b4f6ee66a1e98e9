// Painting on a device: letters become text, emoji become pictures, recordings keep their size.

#include "PagePainter.h"
#include "PdfDocument.h"
#include "PrintServer.h"
#include "QuendNames.h"

#include <QBuffer>
#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const PrintFont TypeOfBanks{.family = QStringLiteral("DejaVu Sans"), .points = 10};

QByteArray DocumentWith(const QString& text) {
    const PrintedText drawn{
        QPointF(1000, 1000), text, {.family = QStringLiteral("Picture Test"), .points = 10}};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    EXPECT_TRUE(PaintPages(writer, {.space = QSizeF(10'000, 10'000), .pages = {{{drawn}}}}));
    return buffer.data();
}

qsizetype PicturesIn(const QString& text) { return DocumentWith(text).count("/Subtype /Image"); }

double WidthOf(const QString& text) { return FontMetrics().Width(TypeOfBanks, text); }

/// The font has U+1F3E6 as a bitmap, and an A because Qt ignores a font without Latin letters.
TEST(PagePainter, WhatAFontHoldsAsAPictureIsPrintedAsOne) {
    const int font = QFontDatabase::addApplicationFont(
        QStringLiteral(QUEND_TEST_DATA "/fonts/picture-type.ttf"));
    ASSERT_GE(font, 0);
    const QString bank = QString::fromUtf8("\U0001F3E6");
    const double width = WidthOf(bank);
    EXPECT_GT(width, 100);
    EXPECT_EQ(PicturesIn(bank), 1);
    EXPECT_EQ(WidthOf(bank), width);
    EXPECT_EQ(PicturesIn(QStringLiteral("The ") + bank + QStringLiteral(" of Ohio")), 1);
    EXPECT_EQ(WidthOf(bank), width); // a document does not affect the next one
    EXPECT_EQ(PicturesIn(QString::fromUtf8("Crédit “Loire” – 5 €")), 0);
    EXPECT_EQ(PicturesIn(QString()), 0);
    QFontDatabase::removeApplicationFont(font);
}

/// A red left half and a blue right half, two inches wide and one high, an inch from both edges.
PrintedPage PageWithPicture() {
    const auto paint = [](QPainter& painter, const QRectF& place) {
        painter.fillRect(place, Qt::red);
        painter.setClipRect(place.adjusted(place.width() / 2, 0, 0, 0));
        painter.fillRect(place.adjusted(-1000, -1000, 1000, 1000), Qt::blue);
        painter.setPen(Qt::green);
        painter.setBrush(Qt::green);
    };
    return {{PrintedPicture{QRectF(1440, 1440, 2880, 1440), RecordPicture({300, 150}, {}, paint)},
             PrintedBox{QRectF(720, 3600, 1440, 720), 2}}};
}

/// The colours at places in quarters of an inch.
void ExpectThePicture(const QImage& picture, double dpi, const char* device) {
    const struct {
        int x;
        int y;
        Qt::GlobalColor colour;
    } table[]{
        {3, 6, Qt::white}, {5, 5, Qt::red},    {7, 7, Qt::red},    {9, 5, Qt::blue},
        {11, 7, Qt::blue}, {13, 6, Qt::white}, {7, 3, Qt::white},  {7, 9, Qt::white},
        {9, 3, Qt::white}, {9, 9, Qt::white},  {4, 11, Qt::white}, // within the box
    };
    for (const auto& row : table) {
        const QPoint at(qRound(row.x * dpi / 4), qRound(row.y * dpi / 4));
        EXPECT_EQ(picture.pixelColor(at), QColor(row.colour))
            << device << ' ' << dpi << ": " << row.x << ' ' << row.y;
    }
    const QPoint edge(qRound(dpi / 2), qRound(11 * dpi / 4));
    EXPECT_LT(picture.pixelColor(edge).green(), 200) << device; // the left edge of the box
}

/// Four inches square.
QImage ImageOf(const PrintedPage& page, double dpi) {
    QImage picture(QSize(4, 4) * dpi, QImage::Format_RGB32);
    picture.setDotsPerMeterX(qRound(dpi / 0.0254));
    picture.setDotsPerMeterY(qRound(dpi / 0.0254));
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(dpi / TwipsPerInch, dpi / TwipsPerInch);
    PaintPage(painter, page);
    return picture;
}

/// A recording of the page, as a preview makes one; its unit is that of the screen.
QImage RecordedOf(const PrintedPage& page) {
    QPicture recorded;
    const double dpi = recorded.logicalDpiX();
    QPainter painter(&recorded);
    painter.scale(dpi / TwipsPerInch, dpi / TwipsPerInch);
    PaintPage(painter, page);
    painter.end();
    QImage picture = ImageOf({}, dpi);
    QPainter(&picture).drawPicture(0, 0, recorded);
    return picture;
}

/// What a reader shows of a document at 96 dots per inch.
QImage DocumentOf(const PrintedPage& page, int resolution) {
    const QTemporaryDir folder;
    const QPageLayout layout(QPageSize(QSizeF(4, 4), QPageSize::Inch), QPageLayout::Portrait, {});
    QFile file(folder.filePath(QStringLiteral("page.pdf")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(PdfOf({.space = SpaceOf(layout), .pages = {page}},
                     {.title = {}, .creator = {}, .layout = layout, .resolution = resolution}));
    file.close();
    PrintServer::Run(QStringLiteral("pdftoppm"),
                     {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-singlefile"),
                      QStringLiteral("-png"), file.fileName(),
                      folder.filePath(QStringLiteral("page"))});
    return QImage(folder.filePath(QStringLiteral("page.png")));
}

TEST(PagePainter, APictureFillsItsPlaceWhateverTheDevice) {
    const PrintedPage page = PageWithPicture();
    for (const double dpi : {72.0, 96.0, 300.0}) {
        ExpectThePicture(ImageOf(page, dpi), dpi, "image");
    }
    ExpectThePicture(RecordedOf(page), QPicture().logicalDpiX(), "recording");
    for (const int resolution : {72, 600, 1200}) {
        ExpectThePicture(DocumentOf(page, resolution), 96, "document");
    }
}

/// The width of what is not white, as a part of the image.
double InkedPart(const QImage& picture) {
    int left = picture.width();
    int right = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 128) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    return (right - left) / static_cast<double>(picture.width());
}

TEST(PagePainter, TextInAPictureKeepsItsSizeWhateverTheDevice) {
    double width = 0;
    const auto paint = [&](QPainter& painter, const QRectF& place) {
        width = painter.fontMetrics().boundingRect(QStringLiteral("MHHHHHHHM")).width();
        painter.drawText(place, Qt::AlignCenter, QStringLiteral("MHHHHHHHM"));
    };
    const PrintedPage page{
        {PrintedPicture{QRectF(0, 0, 5760, 5760), RecordPicture({384, 384}, TypeOfBanks, paint)}}};
    const double part = width / 384;
    EXPECT_GT(part, 0.2);
    EXPECT_NEAR(InkedPart(ImageOf(page, 72)), part, 0.02);
    EXPECT_NEAR(InkedPart(ImageOf(page, 300)), part, 0.02);
    EXPECT_NEAR(InkedPart(RecordedOf(page)), part, 0.02);
    EXPECT_NEAR(InkedPart(DocumentOf(page, 72)), part, 0.02);
    EXPECT_NEAR(InkedPart(DocumentOf(page, 1200)), part, 0.02);
}

} // namespace
