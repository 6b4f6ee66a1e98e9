#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QObject>
#include <QStringList>

#include <vector>

namespace quend::window {

class ControlMap;
class Loan;

/// Copies the offers as a table for spreadsheets and letters, and pastes cells of a spreadsheet
/// into the fields from one on to the right and down. A block whose first row is the headings of
/// the copied table goes into the columns that they name, without the computed ones; any other goes
/// into entry fields only. Each cell is checked as if typed; one message lists the refused
/// ones, and one step undoes the block.
class TableClipboard : public QObject {
    Q_OBJECT

public:
    /// Both outlive this object. Enables the menu entries.
    TableClipboard(Loan& window, const ControlMap& controls);

    /// Call when the row has been created: its fields then take blocks by the keys of pasting.
    void Watch(Row row);

    void mnuEditCopyTable_Click();
    void mnuEditPasteCells_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Block;

    void Paste(Field from, const QString& text);
    Block BlockOf(Field from, const QString& text) const;
    void StoreRow(const Block& block, Row row, const QStringList& cells, QStringList& refused);
    void StoreCell(Field field, const QString& cell, QStringList& refused);
    void Report(const QStringList& refused) const;

    Loan* m_window;
    const ControlMap* m_controls;
};

} // namespace quend::window
