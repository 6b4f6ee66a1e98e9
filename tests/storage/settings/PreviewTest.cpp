// The preview of the background picture, and selecting a picture.

#include "OptionsFixture.h"
#include "PictureDialog.h"
#include "PicturePreview.h"
#include "QuendNames.h"
#include "QuietQt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QTest>
#include <QtEndian>

#include <sys/resource.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString None = u"No picture"_s;
const QString NotShown = u"This file cannot be shown as a picture."_s;

/// The header of a bitmap that claims this size, without the pixel data.
QByteArray BitmapHead(int width, int height, int bitsPerPixel) {
    QByteArray head(bitsPerPixel == 1 ? 62 : 54, '\0');
    const auto put = [&](int at, int value) { qToLittleEndian(qint32(value), head.data() + at); };
    head[0] = 'B';
    head[1] = 'M';
    put(10, int(head.size()));
    put(14, 40);
    put(18, width);
    put(22, height);
    put(26, 1 | bitsPerPixel << 16);
    return head;
}

class Preview : public OptionsDialog {
protected:
    QPixmap Shown() const { return Get<PicturePreview>(u"picWallpaper").pixmap(); }
    QSize ShownSize() const { return Shown().deviceIndependentSize().toSize(); }
    QSize Room() const { return Control(u"picWallpaper").contentsRect().size(); }
};

TEST_F(Preview, ShowsTheWholePictureInItsProportions) {
    struct Case {
        QStringView file;
        QSize size;
    };
    const std::vector<Case> cases = {
        {u"large.bmp", {1200, 900}},  {u"wide.bmp", {3000, 30}}, {u"high.png", {20, 5000}},
        {u"photo.jpg", {4000, 3000}}, {u"small.bmp", {40, 30}},  {u"dot.bmp", {1, 1}},
    };
    for (const Case& tested : cases) {
        SCOPED_TRACE(tested.file.toString().toStdString());
        Open(WithPicture(Picture(tested.file, tested.size)));
        EXPECT_EQ(Text(u"picWallpaper"), u"");
        const QSize shown = ShownSize();
        const bool fits = tested.size.boundedTo(Room()) == tested.size;
        EXPECT_TRUE(fits ? shown == tested.size : shown.boundedTo(Room()) == shown);
        EXPECT_LE(shown.width(), tested.size.width()) << "never larger than it is";
        EXPECT_LE(shown.height(), tested.size.height());
        // Scale by the longer side: the shorter one is at least one pixel.
        const double scale = tested.size.width() >= tested.size.height()
                                 ? double(shown.width()) / tested.size.width()
                                 : double(shown.height()) / tested.size.height();
        EXPECT_NEAR(shown.width(), std::max(1.0, tested.size.width() * scale), 1.0);
        EXPECT_NEAR(shown.height(), std::max(1.0, tested.size.height() * scale), 1.0);
        const QColor middle = Shown().toImage().pixelColor(shown.width() / 2, shown.height() / 2);
        EXPECT_NEAR(middle.red(), 200, 3);
    }
}

TEST_F(Preview, GrowsWithTheDialogAndNeverPushesIt) {
    Open(WithPicture(Picture(u"large.bmp", {1200, 900})));
    const QSize before = Dialog().size();
    const QSize shown = ShownSize();
    Dialog().resize(before * 2);
    QTest::qWait(0);
    EXPECT_GT(ShownSize().height(), shown.height());
    Dialog().resize(before);
    QTest::qWait(0);
    EXPECT_EQ(Dialog().size(), before);
    EXPECT_EQ(ShownSize(), shown);
}

TEST_F(Preview, SaysWhenThereIsNothingToShow) {
    QFile whole(Picture(u"whole.bmp", {37, 23}));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    struct Case {
        QString path;
        QString text;
    };
    const std::vector<Case> cases = {
        {{}, None},
        {PathOf(u"missing.bmp"), NotShown},
        {PathOf(u"."), NotShown},
        {u"/dev/zero"_s, NotShown},
        {u"no path at all"_s, NotShown},
        {File(u"empty.bmp", {}), NotShown},
        {File(u"garbage.bmp", "This is no picture."), NotShown},
        {File(u"truncated.bmp", bytes.left(20)), NotShown},
        {File(u"head.bmp", BitmapHead(20'000, 20'000, 24)), NotShown},
        {File(u"giant.bmp", BitmapHead(2'000'000'000, 2'000'000'000, 32)), NotShown},
        {File(u"negative.bmp", BitmapHead(-5, -2'147'483'647, 24)), NotShown},
    };
    for (const Case& tested : cases) {
        SCOPED_TRACE(tested.path.toStdString());
        Open(WithPicture(tested.path));
        EXPECT_TRUE(Shown().isNull());
        EXPECT_EQ(Text(u"picWallpaper"), tested.text);
        EXPECT_EQ(Control(u"picWallpaper").accessibleDescription(), tested.text);
        EXPECT_TRUE(SettledMessages().isEmpty());
    }
}

TEST_F(Preview, SaysWhenThePictureIsCutOff) {
    const QuietQt quiet;
    for (const QStringView file : {u"cut.bmp", u"cut.jpg"}) {
        SCOPED_TRACE(file.toString().toStdString());
        QFile whole(Picture(file, {300, 200}));
        Open(WithPicture(whole.fileName()));
        EXPECT_EQ(Control(u"picWallpaper").accessibleDescription(), u"");
        const QPixmap bare = Control(u"picWallpaper").grab();
        ASSERT_TRUE(whole.resize(whole.size() * 9 / 10));
        Open(WithPicture(whole.fileName()));
        EXPECT_EQ(Control(u"picWallpaper").accessibleDescription(),
                  u"The file is cut off: a part of this picture is missing.");
        EXPECT_EQ(ShownSize(), QSize(300, 200).boundedTo(ShownSize())) << "what is there is shown";
        EXPECT_NE(Control(u"picWallpaper").grab().toImage(), bare.toImage());
    }
}

TEST_F(Preview, TakesAWholePictureForWhole) {
    QFile longer(Picture(u"longer.jpg", {300, 200}));
    ASSERT_TRUE(longer.open(QIODevice::Append));
    longer.write(QByteArray(100, '\0'));
    longer.close();
    for (const QString& path : {longer.fileName(), Picture(u"a.png", {30, 20}),
                                Picture(u"odd.bmp", {3, 5}), Picture(u"dot.jpg", {1, 1})}) {
        Open(WithPicture(path));
        EXPECT_EQ(Control(u"picWallpaper").accessibleDescription(), u"") << path.toStdString();
    }
}

TEST_F(Preview, OfAnEnormousPictureCostsNeitherTimeNorMemory) {
    // The files have the size that their headers claim, but are sparse on the disk.
    for (const int bitsPerPixel : {1, 24}) {
        const int width = 20'000;
        const QString path = File(u"enormous.bmp", BitmapHead(width, width, bitsPerPixel));
        ASSERT_TRUE(QFile::resize(path, 62 + qint64{width} * width * bitsPerPixel / 8));
        rusage before{};
        getrusage(RUSAGE_SELF, &before);
        QElapsedTimer clock;
        clock.start();
        Open(WithPicture(path));
        EXPECT_LT(clock.elapsed(), 2000);
        rusage after{};
        getrusage(RUSAGE_SELF, &after);
        EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 100 * 1024) << "kilobytes";
        EXPECT_EQ(Text(u"picWallpaper"), NotShown);
    }
}

TEST_F(Preview, IsRenewedWhenThePathIsLeft) {
    const QString picture = Picture(u"house.bmp", {30, 20});
    Open();
    TypeInto(u"txtWallpaper", picture);
    EXPECT_EQ(Text(u"picWallpaper"), None);
    Tab();
    EXPECT_EQ(ShownSize(), QSize(30, 20));
    TypeInto(u"txtWallpaper", picture + u'x');
    Tab();
    EXPECT_EQ(Text(u"picWallpaper"), NotShown);
    TypeInto(u"txtWallpaper", u"");
    Tab();
    EXPECT_EQ(Text(u"picWallpaper"), None);
}

TEST_F(Preview, SpeaksTheLanguageOfTheUser) {
    Open({}, Spanish);
    EXPECT_EQ(Text(u"picWallpaper"), u"Sin imagen");
    TypeInto(u"txtWallpaper", u"nada");
    Tab();
    EXPECT_EQ(Text(u"picWallpaper"), u"Este archivo no se puede mostrar como imagen.");
}

TEST_F(Preview, PictureIsLookedForWhereTheLastOneWas) {
    const QString picture = Picture(u"house.bmp", {30, 20});
    Open(WithPicture(u"/x/old.bmp"_s, u"/x/"_s));
    Click(u"cmdWallpaper"); // and the user cancels
    EXPECT_EQ(Text(u"txtWallpaper"), u"/x/old.bmp");
    EXPECT_EQ(Text(u"picWallpaper"), NotShown);
    m_pictures.answer = picture;
    Click(u"cmdWallpaper");
    EXPECT_EQ(Text(u"txtWallpaper"), picture);
    EXPECT_EQ(ShownSize(), QSize(30, 20));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    m_pictures.answer.clear();
    Click(u"cmdWallpaper");
    ASSERT_EQ(m_pictures.requests.size(), 3U);
    EXPECT_EQ(m_pictures.requests[1].file, u"/x/old.bmp");
    EXPECT_EQ(m_pictures.requests[1].folder, u"/x/");
    EXPECT_EQ(m_pictures.requests[2].file, picture);
    EXPECT_EQ(m_pictures.requests[2].folder, PathOf(u"") + u'/');
    Click(u"OKButton");
    EXPECT_EQ(Dialog().Chosen().wallpaper, picture);
    EXPECT_EQ(Dialog().Chosen().wallpaperDirectory, PathOf(u"") + u'/') << "with its separator";
}

TEST_F(Preview, FolderIsForgottenByCancel) {
    m_pictures.answer = Picture(u"house.bmp", {30, 20});
    Open(WithPicture({}, u"/x/"_s));
    Click(u"cmdWallpaper");
    Click(u"CancelButton");
    EXPECT_EQ(Dialog().Chosen().wallpaperDirectory, u"/x/");
    EXPECT_EQ(Dialog().Chosen().wallpaper, u"");
}

} // namespace
