#pragma once

#include "ControlMap.h"
#include "FailureReport.h"
#include "FieldDiscipline.h"
#include "FieldHandlers.h"
#include "FocusTranslator.h"
#include "LanguageMenu.h"
#include "Messages.h"
#include "OfferColumns.h"
#include "OfferRows.h"
#include "PaymentNotice.h"
#include "Settings.h"
#include "Wallpaper.h"
#include "WindowDisplay.h"
#include "Worksheet.h"

#include <QLocale>
#include <QMainWindow>

#include <functional>
#include <memory>

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

    const Worksheet& GetWorksheet() const { return m_worksheet; }
    const Settings& GetSettings() const { return m_settings; }

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
    void LoadWallpaper();
    void ClearRaisedMarks();

    // First, because making the form raises events that ask for it.
    bool m_loaded = false;
    Settings m_settings;
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
    LanguageMenu m_languages;
    Wallpaper m_wallpaper;
};
