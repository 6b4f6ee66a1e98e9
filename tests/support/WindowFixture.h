#pragma once

#include "FakeMessages.h"
#include "Loan.h"
#include "MessageQueue.h"
#include "QuendNames.h"
#include "UserInput.h"
#include "Worksheet.h"

#include <QLocale>
#include <QPoint>
#include <QString>
#include <QStringView>

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <memory>

class QComboBox;
class QLineEdit;
class QScrollBar;
class QTimer;

// The output of a failed comparison.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(QStringView text, std::ostream* out);

inline const QLocale UnitedStates(QLocale::English, QLocale::UnitedStates);
inline const QLocale Germany(QLocale::German, QLocale::Germany);
inline const QLocale Spain(QLocale::Spanish, QLocale::Spain);

inline constexpr int English = 1;
inline constexpr int Spanish = 2;

/// The configuration at the start of the program.
struct Start {
    QLocale locale = UnitedStates;
    int language = English;
    bool termInMonths = false;
    int loansDisplayed = 5; ///< the index of the last row that shows without scrolling
    QString wallpaper = {};
    MessageInterface* messages = nullptr; ///< null: the fixture's own double, which shows nothing
    /// The notice of a raised payment appears a second later, which is unpredictable on a slow
    /// machine. It waits until HurryTimer.
    bool noticeWaits = true;
};

/// The main window as shown to a user: visible and active, on 21 November 2026, in a fixed locale
/// and language.
class WindowTest : public ::testing::Test, protected UserInput {
protected:
    WindowTest();
    ~WindowTest() override;
    Q_DISABLE_COPY_MOVE(WindowTest)

    void Open(const Start& start = {});
    /// As a window manager does after another window was closed.
    void ActivateAgain() { Activate(); }
    /// Closes and destroys the window.
    void Shut() { m_window.reset(); }
    Loan& Window() { return *m_window; }
    const Worksheet& Sheet() const { return m_window->GetWorksheet(); }
    /// The worksheet, for values that a user cannot type but a saved worksheet can hold.
    Worksheet& SheetToWrite() { return m_window->GetWorksheet(); }
    FakeMessages& Messages() { return m_messages; }

    QLineEdit& Edit(QStringView name) const;
    QComboBox& List(QStringView name) const;
    QScrollBar& Bar() const;
    QPoint PlaceInWindow(const QWidget& control, QPoint at) const;
    /// Moves the focus to a field by a click, unless it has it.
    void Enter(QStringView name);
    /// Enters a field, types and leaves it with the Tab key.
    void Fill(QStringView name, QStringView text);
    /// Opens a list by a click and picks the entry with this index.
    void Choose(QStringView name, int index);
    /// Turns the wheel by notches over this control; down is negative.
    void Wheel(const QWidget& control, int notches);
    /// The same at a place of the window, for fractions of a notch.
    void TurnWheel(QPoint at, int eighthsOfDegree);
    /// A language entry of the menu, from 1.
    void SwitchLanguage(int number);

    /// Types 100,000 at 6 % over 30 years, monthly, into the first row.
    void FillFirstOffer();

    /// The timer of the notice of raised payments, which also removes their marks.
    QTimer& Timer1() const;
    void HurryTimer() const;

    /// Whether this becomes true within a short time.
    static bool WaitFor(const std::function<bool()>& condition);
    /// Opens the context menu of a control and closes it again.
    void OpenContextMenu(QStringView name);
    /// The messages after all pending events.
    QStringList SettledMessages();
    /// What the line below the rows says that a command has done; empty while it shows the hint.
    QString Announced();

    static QString RowName(QStringView control, int row);
    /// The distance of two rows.
    int RowHeight() const;
    int RowCount() const;

private:
    QWidget& UsersWindow() const override { return *m_window; }

    FakeMessages m_messages;
    std::unique_ptr<Loan> m_window;
};
