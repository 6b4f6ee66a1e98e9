// Tools, Find a Payment, and the tooltip of a payoff date that is never reached.

#include "CompareFixture.h"
#include "ComparisonOfWorksheet.h"
#include "DatePicker.h"
#include "EnterValues.h"
#include "Solving.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolTip>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A user of the dialog, by the names of its controls.
class Dialog {
public:
    explicit Dialog(QWidget& dialog) : m_user(dialog) {}

    void Pick(QStringView option) { m_user.Get<QRadioButton>(option).click(); }
    void PickLoan(int index) { m_user.Get<QComboBox>(u"cboLoan").setCurrentIndex(index); }
    void SetYears(int years) { m_user.Get<QSpinBox>(u"udYears").setValue(years); }
    void TypeDate(const QString& text) {
        auto& edit = m_user.Get<quend::window::DatePicker>(u"dtEnd").Edit();
        edit.setFocus();
        edit.selectAll();
        m_user.Type(text);
    }
    void TypePayment(QStringView text) { m_user.Fill(u"txtPayment", text); }
    QString Found() const { return m_user.Text(u"lblFound"); }
    bool MayUse() const { return m_user.Control(u"cmdUse").isEnabled(); }
    bool IsEnabled(QStringView name) const { return m_user.Control(name).isEnabled(); }
    int Loans() const { return m_user.Get<QComboBox>(u"cboLoan").count(); }
    void Use() { m_user.Get<QPushButton>(u"cmdUse").click(); }
    UserOf& User() { return m_user; }

private:
    UserOf m_user;
};

class FindPayment : public CompareTest {
protected:
    /// Runs a command that opens the dialog, which is closed at the end if it is still open.
    void InDialogOf(const std::function<void()>& command, const std::function<void(Dialog&)>& act) {
        bool opened = false;
        QTimer waiting; // the command may process events before the dialog opens
        QObject::connect(&waiting, &QTimer::timeout, &Window(), [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                return;
            }
            waiting.stop();
            opened = true;
            Dialog user(*dialog);
            user.User().Activate();
            act(user);
            if (QApplication::activeModalWidget() == dialog) {
                qobject_cast<QDialog*>(dialog)->reject();
            }
        });
        waiting.start(0);
        command();
        EXPECT_TRUE(opened);
        ActivateAgain();
        Settle();
    }
    void InDialog(const std::function<void(Dialog&)>& act) {
        InDialogOf([this] { Window().findChild<QAction*>(u"mnuToolsFindPayment"_s)->trigger(); },
                   act);
    }
    std::optional<Money> Payment(int place, int years) {
        const auto input = ToComparison(Sheet());
        return quend::comparison::LeastPaymentBy(input, place,
                                                 quend::comparison::HorizonDay(input.today, years));
    }
    /// Picks an entry of a field's context menu; false if there is no such entry.
    bool PickInMenu(QStringView field, QStringView caption) {
        Enter(field);
        QWidget& control = Control(field);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, control.rect().center(),
                                control.mapToGlobal(control.rect().center()));
        QApplication::sendEvent(&control, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) {
            return false;
        }
        QAction* found = nullptr;
        for (QAction* entry : menu->actions()) {
            found = entry->text() == caption ? entry : found;
        }
        menu->close();
        if (found != nullptr) {
            found->trigger();
        }
        return found != nullptr;
    }
    QString Hover(QStringView name) {
        QWidget& control = Control(name);
        const QPoint at = control.rect().center();
        QHelpEvent event(QEvent::ToolTip, at, control.mapToGlobal(at));
        QApplication::sendEvent(&control, &event);
        return QToolTip::text();
    }
};

TEST_F(FindPayment, AnswersEachQuestion) {
    OpenMain();
    FillSheet();
    InDialog([&](Dialog& dialog) {
        EXPECT_EQ(dialog.Loans(), 4) << "also the offer without a rate";
        EXPECT_TRUE(dialog.Found().contains(Currency(Payment(1, 5))))
            << dialog.Found().toStdString();
        dialog.SetYears(15);
        EXPECT_TRUE(dialog.Found().contains(Currency(Payment(1, 15))));
        dialog.TypeDate(u"11/21/2041"_s);
        EXPECT_TRUE(dialog.Found().contains(Currency(Payment(1, 15))));
        EXPECT_TRUE(dialog.MayUse());
        dialog.TypeDate(u"13/41/99"_s);
        EXPECT_EQ(dialog.Found(), u"Enter a date.");
        EXPECT_FALSE(dialog.MayUse());
        EXPECT_FALSE(dialog.IsEnabled(u"txtPayment"));
        dialog.Pick(u"optAmount");
        EXPECT_EQ(dialog.Found(), u"Enter a payment.");
        dialog.TypePayment(u"1500");
        EXPECT_TRUE(dialog.Found().startsWith(u"A payment of $1,500.00 to Cedar & Sons affords"))
            << dialog.Found().toStdString();
        dialog.Pick(u"optRate");
        EXPECT_TRUE(dialog.Found().startsWith(u"A payment of $1,500.00 to Cedar & Sons is enough"))
            << dialog.Found().toStdString();
        dialog.PickLoan(3);
        EXPECT_FALSE(dialog.IsEnabled(u"optRate"));
        EXPECT_TRUE(dialog.Found().startsWith(u"Pay $1,820.15 and the loan held today is"))
            << dialog.Found().toStdString();
    });
    EXPECT_FALSE(Sheet().Dirty());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(FindPayment, UseEntersTheAnswer) {
    struct {
        int loan; ///< in the list, in the order of the rows
        const char16_t* option;
        const char16_t* field; ///< that it is entered into
    } const table[]{
        {0, u"optYears", u"txtActualPayment(0)"}, {1, u"optYears", u"txtActualPayment(1)"},
        {1, u"optAmount", u"txtLoanAmount"},      {2, u"optRate", u"txtInterestRate(2)"},
        {3, u"optYears", u"txtCurActualPayment"},
    };
    for (const bool sorted : {false, true}) {
        for (const auto& row : table) {
            SCOPED_TRACE(QStringView(row.field).toUtf8().toStdString());
            OpenMain();
            FillSheet();
            if (sorted) {
                EnterInto(FieldId::ActualPayment, Row{1}, u"9000");
                SheetToWrite().SortByPayoffDate();
                SheetToWrite().ShowOffers();
                SheetToWrite().ClearDirty();
            }
            const QString before = Text(row.field);
            QString found;
            InDialog([&](Dialog& dialog) {
                dialog.PickLoan(row.loan);
                dialog.Pick(row.option);
                if (QStringView(row.option) != u"optYears") {
                    dialog.TypePayment(u"1400");
                }
                found = dialog.Found();
                ASSERT_TRUE(dialog.MayUse()) << found.toStdString();
                dialog.Use();
            });
            EXPECT_NE(Text(row.field), before);
            EXPECT_TRUE(found.contains(Text(row.field)))
                << found.toStdString() << ": " << Text(row.field).toStdString();
            EXPECT_TRUE(Sheet().Dirty());
            EndCommands();
            Shut();
        }
    }
}

TEST_F(FindPayment, ReturnShowsAnAnswerBeforeItIsUsed) {
    OpenMain();
    FillSheet();
    InDialog([&](Dialog& dialog) {
        dialog.Pick(u"optAmount");
        dialog.User().Click(u"txtPayment");
        dialog.User().Type(u"1500");
        dialog.User().Press(Qt::Key_Return);
        Settle();
        EXPECT_NE(QApplication::activeModalWidget(), nullptr);
        EXPECT_TRUE(dialog.MayUse());
        EXPECT_FALSE(Sheet().Dirty());
        dialog.User().Press(Qt::Key_Return);
        Settle();
    });
    EXPECT_TRUE(Sheet().Dirty());
}

TEST_F(FindPayment, RefusesAPaymentAndAnEmptyWorksheet) {
    OpenMain();
    InDialog([&](Dialog& dialog) {
        EXPECT_EQ(dialog.Loans(), 0);
        EXPECT_EQ(dialog.Found(), u"Enter an offer, or the balance of the loan held today, first.");
        EXPECT_FALSE(dialog.MayUse());
    });
    FillSheet();
    InDialog([&](Dialog& dialog) {
        dialog.Pick(u"optAmount");
        dialog.TypePayment(u"1.2.3");
        EXPECT_EQ(SettledMessages().size(), 1);
        EXPECT_EQ(FocusName(), u"txtPayment");
        EXPECT_EQ(dialog.User().Text(u"txtPayment"), u"1.2.3");
        EXPECT_FALSE(dialog.MayUse());
    });
    EXPECT_FALSE(Sheet().Dirty());
}

TEST_F(FindPayment, IsRefusedWhileAnEntryOfTheMainWindowIs) {
    OpenMain();
    FillSheet();
    Enter(u"txtInterestRate(0)");
    Type(u"1.2.3");
    Window().findChild<QAction*>(u"mnuToolsFindPayment"_s)->trigger();
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FindPayment, IsInTheMenuOfIntendedPayments) {
    const QString entry = u"&Find a Payment…"_s;
    OpenMain();
    FillSheet();
    struct {
        QStringView field;
        int loan; ///< in the list
    } const table[]{{u"txtActualPayment(1)", 1}, {u"txtCurActualPayment", 3}};
    for (const auto& row : table) {
        InDialogOf([&] { EXPECT_TRUE(PickInMenu(row.field, entry)); },
                   [&](Dialog& dialog) {
                       EXPECT_EQ(dialog.User().Get<QComboBox>(u"cboLoan").currentIndex(), row.loan);
                       dialog.Use();
                   });
        EXPECT_EQ(FocusName(), row.field);
        Tab();
        EXPECT_EQ(Text(row.field), Currency(Payment((row.loan + 1) % 4, 5)));
    }
    EXPECT_FALSE(PickInMenu(u"txtInterestRate(0)", entry));
    EndCommands();
    EXPECT_FALSE(PickInMenu(u"txtActualPayment(0)", entry));
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(FindPayment, TheTooltipOfAnEmptyPayoffDateSaysWhatWouldBeEnough) {
    OpenMain();
    FillSheet();
    Fill(u"txtCurActualPayment", u"100");
    Settle();
    EXPECT_EQ(Text(u"txtCurPayoffDate"), QString());
    const QString current = Hover(u"txtCurPayoffDate");
    EXPECT_TRUE(current.contains(Currency(Payment(0, 5)))) << current.toStdString();
    QToolTip::hideText();
    EndCommands();
}

} // namespace
