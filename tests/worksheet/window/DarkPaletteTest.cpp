// In a dark palette the edges of fields and boxes are visible.

#include "ClearEdges.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// As in accessibility guidelines: 1 is no contrast, 21 is black on white.
double Contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](float channel) {
            const auto part = static_cast<double>(channel);
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

class DarkPalette : public WindowTest {
protected:
    DarkPalette() {
        QApplication::setStyle(u"fusion"_s);
        QPalette dark(QColor(53, 53, 53), QColor(53, 53, 53));
        dark.setColor(QPalette::Base, QColor(25, 25, 25));
        dark.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(dark);
        ClearEdges::Install();
    }
    Q_DISABLE_COPY_MOVE(DarkPalette)
    ~DarkPalette() override {
        Shut();
        QApplication::setPalette(m_before);
        QApplication::setStyle(u"fusion"_s);
    }

    /// The best contrast between the outermost pixels of a control's left edge and the window.
    static double EdgeOf(const QImage& window, const QWidget& control) {
        const QColor around = control.window()->palette().window().color();
        const QPoint left = control.mapTo(control.window(), QPoint(0, control.height() / 2));
        double best = 1;
        for (int pixel = 0; pixel < 4; ++pixel) {
            best = std::max(best, Contrast(window.pixelColor(left + QPoint(pixel, 0)), around));
        }
        return best;
    }

private:
    QPalette m_before = QApplication::palette();
};

TEST_F(DarkPalette, EdgesOfFieldsAndBoxesCanBeSeen) {
    Open();
    Settle();
    const QImage window = Window().grab().toImage();
    constexpr double visible = 3;
    int seen = 0;
    for (const QWidget* control : Window().findChildren<QWidget*>()) {
        const bool hasEdge =
            qobject_cast<const QComboBox*>(control) || qobject_cast<const QDateEdit*>(control) ||
            qobject_cast<const QCheckBox*>(control) || qobject_cast<const QPushButton*>(control) ||
            (qobject_cast<const QLineEdit*>(control) &&
             !qobject_cast<const QComboBox*>(control->parentWidget()) &&
             !qobject_cast<const QAbstractSpinBox*>(control->parentWidget()));
        if (hasEdge && control->isVisible() && control->isEnabled()) {
            EXPECT_GE(EdgeOf(window, *control), visible) << control->objectName().toStdString();
            ++seen;
        }
    }
    EXPECT_GT(seen, 80);
}

} // namespace
