// Other features: language, options, printing, help and similar.

#include "Language.h"
#include "QuendNames.h"
#include "RandomUser.h"
#include "StepTexts.h"
#include "TextNumbers.h"
#include "frmPrint.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

/// Switches to a certain language, or to the other one.
void RandomUser::SwitchLanguage(unsigned a, unsigned /*b*/) {
    const View before = Look();
    const bool spanish = a % 4 < 2 ? a % 2 == 1 : !m_model.spanish;
    const bool switches = Commit(before); // its messages are in the previous language
    Trigger(spanish ? "mnuToolsLanguageOpt(2)" : "mnuToolsLanguageOpt(1)");
    if (switches) {
        m_model.spanish = spanish;
    }
}

namespace {

QString PathFor(unsigned number, const QString& picture) {
    switch (number % 5) {
    case 0:
        return u"/no/such/picture.bmp"_s;
    case 1:
    case 2:
        return picture;
    default:
        return {};
    }
}

} // namespace

void RandomUser::OpenOptions(unsigned a, unsigned b) {
    const View before = Look();
    if (IsRefused(before)) {
        Trigger("mnuToolsOptions");
        Commit(before);
        return;
    }
    const QString path = PathFor(a, m_program.Picture());
    const QString number = b % 9 == 0 ? QString::number(b % 100) : QString::number(b % 15 + 1);
    const bool inRange = number.toInt() >= 1 && number.toInt() <= 15;
    const bool inMonths = b % 2 == 0;
    bool taken = false;
    InDialog([&] { Trigger("mnuToolsOptions"); },
             [&](QDialog& dialog) {
                 const auto edit = [&](const char* name, const QString& text) {
                     auto* field = dialog.findChild<QLineEdit*>(QString::fromLatin1(name));
                     field->setFocus();
                     QTest::keyClick(dialog.windowHandle(), Qt::Key_A, Qt::ControlModifier);
                     QTest::keyClick(dialog.windowHandle(), Qt::Key_Delete);
                     for (const QChar c : text) {
                         QTest::keyClick(dialog.windowHandle(), c.toLatin1());
                     }
                 };
                 edit("txtWallpaper", path);
                 auto* option =
                     dialog.findChild<QRadioButton*>(inMonths ? u"optTerm(0)"_s : u"optTerm(1)"_s);
                 option->click();
                 edit("txtLoans", number);
                 if (a % 7 == 0) {
                     QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
                     return;
                 }
                 QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
                 if (inRange) {
                     taken = true;
                 } else {
                     m_model.Expect(TextNumber::OffersRefused);
                 }
             });
    Commit(before);
    if (!taken) {
        return;
    }
    if (path.startsWith(u"/no") && Window().GetSettings().wallpaper.isEmpty()) {
        m_model.Expect(TextNumber::PictureNotLoaded, u' ' + path);
    }
    m_model.inMonths = inMonths;
    m_displayed = number.toUInt();
    m_model.GrowTo(m_displayed);
    Reenter();
}

/// Prints, with or without a preview, to the end, cancels at one of the possible moments, or does
/// not start.
void RandomUser::Print(unsigned a, unsigned b) {
    const View before = Look();
    const unsigned cancelAt = a % 8; // 1 to 4: while printing
    unsigned yields = 0;
    m_program.printer.answer = cancelAt != 0;
    m_program.printer.printed.clear();
    m_program.whilePrinting = [&] {
        if (++yields == cancelAt) {
            m_program.Job()->reject();
        }
    };
    m_program.printer.whilePreviewing = [](QWidget& parent, const Preview& preview) {
        return preview.print(parent);
    };
    Trigger(b % 2 == 0 ? "mnuFilePrint" : "mnuFilePrintPreview");
    const bool starts = Commit(before) && cancelAt != 0;
    if ((m_program.Job() != nullptr) != starts) {
        Complain(u"a job is %1"_s.arg(starts ? u"missing"_s : u"there"_s));
    }
    if (!QTest::qWaitFor([this] { return m_program.Job() == nullptr; })) {
        Complain(u"the job does not end"_s);
    }
    m_program.whilePrinting = [] {};
    const std::size_t printed = starts && cancelAt > 4 ? 1 : 0;
    if (m_program.printer.printed.size() != printed) {
        Complain(u"%1 documents were printed"_s.arg(m_program.printer.printed.size()));
    }
    m_program.printer.printed.clear();
    m_program.printer.previewed.clear();
    m_program.printer.titles.clear();
}

void RandomUser::OpenAbout(unsigned a, unsigned /*b*/) {
    InDialog([this] { Trigger("mnuHelpAbout"); },
             [&](QDialog& dialog) {
                 if (a % 3 == 0) {
                     dialog.findChild<QPushButton*>(u"cmdSysInfo"_s)->click();
                     m_model.Expect(TextNumber::NoSystemInfo);
                 }
                 QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
             });
}

void RandomUser::OpenHelp(unsigned a, unsigned /*b*/) {
    switch (a % 3) {
    case 0:
        Trigger("mnuHelpContents");
        break;
    case 1:
        Trigger("mnuHelpSearch");
        break;
    default:
        Press(Qt::Key_F1);
    }
    Settle();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != &Window() && window->isVisible()) {
            window->close();
        }
    }
    m_program.Activate();
}

namespace {

bool IsAsking() {
    const QCursor* cursor = QApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WhatsThisCursor;
}

} // namespace

/// The next click explains a control and does not use it.
void RandomUser::AskWhatsThis(unsigned a, unsigned /*b*/) {
    const Field field = AnyInput(a);
    Press(Qt::Key_F1, Qt::ShiftModifier);
    if (!IsAsking()) {
        Complain(u"What's This does not begin"_s);
    }
    if (!Click(*Control(field))) {
        Press(Qt::Key_Escape);
    }
    Settle();
    if (IsAsking()) {
        Complain(u"What's This does not end"_s);
    }
    Press(Qt::Key_Escape);
    if (FocusField() != m_edited) {
        Complain(u"What's This has moved the focus"_s);
    }
}

void RandomUser::Share(unsigned a, unsigned /*b*/) {
    const View before = Look();
    const int sent = m_program.mail.sent;
    m_program.mail.signsOn = a % 2 == 0;
    if (!Click(*Named(u"cmdShare"_s))) {
        return;
    }
    const bool shared = Follow(before) && m_program.mail.signsOn;
    if (m_program.mail.sent != sent + (shared ? 1 : 0)) {
        Complain(u"a recommendation is %1"_s.arg(shared ? u"missing"_s : u"sent"_s));
    }
}

void RandomUser::Resize(unsigned a, unsigned b) {
    const QSize least = Window().sizeHint(); // a click needs a visible control
    Window().resize(least.width() + static_cast<int>(a % 600),
                    least.height() + static_cast<int>(b % 400));
}

/// Clicks something that has no action: captions, results, the frame.
void RandomUser::ClickAnywhere(unsigned a, unsigned b) {
    const QPoint place(static_cast<int>(a % static_cast<unsigned>(Window().width())),
                       static_cast<int>(b % static_cast<unsigned>(Window().height())));
    const QWidget* there = Window().childAt(place);
    if (there == nullptr || !there->isEnabled() || FieldOf(there)) {
        return;
    }
    const bool takesFocus = (there->focusPolicy() & Qt::ClickFocus) != 0;
    const bool isResult = qobject_cast<const QLineEdit*>(there) != nullptr;
    if (takesFocus != isResult || there->inherits("QMenuBar") || there->inherits("QScrollBar") ||
        there->inherits("QAbstractButton")) {
        return;
    }
    const View before = Look();
    ClickAt(place);
    if (isResult) {
        Follow(before);
    }
}
