#pragma once

#include "Field.h"
#include "Settings.h"
#include "WindowNames.h"

#include <QLocale>
#include <QMainWindow>

#include <functional>
#include <memory>

namespace Ui {
class Loan;
}

namespace quend::calc {
class Date;
}

namespace quend::model {
class Worksheet;
}

namespace quend::window {

class FailureReport;
class MessageInterface;
class MessageQueue;
class OfferRows;

/// The main window: one worksheet in its controls. It only creates its parts and connects them.
class Loan : public QMainWindow {
    Q_OBJECT

public:
    /// The outside world, injected.
    struct World {
        MessageInterface* messages;
        QLocale locale;
        std::function<Date()> today;
    };
    Loan(const World& world, Settings settings);
    Q_DISABLE_COPY_MOVE(Loan)
    ~Loan() override;

    // For the commands objects of the subsystems, which own the handlers of their menu entries.
    const Ui::Loan& Form() const { return *m_ui; }
    Worksheet& GetWorksheet();
    OfferRows& Rows();
    MessageQueue& GetMessages();
    const FailureReport& Report() const;
    /// Stores the field being edited, which stays in entry form. False if it is refused: the user
    /// has been told, and the command must stop.
    bool Commit();
    /// Shows the field being edited, if any, in display format; Reenter undoes that.
    void ShowEdited() const;
    /// After a change of the whole worksheet: shows the edited field's new value in entry form.
    void Reenter();
    /// Nothing that was done before can be undone.
    void ForgetSteps();
    /// A worksheet without a name cannot be saved: marks the name box.
    void MarkNameMissing();
    void ClearNameMark();
    /// After a change of Dirty alone, such as a save; other changes show in the title by
    /// themselves.
    void ShowTitle();
    /// Says for a few seconds, in the line below the rows, what a command has done.
    void Announce(const QString& text);

    const Settings& GetSettings() const;
    /// Applies other settings and shows their effects. If the picture cannot be loaded, the user is
    /// told and the path is dropped.
    void ApplySettings(const Settings& settings);
    /// Keeps the settings of the comparison, `years` from 1 to 50; nothing in this window depends
    /// on them.
    void KeepComparison(int years, comparison::PaymentChoice payments, Money monthly);

    /// Called before the window closes, once the edited field is stored; false keeps it open.
    void OnUnload(std::function<bool()> mayClose);

    /// Asked for the tooltip of a payoff date that is empty because the payment never repays the
    /// loan: of an offer, or, for Field::NoRow, of the loan held today. An empty text: no tooltip.
    void OnNeverEnding(std::function<QString(Row)> advice);

    /// Called by the menu of an intended payment, of an offer or of the loan held today, to find
    /// one. Without it (pass {}) the menus do not offer that.
    void OnFindPayment(std::function<void(Field)> find);

    /// Called with the path of a file of worksheets that was dropped on the window, once the drop
    /// is over. Without it (pass {}) no file is accepted.
    void OnFileDropped(std::function<void(const QString& path)> open);

Q_SIGNALS:
    /// A value of the worksheet, their unit, or the number or order of the rows may have changed;
    /// emitted many times for one edit, in the midst of it. Read the worksheet afterwards, once.
    void WorksheetChanged();
    /// After the window has switched to another language.
    void LanguageChanged();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Parts;

    void Form_Load();
    bool Form_Unload();
    void mnuFileExit_Click();

    void WireFields();
    void WireRow(int row, QWidget* controls);
    void WireChoice(Field field);
    void ApplyCaptions();
    void ApplyRowCaptions(Row row);
    void RefillLists();
    void RenewLanguage();
    void LoadWallpaper();

    // Must be the first member: creating the form raises events that read it, while it is null.
    std::unique_ptr<Parts> m_parts;
    std::unique_ptr<Ui::Loan> m_ui;
};

} // namespace quend::window
