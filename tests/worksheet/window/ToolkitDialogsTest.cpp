// What the toolkit itself shows (menus of fields, dialogs, message boxes) in the language in use.

#include "MessageBoxes.h"
#include "ToolkitTexts.h"
#include "WindowFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <set>
#include <string>
#include <vector>

namespace {

QString Plain(QString text) { return text.remove(u'&'); }

class ToolkitDialogs : public WindowTest {
protected:
    /// Each language after another one, and the first one again.
    static constexpr std::array Switches{English, Spanish, English, Spanish};

    void InEveryLanguage(const std::function<QStringList()>& read,
                         const std::array<QStringList, 2>& expected) {
        Open();
        for (const int language : Switches) {
            SwitchLanguage(language);
            EXPECT_EQ(read(), expected.at(static_cast<std::size_t>(language) - 1));
        }
    }

    QStringList MenuOf(QStringView field) {
        Enter(field);
        QWidget& control = Control(field);
        const QPoint at = control.rect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, at, control.mapToGlobal(at));
        QStringList entries;
        // The date picker's menu runs a loop of its own.
        QTimer::singleShot(0, &control, [&] {
            if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                for (const QAction* action : menu->actions()) {
                    entries += action->isSeparator() ? QStringList() : QStringList{action->text()};
                }
                menu->close();
            }
        });
        QApplication::sendEvent(&control, &event);
        WaitFor([&] { return !entries.isEmpty(); });
        ActivateAgain();
        return entries;
    }
};

const std::array<QStringList, 2> EditEntries{
    QStringList{u"&Undo\tCtrl+Z"_qs, u"&Redo\tCtrl+Y"_qs, u"Cu&t\tCtrl+X"_qs, u"&Copy\tCtrl+C"_qs,
                u"&Paste\tCtrl+V"_qs, u"Delete"_qs},
    QStringList{u"&Deshacer\tCtrl+Z"_qs, u"&Rehacer\tCtrl+Y"_qs, u"Cor&tar\tCtrl+X"_qs,
                u"&Copiar\tCtrl+C"_qs, u"&Pegar\tCtrl+V"_qs, u"Borrar"_qs}};

TEST_F(ToolkitDialogs, MenuOfAField) {
    InEveryLanguage([this] { return MenuOf(u"txtLoanAmount"); },
                    {EditEntries[0] + QStringList{u"Select All\tCtrl+A"_qs},
                     EditEntries[1] + QStringList{u"Seleccionar todo\tCtrl+A"_qs}});
}

TEST_F(ToolkitDialogs, MenuOfTheDatePicker) {
    InEveryLanguage(
        [this] { return MenuOf(u"dtNextPayment"); },
        {EditEntries[0] + QStringList{u"&Select All"_qs, u"&Step up"_qs, u"Step &down"_qs},
         EditEntries[1] + QStringList{u"&Seleccionar todo"_qs, u"&Aumentar"_qs, u"Re&ducir"_qs}});
}

TEST_F(ToolkitDialogs, FileDialogWithItsTooltips) {
    const auto read = [] {
        QFileDialog dialog;
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setFileMode(QFileDialog::ExistingFile);
        QStringList texts;
        for (const auto label : {QFileDialog::LookIn, QFileDialog::FileName, QFileDialog::FileType,
                                 QFileDialog::Accept, QFileDialog::Reject}) {
            texts.append(Plain(dialog.labelText(label)));
        }
        for (const char* button : {"backButton", "forwardButton", "toParentButton",
                                   "newFolderButton", "listModeButton", "detailModeButton"}) {
            const auto* shown = dialog.findChild<QWidget*>(QString::fromUtf8(button));
            texts += {shown->toolTip(), shown->accessibleDescription()};
        }
        return texts;
    };
    // clang-format off
    InEveryLanguage(
        read,
        {QStringList{
             u"Look in:"_qs, u"File name:"_qs, u"Files of type:"_qs, u"Open"_qs, u"Cancel"_qs,
             u"Back"_qs, u"Go back"_qs,
             u"Forward"_qs, u"Go forward"_qs,
             u"Parent Directory"_qs, u"Go to the parent directory"_qs,
             u"Create New Folder"_qs, u"Create a New Folder"_qs,
             u"List View"_qs, u"Change to list view mode"_qs,
             u"Detail View"_qs, u"Change to detail view mode"_qs},
         QStringList{
             u"Ver en:"_qs, u"Nombre de archivo:"_qs, u"Archivos de tipo:"_qs, u"Abrir"_qs, u"Cancelar"_qs,
             u"Atrás"_qs, u"Ir atrás"_qs,
             u"Siguiente"_qs, u"Ir hacia delante"_qs,
             u"Directorio superior"_qs, u"Ir al directorio superior"_qs,
             u"Crear nueva carpeta"_qs, u"Crear una nueva carpeta"_qs,
             u"Vista de lista"_qs, u"Cambiar a modo de vista de lista"_qs,
             u"Vista detallada"_qs, u"Cambiar a modo de vista detallada"_qs}});
    // clang-format on
}

TEST_F(ToolkitDialogs, PrintDialog) {
    const auto read = [] {
        const QPrintDialog dialog;
        const auto* buttons = dialog.findChild<QDialogButtonBox*>();
        QStringList texts{dialog.windowTitle(), buttons->button(QDialogButtonBox::Ok)->text(),
                          Plain(buttons->button(QDialogButtonBox::Cancel)->text())};
        for (const QLabel* label : dialog.findChildren<QLabel*>()) {
            if (label->objectName() == u"label_2" || label->objectName() == u"label_3") {
                texts.append(Plain(label->text()));
            }
        }
        return texts;
    };
    InEveryLanguage(read, {QStringList{u"Print"_qs, u"&Print"_qs, u"Cancel"_qs, u"Location:"_qs,
                                       u"Type:"_qs, u"to"_qs},
                           QStringList{u"Imprimir"_qs, u"Im&primir"_qs, u"Cancelar"_qs,
                                       u"Ubicación:"_qs, u"Tipo:"_qs, u"a"_qs}});
}

/// Notes what the toolkit asks for.
class Listener : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char* /*comment*/,
                      int /*count*/) const override {
        m_asked.insert({context, source});
        return {};
    }
    bool isEmpty() const override { return false; }
    const std::set<std::pair<std::string, std::string>>& Asked() const { return m_asked; }

private:
    mutable std::set<std::pair<std::string, std::string>> m_asked;
};

/// Every text that the dialogs ask for is known in Spanish, but for those of a choice of pages,
/// which the program does not offer.
TEST_F(ToolkitDialogs, LeaveNothingInEnglish) {
    const auto isNeverShown = [](const std::string& source) {
        return source == "Pages" || source.starts_with("Specify pages");
    };
    Open({.language = Spanish});
    ToolkitTexts texts;
    texts.Renew();
    Listener listener;
    QCoreApplication::installTranslator(&listener);
    QFileDialog files;
    files.setOption(QFileDialog::DontUseNativeDialog);
    const QPrintDialog printing;
    MenuOf(u"txtLoanAmount");
    MenuOf(u"dtNextPayment");
    EXPECT_GT(listener.Asked().size(), 100U);
    for (const auto& [context, source] : listener.Asked()) {
        EXPECT_TRUE(isNeverShown(source) ||
                    !texts.translate(context.c_str(), source.c_str(), nullptr, -1).isNull())
            << context << ": " << source;
    }
}

TEST_F(ToolkitDialogs, MessageButtons) {
    const auto read = [] {
        QStringList texts;
        const auto look = [&texts] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box) {
                for (const auto which :
                     {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
                    const auto* button = box->button(which);
                    texts += button ? QStringList{button->text()} : QStringList();
                }
                box->done(0);
            }
        };
        QTimer::singleShot(0, qApp, look);
        MessageBoxes().Show(u"Text"_qs);
        QTimer::singleShot(0, qApp, look);
        MessageBoxes().Ask({.text = u"Text"_qs, .title = u"Title"_qs, .mayCancel = true});
        return texts;
    };
    InEveryLanguage(read, {QStringList{u"OK"_qs, u"&Yes"_qs, u"&No"_qs, u"Cancel"_qs},
                           QStringList{u"Aceptar"_qs, u"&Sí"_qs, u"&No"_qs, u"Cancelar"_qs}});
}

} // namespace
