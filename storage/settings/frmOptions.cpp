#include "frmOptions.h"

#include "CMouse.h"
#include "Captions.h"
#include "FailureReport.h"
#include "Language.h"
#include "MessageQueue.h"
#include "PictureDialog.h"
#include "SettingsStore.h"
#include "TextNumbers.h"
#include "ui_frmOptions.h"

#include <QApplication>
#include <QFileInfo>
#include <QPointer>

#include <utility>

namespace quend::storage {

namespace {

std::unique_ptr<Ui::frmOptions> FormOf(frmOptions& dialog) {
    auto form = std::make_unique<Ui::frmOptions>();
    form->setupUi(&dialog);
    // Object names that are not possible in a form.
    form->udLoans->Edit().setObjectName(QStringLiteral("txtLoans"));
    form->udLoans->Edit().setProperty(TextProperty::Name, TextNumber::OffersEdit);
    form->optTermMonths->setObjectName(QStringLiteral("optTerm(0)"));
    form->optTermYears->setObjectName(QStringLiteral("optTerm(1)"));
    return form;
}

/// The folder of a file, including the separator.
QString FolderOf(const QString& file) { return file.chopped(QFileInfo(file).fileName().size()); }

} // namespace

frmOptions::frmOptions(Settings settings, MessageQueue& messages, PictureChooser& pictures,
                       QWidget* parent)
    : QDialog(parent), m_ui(FormOf(*this)), m_settings(std::move(settings)), m_messages(&messages),
      m_pictures(&pictures) {
    Form_Load();
    Wire();
}

/// Controls emit focus signals while they are destroyed; disconnect first.
frmOptions::~frmOptions() {
    disconnect(qApp, nullptr, this, nullptr);
    for (const QObject* control : findChildren<QObject*>()) {
        disconnect(control, nullptr, this, nullptr);
    }
}

void frmOptions::Form_Load() {
    ApplyTexts(*this, m_settings.termInMonths ? TermUnit::Months : TermUnit::Years);
    m_ui->udLoans->SetRange(FewestOffersDisplayed, MostOffersDisplayed);
    m_ui->udLoans->SetNumber(m_settings.loansDisplayed + 1);
    m_ui->udLoans->selectAll();
    SelectTermUnit(m_settings.termInMonths ? *m_ui->optTermMonths : *m_ui->optTermYears);
    m_ui->txtWallpaper->setText(m_settings.wallpaper);
    m_pictureFolder = m_settings.wallpaperDirectory;
    ShowPreview();
}

/// The tab key goes to the selected option; Qt does this only after the first selection.
void frmOptions::SelectTermUnit(QRadioButton& selected) {
    for (QRadioButton* option : {m_ui->optTermMonths, m_ui->optTermYears}) {
        option->setFocusPolicy(option == &selected ? Qt::StrongFocus : Qt::ClickFocus);
    }
    selected.setChecked(true);
}

void frmOptions::Wire() {
    const auto guarded = [this](void (frmOptions::*handler)()) {
        return [this, handler] {
            FailureReport(*m_messages).Guard([this, handler] { (this->*handler)(); });
        };
    };
    connect(m_ui->OKButton, &QPushButton::clicked, this, guarded(&frmOptions::OKButton_Click));
    connect(m_ui->CancelButton, &QPushButton::clicked, this,
            guarded(&frmOptions::CancelButton_Click));
    connect(m_ui->cmdWallpaper, &QToolButton::clicked, this,
            guarded(&frmOptions::cmdWallpaper_Click));
    connect(m_ui->txtWallpaper, &QLineEdit::editingFinished, this,
            guarded(&frmOptions::txtWallpaper_Left));
    connect(qApp, &QApplication::focusChanged, this, &frmOptions::OnFocusChanged);
    for (QAbstractButton* button : findChildren<QAbstractButton*>()) {
        button->installEventFilter(this);
    }
}

void frmOptions::OKButton_Click() {
    if (!txtLoans_Validate()) {
        return;
    }
    m_settings.loansDisplayed = *m_ui->udLoans->Number() - 1;
    m_settings.termInMonths = m_ui->optTermMonths->isChecked();
    m_settings.wallpaper = m_ui->txtWallpaper->text();
    m_settings.wallpaperDirectory = m_pictureFolder;
    accept();
}

void frmOptions::CancelButton_Click() { reject(); }

void frmOptions::cmdWallpaper_Click() {
    const QString path =
        m_pictures->Choose(*this, {.file = m_ui->txtWallpaper->text(), .folder = m_pictureFolder});
    if (path.isEmpty()) {
        return;
    }
    CMouse mouse;
    mouse.SetPointer(MousePointer::Hourglass);
    m_ui->txtWallpaper->setText(path);
    m_pictureFolder = FolderOf(path);
    ShowPreview();
}

void frmOptions::txtWallpaper_Left() {
    if (m_ui->txtWallpaper->text() != m_previewed) {
        ShowPreview();
    }
}

void frmOptions::ShowPreview() {
    m_previewed = m_ui->txtWallpaper->text();
    m_ui->picWallpaper->ShowFile(m_previewed);
}

/// False when the number is rejected: a message appears and the focus returns to the field.
bool frmOptions::txtLoans_Validate() {
    if (m_ui->udLoans->Number()) {
        return true;
    }
    ReturnToLoans();
    m_messages->Post(GetResourceText(TextNumber::OffersRefused), [dialog = QPointer(this)] {
        if (dialog) { // Cancel may have closed it meanwhile
            dialog->ReturnToLoans();
        }
    });
    return false;
}

void frmOptions::ReturnToLoans() {
    m_ui->udLoans->setFocus(Qt::OtherFocusReason);
    m_ui->udLoans->selectAll();
}

/// Menus, message boxes and other programs are not controls of this dialog: moving the focus there
/// does not leave the field.
void frmOptions::OnFocusChanged(const QWidget* /*from*/, const QWidget* to) {
    const bool leaves =
        to != nullptr && to->window() == this && to != m_ui->udLoans && to != m_ui->CancelButton;
    if (leaves && !txtLoans_Validate() && QGuiApplication::mouseButtons() != Qt::NoButton) {
        // The click that moved the focus has not reached its control yet.
        m_clicks.SwallowNext();
    }
}

/// An access key presses its button without moving the focus.
bool frmOptions::eventFilter(QObject* watched, QEvent* event) {
    return event->type() == QEvent::Shortcut && watched != m_ui->CancelButton &&
           !txtLoans_Validate();
}

} // namespace quend::storage
