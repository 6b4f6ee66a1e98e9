// The lender dialog over the main window.

#include "EnterValues.h"
#include "Language.h"
#include "QuendNames.h"
#include "WindowFixture.h"
#include "dlgWho.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString Contact =
    u"First Prairie Bank\r\nMs. Ñandú – 中文 \U0001F3E0\r\n\ttel. 555\u00A00100"_s;

class LenderDialog : public WindowTest {
protected:
    LenderDialog() { Open(); }

    /// Opens the dialog with `ask` and runs `user` in it. False if no dialog opened.
    bool InDialog(const std::function<void()>& ask, const std::function<void(dlgWho&)>& user) {
        bool shown = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            auto* dialog = qobject_cast<dlgWho*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                return;
            }
            look.stop();
            shown = QTest::qWaitForWindowActive(dialog);
            Settle();
            user(*dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        look.start(0);
        ask();
        Settle();
        ActivateAgain();
        return shown;
    }
    bool DoubleClick(QStringView field, const std::function<void(dlgWho&)>& user) {
        return InDialog(
            [&] {
                const QWidget& control = Control(field);
                QTest::mouseDClick(Window().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                                   PlaceInWindow(control, {12, control.height() / 2}));
            },
            user);
    }
    static QPlainTextEdit& TextOf(const dlgWho& dialog) {
        return *dialog.findChild<QPlainTextEdit*>(u"txtWho"_s);
    }
    static QPushButton& Button(const dlgWho& dialog, QStringView name) {
        return *dialog.findChild<QPushButton*>(name.toString());
    }
    static void Key(const dlgWho& dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(dialog.windowHandle(), key, modifiers);
    }
    static void Replace(const dlgWho& dialog, const QString& text) {
        Key(dialog, Qt::Key_A, Qt::ControlModifier);
        QGuiApplication::clipboard()->setText(text);
        Key(dialog, text.isEmpty() ? Qt::Key_Delete : Qt::Key_V,
            text.isEmpty() ? Qt::NoModifier : Qt::ControlModifier);
    }
    QString Who(std::size_t offer) const { return Sheet().Offer({offer}).Who(); }
};

/// A way out of the dialog, and whether it stores.
struct DialogEnd {
    const char* name;
    std::function<void(dlgWho&)> leave;
    bool stores;
};

const std::vector<DialogEnd>& DialogEnds() {
    static const std::vector<DialogEnd> ways{
        {"OK", [](dlgWho& d) { d.findChild<QPushButton*>(u"cmdOK"_s)->click(); }, true},
        {"return", [](dlgWho& d) { QTest::keyClick(d.windowHandle(), Qt::Key_Return); }, true},
        {"enter",
         [](dlgWho& d) { QTest::keyClick(d.windowHandle(), Qt::Key_Enter, Qt::KeypadModifier); },
         true},
        {"Cancel", [](dlgWho& d) { d.findChild<QPushButton*>(u"cmdCancel"_s)->click(); }, false},
        {"escape", [](dlgWho& d) { QTest::keyClick(d.windowHandle(), Qt::Key_Escape); }, false},
        {"close", [](dlgWho& d) { d.close(); }, false},
    };
    return ways;
}

TEST_F(LenderDialog, EveryWayOutStoresOrDoesNot) {
    for (const DialogEnd& way : DialogEnds()) {
        SCOPED_TRACE(way.name);
        EnterText(SheetToWrite(), {FieldId::Who, Row{1}}, u"Old Bank"_s);
        SheetToWrite().ClearDirty();
        EXPECT_TRUE(DoubleClick(u"txtWho(1)", [&](dlgWho& dialog) {
            EXPECT_EQ(TextOf(dialog).toPlainText(), u"Old Bank");
            Replace(dialog, u"New Bank"_s);
            way.leave(dialog);
            EXPECT_FALSE(dialog.isVisible());
        }));
        EXPECT_EQ(Who(1), way.stores ? u"New Bank"_s : u"Old Bank"_s);
        EXPECT_EQ(Text(u"txtWho(1)"), Who(1));
        EXPECT_EQ(Sheet().Dirty(), way.stores);
        EXPECT_EQ(FocusName(), u"txtWho(1)");
        EXPECT_FALSE(Edit(u"txtWho(1)").hasSelectedText()) << "the next key replaces nothing";
    }
}

TEST_F(LenderDialog, AnEmptyTextClearsTheLender) {
    EnterText(SheetToWrite(), {FieldId::Who, Row{0}}, u"Bank"_s);
    EXPECT_TRUE(DoubleClick(u"txtWho(0)", [](dlgWho& dialog) {
        Replace(dialog, {});
        Button(dialog, u"cmdOK").click();
    }));
    EXPECT_EQ(Who(0), u"");
    EXPECT_EQ(Text(u"txtWho(0)"), u"");
}

TEST_F(LenderDialog, AfterASortTheOfferInTheRowIsEdited) {
    EnterText(SheetToWrite(), {FieldId::Who, Row{2}}, u"Third"_s); // the only offer with an entry
    Click(u"cmdPayoffDate");
    ASSERT_EQ(Text(u"txtWho(0)"), u"Third");
    EXPECT_TRUE(DoubleClick(u"txtWho(0)", [](dlgWho& dialog) {
        EXPECT_EQ(TextOf(dialog).toPlainText(), u"Third");
        Replace(dialog, u"Changed"_s);
        Button(dialog, u"cmdOK").click();
    }));
    EXPECT_EQ(Who(2), u"Changed");
    EXPECT_EQ(Who(0), u"");
    EXPECT_EQ(Text(u"txtWho(0)"), u"Changed");
}

TEST_F(LenderDialog, F2OpensItWithWhatIsBeingTyped) {
    Enter(u"txtWho(3)");
    Type(u"Bank");
    EXPECT_TRUE(InDialog([&] { Press(Qt::Key_F2); },
                         [](dlgWho& dialog) {
                             EXPECT_EQ(TextOf(dialog).toPlainText(), u"Bank");
                             QTest::keyClicks(&TextOf(dialog), u"s"_s);
                             Key(dialog, Qt::Key_Return);
                         }));
    EXPECT_EQ(Who(3), u"Banks") << "typed at the end";
    EXPECT_EQ(FocusName(), u"txtWho(3)");
}

TEST_F(LenderDialog, OpensForADoubleClickOnALenderAlone) {
    EXPECT_FALSE(DoubleClick(u"txtPoints(0)", [](dlgWho&) {}));
    EXPECT_FALSE(InDialog([&] { Click(u"txtWho(0)"); }, [](dlgWho&) {}));
    Enter(u"txtLoanAmount");
    EXPECT_FALSE(InDialog([&] { Press(Qt::Key_F2); }, [](dlgWho&) {}));
}

TEST_F(LenderDialog, ARefusedFieldKeepsItClosed) {
    Enter(u"txtLoanAmount");
    Paste(u"12abc");
    EXPECT_FALSE(DoubleClick(u"txtWho(0)", [](dlgWho&) {}));
    EXPECT_EQ(FocusName(), u"txtLoanAmount");
    EXPECT_EQ(Text(u"txtLoanAmount"), u"12abc");
}

TEST_F(LenderDialog, LinesAndCharactersSurvive) {
    for (const QString& text :
         {Contact, u"one\ntwo"_s, u"one\rtwo"_s, u"a\u2028b\u2029c"_s, u"  blanks  "_s,
          u"\u05D0\u05D1 e\u0301 \U0001D11E"_s, QString(40'000, u'x')}) {
        EnterText(SheetToWrite(), {FieldId::Who, Row{0}}, text);
        SheetToWrite().ClearDirty();
        // Only viewed, in the row and in the dialog.
        Enter(u"txtPoints(0)");
        Enter(u"txtWho(0)");
        Tab();
        EXPECT_EQ(Who(0), text);
        EXPECT_TRUE(
            DoubleClick(u"txtWho(0)", [](dlgWho& dialog) { Button(dialog, u"cmdOK").click(); }));
        EXPECT_EQ(Who(0), text);
        EXPECT_FALSE(Sheet().Dirty());
    }
}

TEST_F(LenderDialog, EditedLinesKeepTheirCharacters) {
    EnterText(SheetToWrite(), {FieldId::Who, Row{0}}, Contact);
    EXPECT_TRUE(DoubleClick(u"txtWho(0)", [](dlgWho& dialog) {
        Key(dialog, Qt::Key_Return, Qt::ShiftModifier);
        Key(dialog, Qt::Key_Return, Qt::ControlModifier);
        QTest::keyClicks(&TextOf(dialog), u"end"_s);
        Key(dialog, Qt::Key_Return);
    }));
    EXPECT_EQ(Who(0), Contact + u"\r\n\r\nend"_s);
    // Editing in the row's field keeps the line breaks.
    Enter(u"txtWho(0)");
    Press(Qt::Key_End);
    Type(u"s");
    Tab();
    EXPECT_EQ(Who(0), Contact + u"\r\n\r\nends"_s);
}

TEST_F(LenderDialog, SpeaksTheLanguage) {
    struct Words {
        int language;
        QStringView title;
        QStringView ok;
        QStringView cancel;
    };
    for (const Words& words : {Words{English, u"Lender", u"OK", u"Cancel"},
                               Words{Spanish, u"Prestamista", u"Aceptar", u"Cancelar"}}) {
        SwitchLanguage(words.language);
        EXPECT_TRUE(DoubleClick(u"txtWho(0)", [&](dlgWho& dialog) {
            EXPECT_EQ(dialog.windowTitle(), words.title);
            EXPECT_EQ(Button(dialog, u"cmdOK").text(), words.ok);
            EXPECT_EQ(Button(dialog, u"cmdCancel").text(), words.cancel);
            auto* field = QAccessible::queryAccessibleInterface(&TextOf(dialog));
            EXPECT_EQ(field->text(QAccessible::Name), words.title);
            for (const QWidget* control : dialog.findChildren<QWidget*>()) {
                if (qobject_cast<const QPushButton*>(control)) {
                    EXPECT_GE(control->width(), control->sizeHint().width());
                }
                if (const auto* label = qobject_cast<const QLabel*>(control)) {
                    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
                }
            }
        }));
    }
}

TEST_F(LenderDialog, TabGoesFromTheTextToTheButtonsAndItGrows) {
    EXPECT_TRUE(DoubleClick(u"txtWho(0)", [](dlgWho& dialog) {
        for (const char* name : {"txtWho", "cmdOK", "cmdCancel", "txtWho"}) {
            EXPECT_EQ(FocusName(), QString(QLatin1String(name)));
            Key(dialog, Qt::Key_Tab);
        }
        const QSize before = TextOf(dialog).size();
        dialog.resize(dialog.size() + QSize(100, 80));
        Settle();
        EXPECT_EQ(TextOf(dialog).size(), before + QSize(100, 80));
        EXPECT_TRUE(TextOf(dialog).toPlainText().isEmpty()) << "the tab key types nothing";
    }));
}

TEST_F(LenderDialog, AnOfferThatIsNotThereIsAnInternalError) {
    EXPECT_THROW(dlgWho(SheetToWrite(), OfferIndex{6}, Window(), Window().Report()),
                 std::out_of_range);
}

} // namespace
