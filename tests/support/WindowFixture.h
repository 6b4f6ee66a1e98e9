#pragma once

#include "FakeMessages.h"
#include "Loan.h"

#include <QLocale>
#include <QPoint>
#include <QString>
#include <QStringView>

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <memory>
#include <stdexcept>

class QComboBox;
class QLineEdit;
class QScrollBar;

// What a failed comparison shows.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(QStringView text, std::ostream* out);

inline const QLocale UnitedStates(QLocale::English, QLocale::UnitedStates);
inline const QLocale Germany(QLocale::German, QLocale::Germany);
inline const QLocale Spain(QLocale::Spanish, QLocale::Spain);

inline constexpr int English = 1;
inline constexpr int Spanish = 2;

/// How the program is started.
struct Start {
    QLocale locale = UnitedStates;
    int language = English;
    bool termInMonths = false;
    int loansDisplayed = 5; ///< the index of the last row that shows without scrolling
    QString wallpaper = {};
    MessageDoor* messages = nullptr; ///< null: the fixture's own, which shows nothing
};

/// The main window as a user meets it: on the screen and active, on 21 November 2026, in a fixed
/// locale and language. Keys and clicks go through the window system; controls are found by name.
class WindowTest : public ::testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;
    WindowTest(const WindowTest&) = delete;
    WindowTest& operator=(const WindowTest&) = delete;
    WindowTest(WindowTest&&) = delete;
    WindowTest& operator=(WindowTest&&) = delete;

    void Open(const Start& start = {});
    /// What a window manager does once another window has been closed.
    void ActivateAgain();
    /// The window closed and gone.
    void Shut() { m_window.reset(); }
    Loan& Window() { return *m_window; }
    const Worksheet& Sheet() const { return m_window->GetWorksheet(); }
    /// The worksheet to write to, for values that a user cannot type but a kept worksheet can hold.
    Worksheet& SheetToWrite() { return m_window->GetWorksheet(); }
    FakeMessages& Door() { return m_messages; }

    /// The control of this name. Throws, naming those there are, when there is none.
    QWidget& Control(QStringView name) const;
    template <class Kind>
    Kind& Get(QStringView name) const {
        if (auto* control = qobject_cast<Kind*>(&Control(name))) {
            return *control;
        }
        throw std::runtime_error("of another kind: " + name.toString().toStdString());
    }
    QLineEdit& Edit(QStringView name) const;
    QComboBox& List(QStringView name) const;
    QScrollBar& Bar() const;
    /// What a field, list, label or button shows.
    QString Text(QStringView name) const;
    /// The name of the control that has the keyboard.
    static QString FocusName();

    /// A click into the middle of a control, or at a place of it.
    void Click(QStringView name) { Click(Control(name)); }
    void Click(const QWidget& control) { Click(control, control.rect().center()); }
    void Click(const QWidget& control, QPoint at);
    QPoint PlaceInWindow(const QWidget& control, QPoint at) const;
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Tab() { Press(Qt::Key_Tab); }
    void BackTab() { Press(Qt::Key_Backtab, Qt::ShiftModifier); }
    /// Key by key, as far as keys give these characters.
    void Type(QStringView text);
    /// Over what is selected.
    void Paste(QStringView text);
    /// Puts the keyboard into a field by a click, unless it is there.
    void Enter(QStringView name);
    /// Enters a field, types and goes on with the tab key.
    void Fill(QStringView name, QStringView text);
    /// Opens a list by a click and picks the entry with this index.
    void Choose(QStringView name, int index);
    /// One notch of the wheel over this control; down is negative.
    void Wheel(const QWidget& control, int notches);
    /// A language entry of the menu, 1 and up.
    void SwitchLanguage(int number);

    /// 100,000 at 6 % over 30 years, monthly, typed into the first row.
    void FillFirstOffer();

    /// Whether this comes true before long.
    static bool WaitFor(const std::function<bool()>& condition);
    /// Lets everything happen that is on its way.
    static void Settle();
    /// Opens the context menu of a control and closes it again.
    void OpenContextMenu(QStringView name);
    /// The messages there are once everything has happened.
    QStringList SettledMessages();

    static QString RowName(QStringView control, int row);
    /// The distance of two rows.
    int RowHeight() const;
    int RowCount() const;

private:
    FakeMessages m_messages;
    std::unique_ptr<Loan> m_window;
};
