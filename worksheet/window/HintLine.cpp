#include "HintLine.h"

#include <QAccessible>
#include <QEvent>
#include <QLabel>
#include <QTimer>

#include <chrono>

namespace quend::window {

namespace {

constexpr auto AnnouncedFor = std::chrono::seconds(5);

void TellScreenReaders(QLabel& label) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&label, label.accessibleName());
#else
    QAccessibleEvent event(&label, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&event);
}

} // namespace

HintLine::HintLine(QLabel& hint)
    : m_hint(&hint), m_announced(new QLabel(hint.parentWidget())),
      m_timer(new QTimer(m_announced)) {
    m_announced->setObjectName(QStringLiteral("lblAnnounced"));
    m_announced->setTextFormat(Qt::PlainText); // names may look like tags
    m_announced->setAlignment(hint.alignment());
    m_announced->setWordWrap(true);
    constexpr const char* topic = "helpTopic";
    m_announced->setProperty(topic, hint.property(topic));
    m_announced->hide();
    hint.parentWidget()->installEventFilter(this);
    m_timer->setObjectName(QStringLiteral("tmrAnnounced"));
    m_timer->setSingleShot(true);
    m_timer->setInterval(AnnouncedFor);
    connect(m_timer, &QTimer::timeout, this, &HintLine::End);
}

void HintLine::ShowHint(bool shown) {
    m_hintShown = shown;
    m_hint->setVisible(shown && !m_announced->isVisibleTo(m_announced->parentWidget()));
}

void HintLine::Announce(const QString& text) {
    m_text = text;
    m_hint->hide();
    Fit();
    m_announced->setAccessibleName(text);
    m_announced->show();
    m_announced->raise();
    TellScreenReaders(*m_announced);
    m_timer->start();
}

void HintLine::Fit() {
    const QRect place = m_hint->geometry();
    const QFontMetrics font = m_announced->fontMetrics();
    const QRect needed = font.boundingRect(QRect(0, 0, place.width(), 0), Qt::TextWordWrap, m_text);
    m_announced->setGeometry(place);
    m_announced->setText(needed.height() > place.height() || needed.width() > place.width()
                             ? font.elidedText(m_text, Qt::ElideRight, place.width())
                             : m_text);
}

void HintLine::End() {
    m_announced->hide();
    m_announced->clear();
    m_announced->setAccessibleName({});
    ShowHint(m_hintShown);
}

/// The layout has already placed the hint.
bool HintLine::eventFilter(QObject* watched, QEvent* event) {
    if ((event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) &&
        m_announced->isVisible()) {
        Fit();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quend::window
