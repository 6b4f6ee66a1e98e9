#pragma once

#include <QPushButton>

/// The heading of a column that sorts the offers. While it is the one they are sorted by, an arrow
/// beside the caption says so, and a screen reader hears its `activeText` instead of the tooltip.
/// The caption stays where it is. Does not sort.
class SortButton : public QPushButton {
    Q_OBJECT

public:
    explicit SortButton(QWidget* parent = nullptr);

    void SetActive(bool active);
    bool IsActive() const { return m_active; }

    /// Has room for the arrow, drawn or not.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize ArrowSize() const;

    bool m_active = false;
};
