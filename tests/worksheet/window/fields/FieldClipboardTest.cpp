// Copying and pasting in the draggable fields, and their context menu.

#include "DragFixture.h"
#include "Language.h"
#include "QuendNames.h"
#include "TextNumbers.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString Clipped() { return QApplication::clipboard()->text(); }
void Clip(QStringView text) { QApplication::clipboard()->setText(text.toString()); }

class FieldClipboard : public DragTest {
protected:
    FieldClipboard() {
        Open();
        FillOffers();
        Clip(u"nothing yet");
    }

    void Copy() { Press(Qt::Key_C, Qt::ControlModifier); }
    void PasteClipped() { Press(Qt::Key_V, Qt::ControlModifier); }

    /// Opens a field's menu by keyboard, inspects it, and closes it.
    void InMenu(QStringView field, const std::function<void(const QMenu&)>& look) {
        Enter(field);
        QWidget& control = Control(field);
        const QPoint at = control.rect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, at, control.mapToGlobal(at));
        QApplication::sendEvent(&control, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        look(*menu);
        menu->close();
        ActivateAgain();
        EXPECT_EQ(FocusName(), field); // opening a menu does not leave the field
    }

    static QStringList Entries(const QMenu& menu) {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator()) {
                texts.append(action->text().section(u'\t', 0, 0));
            }
        }
        return texts;
    }

    static QAction& Entry(const QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions()) {
            if (action->text() == text) {
                return *action;
            }
        }
        throw std::runtime_error("no entry " + text.toStdString());
    }
};

TEST_F(FieldClipboard, TheKeysMoveTheSameValuesAsTheMouse) {
    struct {
        QStringView field;
        QStringView copied;
        QStringView target;
        QStringView display;
    } const table[]{
        {u"txtPoints(0)", u"1.5", u"txtPoints(3)", u"1.500"},
        {u"txtPoints(1)", u"0", u"txtPoints(0)", u""},
        {u"txtInterestRate(0)", u"0.065", u"txtInterestRate(3)", u"6.500%"},
        {u"txtActualPayment(0)", u"700", u"txtActualPayment(3)", u"$700.00"},
        {u"txtWho(0)", u"Bank 1", u"txtWho(3)", u"Bank 1"},
    };
    for (const auto& row : table) {
        Enter(row.field);
        Copy();
        EXPECT_EQ(Clipped(), row.copied);
        Enter(row.target);
        PasteClipped();
        EXPECT_EQ(FocusName(), row.target);
        Tab();
        EXPECT_EQ(Text(row.target), row.display);
    }
    EXPECT_TRUE(Sheet().Dirty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(FieldClipboard, APastedValueIsStoredAtOnce) {
    Enter(u"txtInterestRate(0)");
    Copy();
    Enter(u"txtInterestRate(1)");
    PasteClipped();
    EXPECT_EQ(Sheet().OfferOfRow(Row{1}).InterestRate(), Rate::FromFraction(0.065));
    EXPECT_EQ(Text(u"txtInterestRate(1)"), u"6.5"); // the bare value, for editing
    EXPECT_EQ(Text(u"txtPandI(1)"), Text(u"txtPandI(0)"));
}

TEST_F(FieldClipboard, ARefusedValueIsReportedAndChangesNothing) {
    struct {
        QStringView copied;
        QStringView target;
        QStringView message;
    } const table[]{
        {u"txtInterestRate(1)", u"txtInterestRate(0)",
         u"“0.0625” cannot be pasted here. Please paste a number of the form nnnn.nnn"},
        {u"txtInterestRate(0)", u"txtActualPayment(0)",
         u"“0.065” cannot be pasted here. Please paste a number of the form nnnn.nn"},
        {u"txtWho(0)", u"txtPoints(0)",
         u"“Bank 1” cannot be pasted here. Please paste a number of the form nnnn.nnn"},
    };
    for (const auto& row : table) {
        Enter(row.copied);
        Copy();
        Enter(row.target);
        const QString before = Text(row.target);
        PasteClipped();
        EXPECT_EQ(SettledMessages(), QStringList{row.message.toString()});
        EXPECT_EQ(Text(row.target), before);
        EXPECT_EQ(Edit(row.target).selectedText(), before);
        Messages().Clear();
        Tab();
    }
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(FieldClipboard, TheRefusalSpeaksTheUsersLanguage) {
    SwitchLanguage(Spanish);
    Enter(u"txtInterestRate(1)");
    Copy();
    Enter(u"txtInterestRate(0)");
    PasteClipped();
    EXPECT_EQ(
        SettledMessages(),
        QStringList{u"No se puede pegar «0.0625» aquí. Pegue un número de la forma nnnn.nnn"_s});
}

TEST_F(FieldClipboard, NothingSelectedInANumberIsAllOfIt) {
    Enter(u"txtInterestRate(0)");
    Press(Qt::Key_End);
    Copy();
    EXPECT_EQ(Clipped(), u"0.065");
    Enter(u"txtInterestRate(1)");
    Press(Qt::Key_End);
    PasteClipped();
    EXPECT_EQ(Text(u"txtInterestRate(1)"), u"6.5");
}

TEST_F(FieldClipboard, APartIsText) {
    Enter(u"txtInterestRate(0)");
    Press(Qt::Key_Home);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Copy();
    EXPECT_EQ(Clipped(), u"6");
    Press(Qt::Key_End);
    PasteClipped();
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"6.56");
    EXPECT_FALSE(Sheet().Dirty()); // still being typed
}

TEST_F(FieldClipboard, AValueOverAPartIsText) {
    Enter(u"txtPoints(0)");
    Copy();
    Enter(u"txtPoints(2)"); // 2.25
    Press(Qt::Key_End);
    Press(Qt::Key_Left, Qt::ShiftModifier);
    PasteClipped();
    EXPECT_EQ(Text(u"txtPoints(2)"), u"2.21.5");
}

TEST_F(FieldClipboard, ALenderIsInsertedAtTheCaret) {
    Enter(u"txtWho(0)");
    Press(Qt::Key_Home);
    Copy(); // nothing selected means all of it
    EXPECT_EQ(Clipped(), u"Bank 1");
    Enter(u"txtWho(1)");
    Press(Qt::Key_Home);
    PasteClipped();
    EXPECT_EQ(Text(u"txtWho(1)"), u"Bank 1Bank 2");
    Press(Qt::Key_A, Qt::ControlModifier);
    PasteClipped();
    EXPECT_EQ(Text(u"txtWho(1)"), u"Bank 1");
}

TEST_F(FieldClipboard, ATextFromElsewhereIsTyped) {
    Enter(u"txtInterestRate(0)");
    Paste(u"6.25");
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"6.25");
    Tab();
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"6.250%"); // in percent
}

TEST_F(FieldClipboard, WhatIsBeingTypedIsText) {
    Enter(u"txtInterestRate(0)");
    Type(u"7");
    Press(Qt::Key_A, Qt::ControlModifier);
    Copy();
    EXPECT_EQ(Clipped(), u"7");
    Enter(u"txtInterestRate(1)");
    PasteClipped();
    EXPECT_EQ(Sheet().OfferOfRow(Row{1}).InterestRate(),
              Rate::FromFraction(0.0625)); // not stored yet
    Tab();
    EXPECT_EQ(Text(u"txtInterestRate(1)"), u"7.000%");
}

TEST_F(FieldClipboard, TheMenuStoresWhatIsBeingTypedBeforeItIsCopied) {
    const auto copy = [](const QMenu& menu) { Entry(menu, u"Copy &Value"_s).trigger(); };
    Enter(u"txtInterestRate(0)");
    Type(u"7");
    InMenu(u"txtInterestRate(0)", copy);
    EXPECT_EQ(Clipped(), u"0.07");
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).InterestRate(), Rate::FromFraction(0.07));

    Paste(u"1.2.3");
    Clip(u"as before");
    InMenu(u"txtInterestRate(0)", copy);
    EXPECT_EQ(Clipped(), u"as before");
    EXPECT_EQ(SettledMessages(), QStringList{u"Please enter a number of the form nnnn.nnn"_s});
}

TEST_F(FieldClipboard, TheMenuSpeaksTheUsersLanguage) {
    InMenu(u"txtPoints(0)", [](const QMenu& menu) {
        EXPECT_EQ(
            Entries(menu),
            (QStringList{u"&Undo"_s, u"&Redo"_s, u"Cu&t"_s, u"&Copy"_s, u"&Paste"_s, u"Delete"_s,
                         u"Select All"_s, u"Copy &Value"_s, u"Paste Va&lue"_s, u"C&lear Offer"_s,
                         u"&Duplicate Offer"_s, u"Move Offer U&p"_s, u"Move Offer Dow&n"_s}));
    });
    SwitchLanguage(Spanish);
    const QStringList text{u"&Deshacer"_s, u"&Rehacer"_s, u"Cor&tar"_s,         u"&Copiar"_s,
                           u"&Pegar"_s,    u"Borrar"_s,   u"Seleccionar todo"_s};
    InMenu(u"txtPoints(0)", [&](const QMenu& menu) {
        EXPECT_EQ(Entries(menu),
                  text + QStringList({u"Copiar &valor"_s, u"Pegar va&lor"_s, u"&Vaciar la oferta"_s,
                                      u"D&uplicar la oferta"_s, u"&Subir la oferta"_s,
                                      u"&Bajar la oferta"_s}));
    });
    InMenu(u"txtTerm(0)", [&](const QMenu& menu) { EXPECT_EQ(Entries(menu), text); });
}

TEST_F(FieldClipboard, TheMenuOffersWhatIsPossible) {
    struct {
        QStringView field;
        QStringView clipped;
        bool copies;
        bool pastes;
    } const table[]{
        {u"txtPoints(0)", u"1.5", true, true},
        {u"txtPoints(0)", u"12abc", true, false},
        {u"txtPoints(0)", u"", true, false},
        {u"txtPoints(4)", u"1.5", true, true}, // points never entered are 0
        {u"txtInterestRate(1)", u"0.0625", true, false},
        {u"txtActualPayment(4)", u"0.065", false, false},
        {u"txtActualPayment(0)", u"5.25", true, true},
        {u"txtWho(4)", u"12abc", false, true},
    };
    for (const auto& row : table) {
        if (row.clipped.isEmpty()) {
            QApplication::clipboard()->clear();
        } else {
            Clip(row.clipped);
        }
        InMenu(row.field, [&](const QMenu& menu) {
            EXPECT_EQ(Entry(menu, u"Copy &Value"_s).isEnabled(), row.copies)
                << row.field.toString().toStdString();
            EXPECT_EQ(Entry(menu, u"Paste Va&lue"_s).isEnabled(), row.pastes)
                << row.field.toString().toStdString();
        });
    }
}

TEST_F(FieldClipboard, TheMenuPastesAsADropDoes) {
    InMenu(u"txtInterestRate(0)",
           [](const QMenu& menu) { Entry(menu, u"Copy &Value"_s).trigger(); });
    EXPECT_EQ(Clipped(), u"0.065");
    Clip(u"0.07"); // from elsewhere
    InMenu(u"txtInterestRate(1)",
           [](const QMenu& menu) { Entry(menu, u"Paste Va&lue"_s).trigger(); });
    EXPECT_EQ(Sheet().OfferOfRow(Row{1}).InterestRate(), Rate::FromFraction(0.07));
    Clip(u"-");
    InMenu(u"txtPoints(1)", [](const QMenu& menu) { Entry(menu, u"Paste Va&lue"_s).trigger(); });
    EXPECT_EQ(SettledMessages(), QStringList{u"errn=13  src=Loan  desc=Type mismatch"_s});
}

TEST_F(FieldClipboard, TheMenuPastesACellAsItsValue) {
    Clip(u"0.05\r\n");
    InMenu(u"txtInterestRate(0)", [](const QMenu& menu) {
        QAction& paste = Entry(menu, GetResourceText(TextNumber::PasteValue));
        EXPECT_TRUE(paste.isEnabled());
        paste.trigger();
    });
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).InterestRate(), Rate::FromFraction(0.05));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

} // namespace
