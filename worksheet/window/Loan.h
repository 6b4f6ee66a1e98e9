#pragma once

#include "ControlMap.h"
#include "DragHandlers.h"
#include "DragScroll.h"
#include "FailureReport.h"
#include "FieldClipboard.h"
#include "FieldDiscipline.h"
#include "FieldHandlers.h"
#include "FocusTranslator.h"
#include "LanguageMenu.h"
#include "Messages.h"
#include "OfferColumns.h"
#include "OfferCommands.h"
#include "OfferDragging.h"
#include "OfferRows.h"
#include "PaymentNotice.h"
#include "ResultKeys.h"
#include "Settings.h"
#include "ToolkitTexts.h"
#include "ValueExchange.h"
#include "Wallpaper.h"
#include "WholeText.h"
#include "WindowDisplay.h"
#include "Worksheet.h"

#include <QLocale>
#include <QMainWindow>

#include <functional>
#include <memory>
#include <utility>

namespace Ui {
class Loan;
}

/// The main window: one worksheet in its controls. It wires its parts to one another and does no
/// work of its own.
class Loan : public QMainWindow {
    Q_OBJECT

public:
    /// What the world outside decides.
    struct World {
        MessageDoor* messages;
        QLocale locale;
        std::function<Date()> today;
    };
    Loan(const World& world, Settings settings);
    Loan(const Loan&) = delete;
    Loan& operator=(const Loan&) = delete;
    Loan(Loan&&) = delete;
    Loan& operator=(Loan&&) = delete;
    ~Loan() override;

    // For the commands of the other rooms, which own the handlers of their menu entries.
    const Ui::Loan& Form() const { return *m_ui; }
    Worksheet& GetWorksheet() { return m_worksheet; }
    OfferRows& Rows() { return m_rows; }
    Messages& GetMessages() { return m_messages; }
    const FailureReport& Report() const { return m_report; }
    /// Stores the field being edited, which stays in entry form. False: it is refused, and the user
    /// has been told; the command stops.
    bool Commit() { return m_focus.Commit(); }
    /// Shows the field being edited, if any, as it looks once left; Reenter undoes that.
    void ShowEdited() const;
    /// After a change of the whole worksheet: the field being edited shows its new value to edit.
    void Reenter() { m_focus.Reenter(); }
    /// A worksheet without a name cannot be saved: marks the name's box.
    void MarkNameMissing();
    void ClearNameMark();

    const Settings& GetSettings() const { return m_settings; }
    /// Takes other settings and shows what follows from them. A picture that cannot be loaded is
    /// told and dropped.
    void ApplySettings(const Settings& settings);

    /// Asked before the window closes, once the field being edited is stored; false keeps it open.
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

    // First, because making the form raises events that ask for it.
    bool m_loaded = false;
    Settings m_settings;
    std::function<bool()> m_mayClose;
    std::unique_ptr<Ui::Loan> m_ui;
    Messages m_messages;
    FailureReport m_report;
    ControlMap m_controls;
    WindowDisplay m_display;
    Worksheet m_worksheet;
    OfferColumns m_columns;
    OfferRows m_rows;
    PaymentNotice m_notice;
    FieldDiscipline m_discipline;
    FieldHandlers m_handlers;
    FocusTranslator m_focus;
    OfferCommands m_offers;
    ValueExchange m_values;
    DragHandlers m_dragHandlers;
    DragScroll m_dragScroll;
    OfferDragging m_dragging;
    FieldClipboard m_clipboard;
    ToolkitTexts m_toolkitTexts;
    LanguageMenu m_languages;
    Wallpaper m_wallpaper;
    ResultKeys m_resultKeys;
    WholeText m_wholeText;
};
