#pragma once

#include "Mark.h"
#include "WindowNames.h"

#include <QComboBox>

namespace quend::window {

/// The box with the loan's name, which is typed or picked from the saved loans. A listener refills
/// the list each time it opens. Only a pick from the open list counts: keys, the wheel and a typed
/// name that is in the list pick nothing.
class LoanNameBox : public QComboBox {
    Q_OBJECT

public:
    explicit LoanNameBox(QWidget* parent = nullptr);

    void SetMark(Mark mark);
    void SelectAll();
    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    void DropDown();
    /// Emitted after the list has closed. The box already shows the text.
    void Picked(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int WidthOfLongNames() const;
    void FitListToNames();
    void OnActivated(int index);

    bool m_picking = false;
    bool m_enteredByClick = false;
};

} // namespace quend::window
