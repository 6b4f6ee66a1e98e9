#pragma once

#include "EnteringClick.h"
#include "TypedDate.h"
#include "WindowNames.h"

#include <QAbstractSpinBox>
#include <QDate>
#include <QLocale>
#include <QString>

#include <functional>
#include <vector>

class QStyleOptionComboBox;

namespace quend::window {

/// A date field. The date is typed, stepped by the arrow keys or picked from a calendar (Alt+Down,
/// F4 or the button). Typing over a selected date replaces it as in any text field. Within a date
/// each separator selects the next part, which the next key replaces. Does not know how dates are
/// read or whether one is accepted: a typed text stays unchanged until ShowDate.
class DatePicker : public QAbstractSpinBox {
    Q_OBJECT

public:
    /// How dates are written and read back. `read` returns no date for a text that is not a date.
    struct Writing {
        QLocale locale; ///< of the calendar
        QDate first;
        QDate last;
        std::function<QString(const QDate&)> write;
        std::function<QDate(const QString&)> read;
        std::function<std::vector<DatePart>(const QString&)> parts;
    };
    explicit DatePicker(QWidget* parent = nullptr);

    void SetWriting(Writing writing);
    /// No date shows as an empty text.
    void ShowDate(const QDate& date);
    /// The date shown last, even if the text was changed since.
    QDate Shown() const { return m_date; }
    QLineEdit& Edit() const { return *lineEdit(); }

    void OpenCalendar();
    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// A date was stepped to or picked, not typed. It is already shown.
    void Picked(const QDate& date);

protected:
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    QValidator::State validate(QString& /*text*/, int& /*caret*/) const override {
        return QValidator::Acceptable;
    }
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Pick(const QDate& date);
    std::vector<DatePart> Parts() const;
    void Select(std::size_t part);
    bool GoOn();
    void LeaveFullPart();
    void PlaceEdit();
    QStyleOptionComboBox Frame() const;

    Writing m_writing;
    QDate m_date;
    EnteringClick m_click;
};

} // namespace quend::window
