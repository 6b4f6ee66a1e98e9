#pragma once

#include <QAbstractSpinBox>

#include <optional>

namespace quend::storage {

/// A spin box for a count. Accepts only digits, typed or pasted, and does not correct them: the
/// field can hold a number out of range, which the caller checks. The buttons stay within the
/// range. Not a QSpinBox, because that one replaces a number out of range on its own.
class CountSpin : public QAbstractSpinBox {
    Q_OBJECT
    // Screen readers query these properties of a spin box.
    Q_PROPERTY(int value READ ValueOrZero WRITE SetNumber)
    Q_PROPERTY(int minimum READ Minimum)
    Q_PROPERTY(int maximum READ Maximum)

public:
    explicit CountSpin(QWidget* parent = nullptr);

    void SetRange(int minimum, int maximum);
    int Minimum() const { return m_minimum; }
    int Maximum() const { return m_maximum; }

    void SetNumber(int number);
    /// The number in the field; no value when the field is empty or the number is out of range.
    std::optional<int> Number() const;

    QLineEdit& Edit() const { return *lineEdit(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QValidator::State validate(QString& text, int& caret) const override;
    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int ValueOrZero() const { return Number().value_or(0); }
    int NearestNumber() const;
    void OnTextChanged();

    int m_minimum = 0;
    int m_maximum = 99;
};

} // namespace quend::storage
