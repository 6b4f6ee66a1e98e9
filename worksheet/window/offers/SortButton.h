#pragma once

#include <QPushButton>

namespace quend::window {

/// A column heading that sorts the offers. While the offers are sorted by it, an arrow beside the
/// caption shows it, and a screen reader reads its `activeText` instead of the tooltip. The caption
/// does not move. Does not sort.
class SortButton : public QPushButton {
    Q_OBJECT

public:
    explicit SortButton(QWidget* parent = nullptr);

    void SetActive(bool active);

    /// Includes room for the arrow, drawn or not.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize ArrowSize() const;

    bool m_active = false;
};

} // namespace quend::window
