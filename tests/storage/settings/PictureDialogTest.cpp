// Qt's dialog for selecting a picture.

#include "PictureDialog.h"
#include "OptionsFixture.h"
#include "QuendNames.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QTimer>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class LookingForAPicture : public OptionsDialog {
protected:
    /// The result of the dialog after these user actions.
    QString Choose(const PictureRequest& request, const std::function<void(QFileDialog&)>& user) {
        int shown = 0;
        QTimer::singleShot(0, &Dialog(), [&] {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                ++shown;
                user(*dialog);
                static_cast<QDialog*>(dialog)->done(dialog->result());
            }
        });
        QString path = PictureDialog().Choose(Dialog(), request);
        EXPECT_EQ(shown, 1);
        return path;
    }
};

TEST_F(LookingForAPicture, StartsWhereItShould) {
    const QString picture = Picture(u"house.bmp", {3, 2});
    const QString folder = PathOf(u"");
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString usual = QDir(pictures).exists() ? pictures : QDir::homePath();
    const auto real = [](const QString& path) { return QDir(path).absolutePath(); };
    struct Case {
        PictureRequest request;
        QString folder;
        QStringList files;
    };
    const std::vector<Case> cases = {
        // file                    folder          starts in       with
        {{picture, u"/"_s}, folder, {picture}},           {{{}, folder + u'/'}, folder, {}},
        {{u"/no/such.bmp"_s, folder + u'/'}, folder, {}}, {{{}, {}}, usual, {}},
        {{u"/no/such.bmp"_s, u"/no/"_s}, usual, {}},
    };
    Open();
    for (const Case& tested : cases) {
        SCOPED_TRACE((tested.request.file + u' ' + tested.request.folder).toStdString());
        const QString path = Choose(tested.request, [&](const QFileDialog& dialog) {
            EXPECT_EQ(real(dialog.directory().path()), real(tested.folder));
            EXPECT_EQ(tested.files.isEmpty() ? QStringList() : dialog.selectedFiles(),
                      tested.files);
            EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
            EXPECT_EQ(dialog.defaultSuffix(), u"bmp");
        });
        EXPECT_TRUE(path.isEmpty()) << "given up";
    }
}

TEST_F(LookingForAPicture, GivesTheFullPath) {
    const QString picture = Picture(u"house.bmp", {3, 2});
    Open();
    const QString path = Choose({{}, PathOf(u"")}, [&](QFileDialog& dialog) {
        dialog.selectFile(picture);
        dialog.setResult(QDialog::Accepted);
    });
    EXPECT_EQ(path, picture);
}

TEST_F(LookingForAPicture, SpeaksTheLanguageOfTheUser) {
    struct Case {
        int language;
        QString title;
        QString bitmaps;
        QString pictures;
        QString all;
    };
    const std::vector<Case> cases = {
        {English, u"Choose a background picture"_s, u"Bitmaps (*.bmp)"_s, u"Pictures ("_s,
         u"All files (*)"_s},
        {Spanish, u"Elegir una imagen de fondo"_s, u"Mapas de bits (*.bmp)"_s, u"Imágenes ("_s,
         u"Todos los archivos (*)"_s},
    };
    for (const Case& tested : cases) {
        Open({}, tested.language);
        Choose({}, [&](const QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), tested.title);
            const QStringList filters = dialog.nameFilters();
            ASSERT_EQ(filters.size(), 3);
            EXPECT_EQ(filters[0], tested.bitmaps);
            EXPECT_EQ(dialog.selectedNameFilter(), filters[0]);
            EXPECT_TRUE(filters[1].startsWith(tested.pictures));
            for (const QStringView ending : {u"*.bmp", u"*.png", u"*.jpg", u"*.gif"}) {
                EXPECT_TRUE(filters[1].contains(ending)) << filters[1].toStdString();
            }
            EXPECT_EQ(filters[2], tested.all);
        });
    }
}

} // namespace
