#pragma once

#include <QScrollArea>

/// What is between menu bar and frame of the main window. Shows all of it where there is room for
/// it, and scrolls it where the screen is too small. The control that gets the keyboard is brought
/// into sight. Does not scroll the rows of offers: they have a scroll bar of their own.
class WindowScroll : public QScrollArea {
    Q_OBJECT

public:
    explicit WindowScroll(QWidget* parent = nullptr);
    WindowScroll(const WindowScroll&) = delete;
    WindowScroll& operator=(const WindowScroll&) = delete;
    WindowScroll(WindowScroll&&) = delete;
    WindowScroll& operator=(WindowScroll&&) = delete;
    ~WindowScroll() override;

    /// Room for all of it, without scroll bars.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Whether all of it was in sight when it was last laid out.
    bool ShowsAll() const;
    /// How much wider and higher, in pixels, this would have to be to show all of it, as it is to
    /// be from now on; negative where there is room left.
    QSize Missing() const;

private:
    QSize SizeOfAll(int leastWidth) const;
    void BringIntoSight(QWidget* control);
};
