#pragma once

#include <QScrollArea>

namespace quend::window {

/// The content of the main window between menu bar and frame. Shows all of it if there is room, and
/// scrolls it if the screen is too small. Scrolls the focused control into view. Does not scroll
/// the rows of offers: they have a separate scroll bar.
class WindowScroll : public QScrollArea {
    Q_OBJECT

public:
    explicit WindowScroll(QWidget* parent = nullptr);
    Q_DISABLE_COPY_MOVE(WindowScroll)
    ~WindowScroll() override;

    /// The size that shows everything without scroll bars.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Whether everything was visible at the last layout.
    bool ShowsAll() const;
    /// The width and height in pixels that this widget lacks to show everything, with its current
    /// content; negative if there is room to spare.
    QSize Missing() const;

private:
    QSize SizeOfAll(int leastWidth) const;
    void BringIntoSight(QWidget* control);
};

} // namespace quend::window
