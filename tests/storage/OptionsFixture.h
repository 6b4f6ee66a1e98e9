#pragma once

#include "FakeMessages.h"
#include "Messages.h"
#include "PictureChooser.h"
#include "UserHands.h"
#include "WindowFixture.h"
#include "frmOptions.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

class QImage;

/// Stands in for the user looking for a picture: answers with `answer` and keeps what was asked.
class FakePictures : public PictureChooser {
public:
    QString Choose(QWidget& /*parent*/, const PictureRequest& request) override {
        requests.push_back(request);
        return answer;
    }
    QString answer;
    std::vector<PictureRequest> requests;
};

/// The dialog as a user meets it: on the screen, active, in a fixed language.
class OptionsDialog : public ::testing::Test, protected UserHands {
protected:
    OptionsDialog();

    void Open(const Settings& settings = {}, int language = English);
    frmOptions& Dialog() { return *m_dialog; }

    /// Into the field, whose text is replaced.
    void TypeInto(QStringView name, QStringView text);
    /// The messages there are once everything has happened.
    QStringList SettledMessages();

    /// A file of this name in a folder of the test's own.
    QString PathOf(QStringView file) const { return m_folder.filePath(file.toString()); }
    /// A picture of one colour, written in the format of its ending.
    QString Picture(QStringView file, QSize size) const;
    QString File(QStringView file, const QByteArray& bytes) const;

    FakeMessages m_door;
    Messages m_messages{m_door};
    FakePictures m_pictures;

private:
    QWidget& UsersWindow() const override { return *m_dialog; }

    QTemporaryDir m_folder;
    std::unique_ptr<frmOptions> m_dialog;
};

/// The defaults, but for a picture and the folder where the next is looked for.
inline Settings WithPicture(const QString& picture, const QString& folder = {}) {
    Settings settings;
    settings.wallpaper = picture;
    settings.wallpaperDirectory = folder;
    return settings;
}

/// What text 88 says.
inline const QString RefusedInEnglish =
    QStringLiteral("Please enter a number of offers from 1 to 15.");
inline const QString RefusedInSpanish = QStringLiteral("Escriba un número de ofertas del 1 al 15.");
