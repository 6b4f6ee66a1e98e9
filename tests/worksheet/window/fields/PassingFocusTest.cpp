// The focus leaves for a moment and returns: the field is still being edited.

#include "NumberFields.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace {

enum class Errand { Menu, MenuByClick, ContextMenu, OtherWindow };

struct ErrandCase {
    const char* name;
    Errand errand;
};

void PrintTo(const ErrandCase& errand, std::ostream* out) { *out << errand.name; }

class PassingFocus : public WindowTest, public ::testing::WithParamInterface<ErrandCase> {
protected:
    PassingFocus() { Open(); }

    void LeaveAndReturn(const NumberField& field) {
        switch (GetParam().errand) {
        case Errand::Menu:
            Press(Qt::Key_F, Qt::AltModifier);
            return CloseMenus();
        case Errand::MenuByClick:
            Click(Control(u"menuBar"), {12, 8});
            return CloseMenus();
        case Errand::ContextMenu:
            return OpenContextMenu(field.name);
        case Errand::OtherWindow:
            return VisitOtherWindow();
        }
    }

private:
    void CloseMenus() {
        EXPECT_NE(QApplication::activePopupWidget(), nullptr);
        while (QApplication::activePopupWidget()) {
            Press(Qt::Key_Escape);
            Settle();
        }
        constexpr int menuBarAndTitle = 2;
        for (int i = 0; i < menuBarAndTitle; ++i) {
            Press(Qt::Key_Escape);
        }
        ActivateAgain();
    }
    void VisitOtherWindow() {
        QLineEdit other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        EXPECT_FALSE(Window().isActiveWindow());
        other.hide();
        ActivateAgain();
    }
};

INSTANTIATE_TEST_SUITE_P(Errands, PassingFocus,
                         ::testing::Values(ErrandCase{"Menu", Errand::Menu},
                                           ErrandCase{"MenuByClick", Errand::MenuByClick},
                                           ErrandCase{"ContextMenu", Errand::ContextMenu},
                                           ErrandCase{"OtherWindow", Errand::OtherWindow}),
                         [](const auto& errand) { return errand.param.name; });

TEST_P(PassingFocus, IsNotLeaving) {
    for (const NumberField& field : NumberFields) {
        SCOPED_TRACE(field.name.toString().toStdString());
        Click(field.name);
        Type(u"77");
        Press(Qt::Key_Home);
        LeaveAndReturn(field);
        Settle();
        EXPECT_EQ(FocusName(), field.name);
        EXPECT_EQ(Text(field.name), u"77");
        EXPECT_EQ(Edit(field.name).cursorPosition(), 0);
        EXPECT_EQ(Edit(field.name).selectedText(), u"");
        EXPECT_FALSE(Sheet().Dirty()) << "stored without being left";
        Type(u"1"); // continues at the same position
        EXPECT_EQ(Text(field.name), u"177");
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Delete);
    }
    EXPECT_TRUE(SettledMessages().isEmpty()) << Messages().Texts().join(u'\n').toStdString();
}

TEST_P(PassingFocus, IsNotChecked) {
    for (const NumberField& field : {NumberFields.front(), NumberFields.back()}) {
        Click(field.name);
        Paste(u"1.2.3");
        LeaveAndReturn(field);
        EXPECT_TRUE(SettledMessages().isEmpty());
        EXPECT_EQ(FocusName(), field.name);
        EXPECT_EQ(Text(field.name), u"1.2.3");
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Delete);
    }
}

TEST_P(PassingFocus, StoresOnceTheFieldIsReallyLeft) {
    Click(u"txtLoanAmount");
    Type(u"77");
    LeaveAndReturn(NumberFields.front());
    Settle();
    Tab();
    EXPECT_EQ(Text(u"txtLoanAmount"), u"$77.00");
    EXPECT_TRUE(Sheet().Dirty());
}

} // namespace
