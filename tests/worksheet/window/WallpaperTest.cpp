// The background picture of the window.

#include "WindowFixture.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTemporaryDir>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

class WallpaperOfTheWindow : public WindowTest {
protected:
    QString PathOf(const QString& file) const { return m_folder.filePath(file); }
    /// A picture in which every pixel's colour encodes its position.
    QImage Picture(int width, int height) const {
        QImage picture(width, height, QImage::Format_RGB32);
        for (int x = 0; x < width; ++x) {
            for (int y = 0; y < height; ++y) {
                picture.setPixel(x, y, qRgb(x * 255 / width, y * 255 / height, 90));
            }
        }
        return picture;
    }
    void Write(const QString& file, const QByteArray& bytes) const {
        QFile out(PathOf(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
    bool IsBare(QPoint at) {
        const QWidget* child = Window().childAt(at);
        return child == nullptr || child->objectName() == u"centralWidget";
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(WallpaperOfTheWindow, IsTiledUnscaledFromTheCorner) {
    struct Case {
        int width;
        int height;
    };
    const std::vector<Case> sizes = {{37, 23}, {5, 200}, {2000, 3}};
    for (const auto& size : sizes) {
        const QImage picture = Picture(size.width, size.height);
        const QString path = PathOf(u"tile.bmp"_s);
        ASSERT_TRUE(picture.save(path));
        Open({.wallpaper = path});
        Settle();
        const QImage window = Window().grab().toImage();
        int compared = 0;
        int wrong = 0;
        for (int x = 0; x < window.width(); ++x) {
            for (int y = 0; y < window.height(); ++y) {
                if (IsBare({x, y})) {
                    ++compared;
                    wrong += window.pixel(x, y) == picture.pixel(x % size.width, y % size.height)
                                 ? 0
                                 : 1;
                }
            }
        }
        EXPECT_GT(compared, 1000);
        EXPECT_EQ(wrong, 0) << "of " << compared;
        EXPECT_TRUE(SettledMessages().isEmpty());
        EXPECT_EQ(Window().GetSettings().wallpaper, path);
        Shut();
    }
}

TEST_F(WallpaperOfTheWindow, LeavesTheCaptionsReadable) {
    QImage dark(16, 16, QImage::Format_RGB32);
    dark.fill(QApplication::palette().color(QPalette::WindowText));
    const QString path = PathOf(u"dark.bmp"_s);
    ASSERT_TRUE(dark.save(path));
    Open({.wallpaper = path});
    Settle();
    const QColor plate = Window().palette().color(QPalette::Window);
    const QImage window = Window().grab().toImage();
    int captions = 0;
    for (const QLabel* caption : Window().findChildren<QLabel*>()) {
        if (caption->isVisible() && !caption->text().isEmpty()) {
            const QRect place(caption->mapTo(&Window(), QPoint()), caption->size());
            EXPECT_EQ(window.pixelColor(place.topLeft()), plate)
                << caption->objectName().toStdString();
            ++captions;
        }
    }
    EXPECT_GT(captions, 20);
}

TEST_F(WallpaperOfTheWindow, IsNoneWithoutAPath) {
    Open();
    Settle();
    const QImage window = Window().grab().toImage();
    EXPECT_EQ(window.pixelColor(3, window.height() / 2),
              Window().palette().color(QPalette::Window));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(WallpaperOfTheWindow, ThatCannotBeLoadedIsReportedOnceAndForgotten) {
    QByteArray whole;
    {
        const QImage picture = Picture(37, 23);
        ASSERT_TRUE(picture.save(PathOf(u"whole.bmp"_s)));
        QFile file(PathOf(u"whole.bmp"_s));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        whole = file.readAll();
    }
    Write(u"empty.bmp"_s, {});
    Write(u"garbage.bmp"_s, "This is no picture.");
    Write(u"truncated.bmp"_s, whole.left(20));
    for (const QString& file :
         {u"missing.bmp"_s, u"empty.bmp"_s, u"garbage.bmp"_s, u"truncated.bmp"_s, u"."_s}) {
        Messages().Clear();
        Open({.wallpaper = PathOf(file)});
        EXPECT_EQ(SettledMessages(),
                  QStringList(u"This background picture could not be loaded: "_s + PathOf(file)));
        EXPECT_EQ(Window().GetSettings().wallpaper, u"");
        EXPECT_EQ(RowCount(), 6) << "the rest of the window is there";
        EXPECT_FALSE(Sheet().Dirty());
        Shut();
    }
}

TEST_F(WallpaperOfTheWindow, ThatCannotBeLoadedIsReportedInTheLanguageOfTheUser) {
    Open({.language = Spanish, .wallpaper = PathOf(u"nada.bmp"_s)});
    EXPECT_EQ(SettledMessages(),
              QStringList(u"No se pudo cargar esta imagen de fondo: "_s + PathOf(u"nada.bmp"_s)));
}

} // namespace
