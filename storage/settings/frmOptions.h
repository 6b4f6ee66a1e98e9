#pragma once

#include "ClickSwallower.h"
#include "Settings.h"
#include "StorageNames.h"

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class frmOptions;
}

class QRadioButton;

namespace quend::window {
class MessageQueue;
}

namespace quend::storage {

class PictureChooser;

/// The settings dialog. Works on a copy: it neither saves the settings nor changes the main window.
/// After OK the copy holds the user's choices, otherwise the initial settings.
///
/// A number of offers out of range is rejected when its field loses focus, or by OK. Cancel and the
/// close box always work.
class frmOptions : public QDialog {
    Q_OBJECT

public:
    frmOptions(Settings settings, MessageQueue& messages, PictureChooser& pictures,
               QWidget* parent);
    Q_DISABLE_COPY_MOVE(frmOptions)
    ~frmOptions() override;

    const Settings& Chosen() const { return m_settings; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Form_Load();
    void SelectTermUnit(QRadioButton& selected);
    void Wire();
    void OKButton_Click();
    void CancelButton_Click();
    void cmdWallpaper_Click();
    void txtWallpaper_Left();
    bool txtLoans_Validate();
    void OnFocusChanged(const QWidget* from, const QWidget* to);
    void ReturnToLoans();
    void ShowPreview();

    std::unique_ptr<Ui::frmOptions> m_ui;
    Settings m_settings;
    MessageQueue* m_messages;
    PictureChooser* m_pictures;
    QString m_pictureFolder;
    QString m_previewed;
    ClickSwallower m_clicks;
};

} // namespace quend::storage
