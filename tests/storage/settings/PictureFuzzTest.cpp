// Invalid background picture files: each is shown or rejected, and none blocks the program or uses
// up its memory.

#include "Fuzzing.h"
#include "OptionsFixture.h"
#include "PicturePreview.h"
#include "QuendNames.h"
#include "QuietQt.h"
#include "Wallpaper.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QPixmap>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString NoPicture = u"This file cannot be shown as a picture."_s;

class PictureFuzz : public OptionsDialog {
protected:
    PictureFuzz() { Open(); }

    /// Shows the file as the window's background and as the preview. True when it is shown.
    bool Show(const QString& path) {
        const QuietQt quiet;
        Wallpaper wallpaper;
        const bool loaded = wallpaper.Load(path);
        EXPECT_EQ(wallpaper.IsSet(), loaded && !path.isEmpty());
        QImage window(60, 40, QImage::Format_RGB32);
        QPainter painter(&window);
        wallpaper.Paint(painter, window.size());
        auto& preview = Get<PicturePreview>(u"picWallpaper");
        preview.ShowFile(path);
        EXPECT_EQ(preview.text(), preview.pixmap().isNull() ? NoPicture : QString());
        EXPECT_TRUE(preview.pixmap().size().boundedTo(preview.size()) == preview.pixmap().size());
        return loaded;
    }
    /// Tries the bytes as a file with one of these extensions, or without one.
    void TryBytes(const std::string& bytes) {
        constexpr std::array<const char16_t*, 6> endings{u"",     u".bmp", u".png",
                                                         u".jpg", u".gif", u".txt"};
        const QString ending =
            QString::fromUtf16(endings.at(std::hash<std::string>()(bytes) % endings.size()));
        const QString path =
            File(u"picture"_s + ending, QByteArray(bytes.data(), qsizetype(bytes.size())));
        Show(path);
        QFile::remove(path);
    }
    QString Pipe() {
        EXPECT_EQ(mkfifo(QFile::encodeName(PathOf(u"pipe.png")).constData(), 0600), 0);
        return PathOf(u"pipe.png");
    }
    static QString Closed(const QString& path) {
        EXPECT_TRUE(QFile::setPermissions(path, {}));
        return path;
    }
    QString Link(QStringView name, const QString& file) {
        QFile::link(file, PathOf(name));
        return PathOf(name);
    }

    const FuzzTarget target{"picture", [this](const std::string& input) { TryBytes(input); }};
};

TEST_F(PictureFuzz, TheCorpusIsShownOrRefused) {
    // The first read makes Qt load its decoders.
    Show(Picture(u"first.bmp", {2, 2}));
    QElapsedTimer clock;
    clock.start();
    target.TryCorpus();
    EXPECT_LT(clock.elapsed(), 15'000);
}

TEST_F(PictureFuzz, DamagedPicturesAreShownOrRefused) {
    target.TryAtRandom(
        [&](FuzzRandom& random) { return Damaged(random, random.AnyOf(target.Corpus())); });
}

TEST_F(PictureFuzz, OnlyAFileWithAPictureInItIsRead) {
    const QString picture = Picture(u"house.bmp", {4, 3});
    QFile file(picture);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    Link(u"one", PathOf(u"two"));
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
    struct Case {
        const char* what;
        QString path;
        bool shown;
    };
    const std::vector<Case> cases = {
        {"a pipe that nobody writes to", Pipe(), false},
        {"a device without end", u"/dev/zero"_s, false},
        {"chance without end", u"/dev/random"_s, false},
        {"the terminal", u"/dev/tty"_s, false},
        {"the standard input", u"/dev/stdin"_s, false},
        {"the system's own notes", u"/proc/kmsg"_s, false},
        {"the program's own memory", u"/proc/self/mem"_s, false},
        {"a folder", PathOf(u"."), false},
        {"links in a circle", Link(u"two", PathOf(u"one")), false},
        {"a link to a pipe", Link(u"to-pipe.png", PathOf(u"pipe.png")), false},
        {"a link to a device", Link(u"to-zero.bmp", u"/dev/zero"_s), false},
        {"a link that leads nowhere", Link(u"nowhere.bmp", PathOf(u"none.bmp")), false},
        {"a link to a picture", Link(u"to-house", picture), true},
        {"below a file", picture + u"/house.bmp"_s, false},
        {"a path too long", u'/' + QString(5'000, u'x'), false},
        {"a path with an end in it", picture + QChar(0) + u".bmp"_s, false},
        {"an address", u"file://"_s + picture, false},
        {"an address elsewhere", u"https://quend.example/house.bmp"_s, false},
        {"half of a character", PathOf(u"\xD83C.bmp"), false},
        {"an option", u"-x"_s, false},
        {"a wrong ending", File(u"house.png", bytes), true},
        {"no ending", File(u"house", bytes), true},
        {"blanks, quotes and accents", File(u" Mañana \"'$(id)` %n%1.bmp", bytes), true},
        {"a line break", File(u"one\ntwo.bmp", bytes), true},
        {"what may not be read", Closed(File(u"closed.bmp", bytes)), geteuid() == 0},
        {"a drawing", File(u"drawing.svg", drawing), false},
        {"a drawing that says it is none", File(u"drawing.bmp", drawing), false},
    };
    for (const Case& tested : cases) {
        SCOPED_TRACE(tested.what);
        alarm(20); // ends a test that hangs
        EXPECT_EQ(Show(tested.path), tested.shown);
        EXPECT_EQ(Get<PicturePreview>(u"picWallpaper").pixmap().isNull(), !tested.shown);
    }
    alarm(0);
}

} // namespace
