#include "ChartAccess.h"

#include "ChartWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <memory>

namespace quend::compare {

namespace {

class AccessibleChart : public QAccessibleWidget {
public:
    explicit AccessibleChart(ChartWidget& chart) : QAccessibleWidget(&chart, QAccessible::Chart) {}

    QString text(QAccessible::Text kind) const override {
        return QAccessibleWidget::text(kind == QAccessible::Value ? QAccessible::Description
                                                                  : kind);
    }
};

/// Qt owns the result.
QAccessibleInterface* MakeAccessibleChart(const QString& /*className*/, QObject* object) {
    auto* const chart = qobject_cast<ChartWidget*>(object);
    return chart != nullptr ? std::make_unique<AccessibleChart>(*chart).release() : nullptr;
}

} // namespace

void MakeChartsAccessible() {
    // Repeats are ignored.
    QAccessible::installFactory(&MakeAccessibleChart);
}

void AnnounceReading(QWidget& chart, const QString& sentence) {
    if (chart.accessibleDescription() == sentence) {
        return;
    }
    chart.setAccessibleDescription(sentence); // also announces it
    QAccessibleValueChangeEvent changed(&chart, sentence);
    QAccessible::updateAccessibility(&changed);
}

} // namespace quend::compare
