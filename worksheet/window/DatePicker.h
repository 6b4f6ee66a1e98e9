#pragma once

#include "EnteringClick.h"
#include "TypedDate.h"

#include <QAbstractSpinBox>
#include <QDate>
#include <QLocale>
#include <QString>

#include <functional>
#include <vector>

class QStyleOptionComboBox;

/// A date that is typed as it is written, stepped by the arrow keys or picked from a calendar
/// (Alt+Down, F4 or the button). Typed over, it is a text like any other; typed into, each
/// separator goes on to the next part, which gives way to what is typed. Knows neither how dates
/// are read nor whether one is taken: a typed text stays as it is until ShowDate.
class DatePicker : public QAbstractSpinBox {
    Q_OBJECT

public:
    /// How dates are written, and read back. `read` gives no date for a text that is none.
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
    /// No date is an empty text.
    void ShowDate(const QDate& date);
    /// The date shown last, whatever has been typed since.
    QDate Shown() const { return m_date; }
    QLineEdit& Edit() const { return *lineEdit(); }

    void OpenCalendar();
    void stepBy(int steps) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Stepped to or picked, not typed. It is shown already.
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
