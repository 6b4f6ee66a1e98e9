#pragma once

#include "FakeMessages.h"
#include "MessageQueue.h"
#include "PictureDialog.h"
#include "QuendNames.h"
#include "UserInput.h"
#include "WindowFixture.h"
#include "frmOptions.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

class QImage;

/// Replaces the picture dialog: returns `answer` and records the request.
class FakePictures : public PictureChooser {
public:
    QString Choose(QWidget& /*parent*/, const PictureRequest& request) override {
        requests.push_back(request);
        return answer;
    }
    QString answer;
    std::vector<PictureRequest> requests;
};

/// The dialog as a user sees it: on the screen, active, in a fixed language.
class OptionsDialog : public ::testing::Test, protected UserInput {
protected:
    OptionsDialog();

    void Open(const Settings& settings = {}, int language = English);
    frmOptions& Dialog() { return *m_dialog; }

    /// Replaces the text of the field.
    void TypeInto(QStringView name, QStringView text);
    /// The messages after all pending events.
    QStringList SettledMessages();

    /// The path of this file name in the test's folder.
    QString PathOf(QStringView file) const { return m_folder.filePath(file.toString()); }
    /// A picture of one colour, in the format of its extension.
    QString Picture(QStringView file, QSize size) const;
    QString File(QStringView file, const QByteArray& bytes) const;

    FakeMessages m_boxes;
    MessageQueue m_messages{m_boxes};
    FakePictures m_pictures;

private:
    QWidget& UsersWindow() const override { return *m_dialog; }

    QTemporaryDir m_folder;
    std::unique_ptr<frmOptions> m_dialog;
};

/// The defaults, except for a picture and the folder where the next search starts.
inline Settings WithPicture(const QString& picture, const QString& folder = {}) {
    Settings settings;
    settings.wallpaper = picture;
    settings.wallpaperDirectory = folder;
    return settings;
}

/// The content of TextNumber::OffersRefused.
inline const QString RefusedInEnglish =
    QStringLiteral("Please enter a number of offers from 1 to 15.");
inline const QString RefusedInSpanish = QStringLiteral("Escriba un número de ofertas del 1 al 15.");
