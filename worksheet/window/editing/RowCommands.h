#pragma once

#include "Field.h"
#include "WindowNames.h"

#include <QObject>

#include <array>
#include <optional>

class QMenu;
class QWidget;

namespace quend::window {

class ControlMap;
class FocusTranslator;
class Loan;

/// Clears, duplicates and moves whole offers: those of the row with the focus by the Edit menu and
/// its keys, those of any row by its context menu. Stores the field being edited first, and does
/// nothing if that is refused.
class RowCommands : public QObject {
    Q_OBJECT

public:
    /// All of them outlive this object. Enables the menu entries.
    RowCommands(Loan& window, const ControlMap& controls, const FocusTranslator& focus);

    /// The row's context menu, outside its fields.
    void Watch(Row row, QWidget& controls);
    /// Adds the commands to the context menu of a field in the row.
    void AddTo(QMenu& menu, Row row);

    void mnuEditClearOffer_Click(Row row);
    void mnuEditDuplicateOffer_Click(Row row);
    void mnuEditMoveUp_Click(Row row);
    void mnuEditMoveDown_Click(Row row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry;
    static const std::array<Entry, 4>& Entries();

    std::optional<Row> RowWithFocus() const;
    void ShowEntries();
    void Run(const Entry& entry, std::optional<Row> row);
    void Move(Row row, int by);
    void Enter(Field field);
    bool CanClear(Row row) const;
    bool CanDuplicate(Row row) const;
    bool CanMoveUp(Row row) const;
    bool CanMoveDown(Row row) const;
    bool CanMove(Row row, int by) const;

    Loan* m_window;
    const ControlMap* m_controls;
    const FocusTranslator* m_focus;
};

} // namespace quend::window
