#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include <QWidget>

#include "Chart.h"
#include "ChartData.h"
#include "CompareNames.h"
#include "DisplayFormats.h"

#include <QString>

#include <optional>

namespace quend::compare {

/// The chart on the screen: values are read by mouse and keys, and the horizon is moved. Computes
/// no comparison: the owner answers HorizonChanged with new data.
class ChartWidget : public QWidget {
    Q_OBJECT

public:
    static constexpr int FewestYears = 1;
    static constexpr int MostYears = 50;

    explicit ChartWidget(QWidget* parent = nullptr);

    /// What is read, the chosen line and a horizon that is being dragged stay.
    void SetData(ChartData shown, const DisplayFormats& formats);
    const ChartData& Data() const { return m_data; }

    /// What is read now; none: nothing.
    std::optional<ChartMark> Mark() const { return m_mark; }
    /// What is read in words; how to read where nothing is.
    QString Sentence() const;
    /// Where everything is now.
    const ChartLayout& Layout() const;

    QSize sizeHint() const override { return {700, 360}; }
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user moved the horizon, from 1 to 50 years; also while it is dragged.
    void HorizonChanged(int years);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// A horizon that is being dragged.
    struct Drag {
        MonthScale scale;    ///< at its start, because a longer span moves the horizon again
        double distance = 0; ///< of the pointer from the horizon
        int yearsBefore = 0;
    };

    void Refresh();
    void Describe();
    ChartLook Look() const;
    bool IsOnHorizon(const QPointF& position) const;
    void SetYears(int years);
    void EndDrag();
    void HoverAt(const QPointF& position);
    void SetMark(const std::optional<ChartMark>& mark);
    /// Marks by keys, and says what is read.
    void ReadMonth(int month);
    void ReadLine(int above);
    bool MoveBy(const QKeyEvent& event);
    int ChosenLine() const;

    ChartData m_data;
    DisplayFormats m_formats;
    std::optional<ChartMark> m_mark;
    bool m_isHovering = false; ///< the mark is that of the mouse
    int m_chosenLoan = -1;     ///< ChartLine::place; -1: the first line
    std::optional<Drag> m_drag;
    mutable std::optional<ChartLayout> m_layout; ///< none: to be laid out again
};

} // namespace quend::compare
