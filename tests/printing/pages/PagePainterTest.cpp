// Painting into a document: letters become text, emoji become pictures.

#include "PagePainter.h"
#include "QuendNames.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QPdfWriter>

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

} // namespace
