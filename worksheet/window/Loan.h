#pragma once

#include "ControlMap.h"
#include "DragHandlers.h"
#include "DragScroll.h"
#include "FailureReport.h"
#include "FieldBehaviour.h"
#include "FieldClipboard.h"
#include "FieldHandlers.h"
#include "FocusTranslator.h"
#include "LanguageMenu.h"
#include "MessageQueue.h"
#include "OfferColumns.h"
#include "OfferCommands.h"
#include "OfferDragging.h"
#include "OfferRows.h"
#include "PaymentNotice.h"
#include "QtTexts.h"
#include "ResultKeys.h"
#include "Settings.h"
#include "ValueTransfer.h"
#include "Wallpaper.h"
#include "WholeText.h"
#include "WindowDisplay.h"
#include "WindowNames.h"
#include "Worksheet.h"

#include <QLocale>
#include <QMainWindow>

#include <functional>
#include <memory>
#include <utility>

namespace Ui {
class Loan;
}

namespace quend::window {

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
    Loan(const Loan&) = delete;
    Loan& operator=(const Loan&) = delete;
    Loan(Loan&&) = delete;
    Loan& operator=(Loan&&) = delete;
    ~Loan() override;

    // For the commands objects of the subsystems, which own the handlers of their menu entries.
    const Ui::Loan& Form() const { return *m_ui; }
    Worksheet& GetWorksheet() { return m_worksheet; }
    OfferRows& Rows() { return m_rows; }
    MessageQueue& GetMessages() { return m_messages; }
    const FailureReport& Report() const { return m_report; }
    /// Stores the field being edited, which stays in entry form. False if it is refused: the user
    /// has been told, and the command must stop.
    bool Commit() { return m_focus.Commit(); }
    /// Shows the field being edited, if any, in display format; Reenter undoes that.
    void ShowEdited() const;
    /// After a change of the whole worksheet: shows the edited field's new value in entry form.
    void Reenter() { m_focus.Reenter(); }
    /// A worksheet without a name cannot be saved: marks the name box.
    void MarkNameMissing();
    void ClearNameMark();

    const Settings& GetSettings() const { return m_settings; }
    /// Applies other settings and shows their effects. If the picture cannot be loaded, the user is
    /// told and the path is dropped.
    void ApplySettings(const Settings& settings);

    /// Called before the window closes, once the edited field is stored; false keeps it open.
    void OnUnload(std::function<bool()> mayClose) { m_mayClose = std::move(mayClose); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Form_Load();
    bool Form_Unload();
    void mnuFileExit_Click();

    void WireFields();
    void WireRow(int row, const QWidget* controls);
    void WireChoice(Field field);
    void ApplyCaptions();
    void ApplyRowCaptions(Row row);
    void RefillLists();
    void RenewLanguage();
    void MeasureFields();
    void ShowHint();
    void MeasureAgain();
    void FitHeight();
    void ResizeBy(QSize change);
    void LoadWallpaper();

    // Must be the first member: creating the form raises events that read it.
    bool m_loaded = false;
    Settings m_settings;
    std::function<bool()> m_mayClose;
    std::unique_ptr<Ui::Loan> m_ui;
    MessageQueue m_messages;
    FailureReport m_report;
    ControlMap m_controls;
    WindowDisplay m_display;
    Worksheet m_worksheet;
    OfferColumns m_columns;
    OfferRows m_rows;
    PaymentNotice m_notice;
    FieldBehaviour m_discipline;
    FieldHandlers m_handlers;
    FocusTranslator m_focus;
    OfferCommands m_offers;
    ValueTransfer m_values;
    DragHandlers m_dragHandlers;
    DragScroll m_dragScroll;
    OfferDragging m_dragging;
    FieldClipboard m_clipboard;
    QtTexts m_toolkitTexts;
    LanguageMenu m_languages;
    Wallpaper m_wallpaper;
    ResultKeys m_resultKeys;
    WholeText m_wholeText;
};

} // namespace quend::window
