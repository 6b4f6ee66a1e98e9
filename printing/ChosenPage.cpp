#include "ChosenPage.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QPrinter>
#include <QWidget>

#include <array>
#include <utility>

namespace quend::printing {

namespace {

// The object names in Qt's dialog.
QComboBox* Papers(const QObject& dialog) {
    return dialog.findChild<QComboBox*>(QStringLiteral("pageSizeCombo"));
}

/// The printer that the print dialog shows while it is open.
QString PrinterShown(const QWidget& properties) {
    const QObject* dialog = properties.parent();
    const auto* printers =
        dialog != nullptr ? dialog->findChild<QComboBox*>(QStringLiteral("printers")) : nullptr;
    return printers != nullptr ? printers->currentText() : QString();
}

void ShowPaper(QComboBox& papers, const QPageSize& size) {
    for (int index = 0; index < papers.count(); ++index) {
        if (papers.itemData(index).value<QPageSize>().isEquivalentTo(size)) {
            papers.setCurrentIndex(index);
            return;
        }
    }
}

} // namespace

ChosenPage::ChosenPage(QPrinter& printer)
    : m_printer(&printer), m_printerName(printer.printerName()), m_page(printer.pageLayout()) {
    QCoreApplication::instance()->installEventFilter(this);
}

/// The properties are a separate dialog, which Qt creates when it is first opened.
bool ChosenPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        auto* properties = qobject_cast<QWidget*>(watched);
        const bool opens = properties != nullptr && properties->isWindow() &&
                           properties != m_seen && properties->parent() != nullptr &&
                           Papers(*properties) != nullptr;
        if (opens && PrinterShown(*properties) == m_printerName) {
            ShowIn(*properties);
        }
        if (opens && !PrinterShown(*properties).isEmpty()) {
            m_seen = properties;
        }
    }
    return QObject::eventFilter(watched, event);
}

void ChosenPage::ShowIn(const QWidget& properties) const {
    const bool upright = m_page.orientation() == QPageLayout::Portrait;
    const QString side = upright ? QStringLiteral("portrait") : QStringLiteral("landscape");
    if (auto* button = properties.findChild<QAbstractButton*>(side)) {
        button->click();
    }
    ShowPaper(*Papers(properties), m_page.pageSize());
    ShowMargins(properties);
}

void ChosenPage::ShowMargins(const QWidget& properties) const {
    const auto* units = properties.findChild<QComboBox*>(QStringLiteral("unitCombo"));
    if (units == nullptr) {
        return;
    }
    const QMarginsF margins = m_page.margins(units->currentData().value<QPageLayout::Unit>());
    const std::array<std::pair<const char*, double>, 4> table{{
        {"topMargin", margins.top()},
        {"bottomMargin", margins.bottom()},
        {"leftMargin", margins.left()},
        {"rightMargin", margins.right()},
    }};
    for (const auto& [name, value] : table) {
        if (auto* margin = properties.findChild<QDoubleSpinBox*>(QLatin1String(name))) {
            margin->setValue(value);
        }
    }
}

void ChosenPage::Settle() const {
    if (m_seen.isNull() && m_printer->printerName() == m_printerName) {
        m_printer->setPageLayout(m_page);
    }
}

} // namespace quend::printing
