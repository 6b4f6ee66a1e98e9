#include "WindowFixture.h"

#include "Language.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

#include <chrono>
#include <ostream>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
void PrintTo(QStringView text, std::ostream* out) { PrintTo(text.toString(), out); }

WindowTest::WindowTest() {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
}

WindowTest::~WindowTest() = default;

void WindowTest::Open(const Start& start) {
    QLocale::setDefault(start.locale);
    Language::Instance().SetCurrentLanguage(start.language);
    Settings settings;
    settings.loansDisplayed = start.loansDisplayed;
    settings.termInMonths = start.termInMonths;
    settings.wallpaper = start.wallpaper;
    m_window = std::make_unique<Loan>(
        Loan::World{.messages = start.messages ? start.messages : &m_messages,
                    .locale = start.locale,
                    .today = [] { return Date::FromCalendar(2026, 11, 21); }},
        settings);
    if (start.noticeWaits) {
        Timer1().setInterval(1h);
    }
    m_window->show();
    ActivateAgain();
}

QLineEdit& WindowTest::Edit(QStringView name) const { return Get<QLineEdit>(name); }
QComboBox& WindowTest::List(QStringView name) const { return Get<QComboBox>(name); }
QScrollBar& WindowTest::Bar() const { return Get<QScrollBar>(u"vsbLoans"); }

QPoint WindowTest::PlaceInWindow(const QWidget& control, QPoint at) const {
    return control.mapTo(m_window.get(), at);
}

void WindowTest::Enter(QStringView name) {
    if (FocusName() != name) {
        Click(name);
    }
}

void WindowTest::Fill(QStringView name, QStringView text) {
    Enter(name);
    Type(text);
    Tab();
}

void WindowTest::Choose(QStringView name, int index) {
    Click(name);
    const auto popup = [] { return QApplication::activePopupWidget() != nullptr; };
    if (!WaitFor(popup)) {
        throw std::runtime_error("no list opens: " + name.toString().toStdString());
    }
    Settle(); // the open list first marks the entry under the pointer
    Press(Qt::Key_Home);
    for (int entry = 0; entry < index; ++entry) {
        Press(Qt::Key_Down);
    }
    Press(Qt::Key_Return);
    if (!WaitFor([&] { return !popup(); })) {
        throw std::runtime_error("the list stays open: " + name.toString().toStdString());
    }
    ActivateAgain();
}

void WindowTest::Wheel(const QWidget& control, int notches) {
    TurnWheel(PlaceInWindow(control, control.rect().center()), notches * 120);
}

void WindowTest::TurnWheel(QPoint at, int eighthsOfDegree) {
    QWheelEvent event(at, m_window->mapToGlobal(at), QPoint(), QPoint(0, eighthsOfDegree),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // only hardware wheel events give the focus
    qApp->notify(m_window->windowHandle(), &event);
}

void WindowTest::SwitchLanguage(int number) {
    const QString name = QStringLiteral("mnuToolsLanguageOpt(%1)").arg(number);
    if (auto* entry = m_window->findChild<QAction*>(name)) {
        return entry->trigger();
    }
    throw std::runtime_error("no entry " + name.toStdString());
}

void WindowTest::FillFirstOffer() {
    Fill(u"txtLoanAmount", u"100000");
    Fill(u"txtInterestRate(0)", u"6");
    Fill(u"txtTerm(0)", u"30");
    Choose(u"cboFrequency(0)", 0);
}

QTimer& WindowTest::Timer1() const {
    auto* const timer = m_window->findChild<QTimer*>(QStringLiteral("Timer1"));
    if (timer == nullptr) {
        throw std::runtime_error("no Timer1");
    }
    return *timer;
}

void WindowTest::HurryTimer() const { Timer1().setInterval(1); }

bool WindowTest::WaitFor(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 5000);
}

QStringList WindowTest::SettledMessages() {
    Settle();
    return m_messages.Texts();
}

QString WindowTest::Announced() {
    const auto& line = Get<QLabel>(u"lblAnnounced");
    return line.isVisible() ? line.accessibleName() : QString();
}

void WindowTest::OpenContextMenu(QStringView name) {
    QWidget& control = Control(name);
    const QPoint at = control.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, at, control.mapToGlobal(at));
    QApplication::sendEvent(&control, &event);
    const auto menu = [] { return QApplication::activePopupWidget(); };
    if (!WaitFor([&] { return menu() != nullptr; })) {
        throw std::runtime_error("no context menu opens: " + name.toString().toStdString());
    }
    Press(Qt::Key_Escape);
    WaitFor([&] { return menu() == nullptr; });
    ActivateAgain();
}

QString WindowTest::RowName(QStringView control, int row) {
    return QStringLiteral("%1(%2)").arg(control).arg(row);
}

int WindowTest::RowHeight() const {
    return Control(u"OfferRow(1)").y() - Control(u"OfferRow(0)").y();
}

int WindowTest::RowCount() const {
    const QRegularExpression row(QStringLiteral("^OfferRow\\(\\d+\\)$"));
    return static_cast<int>(m_window->findChildren<QWidget*>(row).size());
}
