// Clearing, duplicating and moving whole offers.

#include "EnterValues.h"
#include "OfferRows.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

class RowCommands : public WindowTest {
protected:
    /// Offers "A", "B" and "C" at 5, 6 and 7 %.
    void OpenThree() {
        Open();
        SheetToWrite().SetLoanAmount(Money::FromDouble(100'000));
        Window().Rows().GrowTo(Row{3});
        for (int row = 0; row < 3; ++row) {
            EnterOffer(SheetToWrite(), Row{row},
                       {{FieldId::InterestRate, Rate::FromFraction(0.05 + row * 0.01)},
                        {FieldId::Term, Months{360}},
                        {FieldId::Frequency, FrequencyCode(u"M"_s)},
                        {FieldId::Who, QString(QChar(u'A' + row))}});
        }
    }
    QString Lenders() const {
        QString lenders;
        for (int row = 0; row <= Sheet().HighestOfferRow().value; ++row) {
            const QString who = Text(RowName(u"txtWho", row));
            lenders += who.isEmpty() ? u"-"_s : who;
        }
        return lenders;
    }
    QAction& Entry(QStringView name) { return *Window().findChild<QAction*>(name.toString()); }
};

TEST_F(RowCommands, ActOnTheRowWithTheFocus) {
    struct Case {
        const char* entry;
        QString focus;
        QString lenders;
        QString focusAfter;
    };
    const Case cases[] = {
        {"mnuEditClearOffer", u"txtPoints(1)"_s, u"A-C-"_s, u"txtPoints(1)"_s},
        {"mnuEditDuplicateOffer", u"txtPoints(1)"_s, u"ABCB"_s, u"txtInterestRate(3)"_s},
        {"mnuEditMoveUp", u"txtPoints(1)"_s, u"BAC-"_s, u"txtPoints(0)"_s},
        {"mnuEditMoveDown", u"txtPoints(1)"_s, u"ACB-"_s, u"txtPoints(2)"_s},
        {"mnuEditMoveUp", u"txtPoints(0)"_s, u"ABC-"_s, u"txtPoints(0)"_s},
        {"mnuEditMoveDown", u"txtWho(2)"_s, u"AB-C"_s, u"txtWho(3)"_s},
        {"mnuEditClearOffer", u"txtLoanAmount"_s, u"ABC-"_s, u"txtLoanAmount"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.entry);
        OpenThree();
        Enter(c.focus);
        Entry(QString::fromLatin1(c.entry)).trigger();
        EXPECT_EQ(Lenders().first(4), c.lenders);
        EXPECT_EQ(FocusName(), c.focusAfter);
        const bool changed = c.lenders != u"ABC-";
        if (changed) {
            Press(Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(Lenders().first(4), u"ABC-");
        }
        Shut();
    }
}

TEST_F(RowCommands, StoreWhatIsBeingTypedFirst) {
    OpenThree();
    Enter(u"txtInterestRate(1)");
    Type(u"4");
    Press(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(Lenders().first(3), u"BAC");
    EXPECT_EQ(Sheet().OfferOfRow(Row{0}).InterestRate(), Rate::FromFraction(0.04));
    EXPECT_EQ(FocusName(), u"txtInterestRate(0)");
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"4");
    Press(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(Lenders().first(3), u"ABC");
    EXPECT_EQ(FocusName(), u"txtInterestRate(1)"); // the released key is no arrow key of its field
}

TEST_F(RowCommands, CopyEverythingEntered) {
    OpenThree();
    EnterOffer(SheetToWrite(), Row{1}, {{FieldId::Costs, Money::FromDouble(950)}});
    Enter(u"txtPoints(1)");
    Entry(u"mnuEditDuplicateOffer").trigger();
    EXPECT_TRUE(Sheet().OfferOfRow(Row{3}).HasSameEntries(Sheet().OfferOfRow(Row{1})));
    EXPECT_EQ(Text(u"txtPandI(3)"), Text(u"txtPandI(1)"));
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_F(RowCommands, AreOfferedOnlyWherePossible) {
    OpenThree();
    Window().Rows().GrowTo(Row{15});
    auto& menu = *Window().findChild<QMenu*>(u"mnuEdit"_s);
    const auto enabled = [&](QStringView focus, bool byKeys = false) {
        Enter(focus);
        if (byKeys) { // the menu bar takes the focus
            Window().menuBar()->setFocus(Qt::MenuBarFocusReason);
        }
        Q_EMIT menu.aboutToShow();
        QString flags;
        for (const QStringView entry : {u"mnuEditClearOffer", u"mnuEditDuplicateOffer",
                                        u"mnuEditMoveUp", u"mnuEditMoveDown"}) {
            flags += Entry(entry).isEnabled() ? u'1' : u'0';
        }
        Q_EMIT menu.aboutToHide();
        return flags;
    };
    EXPECT_EQ(enabled(u"txtPoints(0)"), u"1101");
    EXPECT_EQ(enabled(u"txtPoints(1)"), u"1111");
    EXPECT_EQ(enabled(u"txtPoints(1)", true), u"1111");
    EXPECT_EQ(enabled(u"txtPoints(3)"), u"0010");
    EXPECT_EQ(enabled(u"txtPoints(4)"), u"0000");
    EXPECT_EQ(enabled(u"txtLoanAmount"), u"0000");
}

TEST_F(RowCommands, AreInTheContextMenuOfTheRow) {
    OpenThree();
    QWidget* row = Control(u"txtWho(1)").parentWidget();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, row->mapToGlobal(QPoint()));
    QApplication::sendEvent(row, &event);
    auto* menu = row->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
        if (action->text() == Entry(u"mnuEditClearOffer").text()) {
            action->trigger();
        }
    }
    EXPECT_EQ(Lenders().first(3), u"A-C");
    menu->close();
}

} // namespace
