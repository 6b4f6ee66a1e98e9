#pragma once

#include "Mark.h"

#include <QComboBox>

/// The box with the loan's name: typed, or picked from the loans kept. Its list is made anew by
/// whoever listens each time it drops down. Only a pick from the list is a pick: keys, the wheel
/// and a typed name that happens to be in the list choose nothing.
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
    /// Once the list has closed. The box shows the text already.
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
