// Qt's own menus of fields, dialogs and message boxes are in the current language.

#include "MessageBoxes.h"
#include "QtTexts.h"
#include "QuendNames.h"
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

using namespace Qt::StringLiterals;

namespace {

QString Plain(QString text) { return text.remove(u'&'); }

class QtDialogs : public WindowTest {
protected:
    /// Every change between languages, and back to the first.
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
        // The date picker's menu runs a nested event loop.
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
    QStringList{u"&Undo\tCtrl+Z"_s, u"&Redo\tCtrl+Y"_s, u"Cu&t\tCtrl+X"_s, u"&Copy\tCtrl+C"_s,
                u"&Paste\tCtrl+V"_s, u"Delete"_s},
    QStringList{u"&Deshacer\tCtrl+Z"_s, u"&Rehacer\tCtrl+Y"_s, u"Cor&tar\tCtrl+X"_s,
                u"&Copiar\tCtrl+C"_s, u"&Pegar\tCtrl+V"_s, u"Borrar"_s}};

TEST_F(QtDialogs, MenuOfAField) {
    InEveryLanguage([this] { return MenuOf(u"txtLoanAmount"); },
                    {EditEntries[0] + QStringList{u"Select All\tCtrl+A"_s},
                     EditEntries[1] + QStringList{u"Seleccionar todo\tCtrl+A"_s}});
}

TEST_F(QtDialogs, MenuOfTheDatePicker) {
    InEveryLanguage(
        [this] { return MenuOf(u"dtNextPayment"); },
        {EditEntries[0] + QStringList{u"&Select All"_s, u"&Step up"_s, u"Step &down"_s},
         EditEntries[1] + QStringList{u"&Seleccionar todo"_s, u"&Aumentar"_s, u"Re&ducir"_s}});
}

TEST_F(QtDialogs, FileDialogWithItsTooltips) {
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
             u"Look in:"_s, u"File name:"_s, u"Files of type:"_s, u"Open"_s, u"Cancel"_s,
             u"Back"_s, u"Go back"_s,
             u"Forward"_s, u"Go forward"_s,
             u"Parent Directory"_s, u"Go to the parent directory"_s,
             u"Create New Folder"_s, u"Create a New Folder"_s,
             u"List View"_s, u"Change to list view mode"_s,
             u"Detail View"_s, u"Change to detail view mode"_s},
         QStringList{
             u"Ver en:"_s, u"Nombre de archivo:"_s, u"Archivos de tipo:"_s, u"Abrir"_s, u"Cancelar"_s,
             u"Atrás"_s, u"Ir atrás"_s,
             u"Siguiente"_s, u"Ir hacia delante"_s,
             u"Directorio superior"_s, u"Ir al directorio superior"_s,
             u"Crear nueva carpeta"_s, u"Crear una nueva carpeta"_s,
             u"Vista de lista"_s, u"Cambiar a modo de vista de lista"_s,
             u"Vista detallada"_s, u"Cambiar a modo de vista detallada"_s}});
    // clang-format on
}

TEST_F(QtDialogs, PrintDialog) {
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
    InEveryLanguage(read, {QStringList{u"Print"_s, u"&Print"_s, u"Cancel"_s, u"Location:"_s,
                                       u"Type:"_s, u"to"_s},
                           QStringList{u"Imprimir"_s, u"Im&primir"_s, u"Cancelar"_s,
                                       u"Ubicación:"_s, u"Tipo:"_s, u"a"_s}});
}

/// Records the texts that Qt asks for.
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

/// Every text of the dialogs has a Spanish translation, except those for choosing pages, which the
/// program does not offer.
TEST_F(QtDialogs, LeaveNothingInEnglish) {
    const auto isNeverShown = [](const std::string& source) {
        return source == "Pages" || source.starts_with("Specify pages");
    };
    Open({.language = Spanish});
    QtTexts texts;
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

TEST_F(QtDialogs, MessageButtons) {
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
        MessageBoxes().Show(u"Text"_s);
        QTimer::singleShot(0, qApp, look);
        MessageBoxes().Ask({.text = u"Text"_s, .title = u"Title"_s, .mayCancel = true});
        return texts;
    };
    InEveryLanguage(read, {QStringList{u"OK"_s, u"&Yes"_s, u"&No"_s, u"Cancel"_s},
                           QStringList{u"Aceptar"_s, u"&Sí"_s, u"&No"_s, u"Cancelar"_s}});
}

} // namespace
