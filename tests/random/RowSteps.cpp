// Actions on the rows of offers other than typing.

#include "QuendNames.h"
#include "RandomUser.h"
#include "StepTexts.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

#include <array>

using namespace Qt::StringLiterals;

void RandomUser::Tick(unsigned a, unsigned /*b*/) {
    const Field field{FieldId::FinancePoints, Row{static_cast<int>(a % m_model.offers.size())}};
    const View before = Look();
    if (!ClickInto(field, before)) {
        return;
    }
    m_model.StoreTick(field.row.value, !m_model.IsTicked(field.row.value));
}

/// Drops a value of another row, or any text from another program.
void RandomUser::Drop(unsigned a, unsigned b) {
    static constexpr std::array dragged{FieldId::Points, FieldId::InterestRate,
                                        FieldId::ActualPayment, FieldId::Who};
    const auto rows = static_cast<unsigned>(m_model.offers.size());
    const Field target{dragged.at(a % dragged.size()),
                       Row{static_cast<int>(a / dragged.size() % rows)}};
    if (!IsVisible(*Control(target))) {
        return;
    }
    const Field source{target.id, Row{static_cast<int>(b / 2 % rows)}};
    const QString text = b % 2 == 0 ? AnyText(b / 2, m_model.forms.Point())
                                    : CopiedText(source, m_model.OfferIn(source.row.value).who);
    const View before = Look();
    QMimeData data;
    data.setText(text);
    const QWidget& control = *Control(target);
    const QPoint place = control.mapTo(&Window(), control.rect().center());
    const auto send = [&](QEvent& event) {
        QApplication::sendEvent(Window().windowHandle(), &event);
    };
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    send(enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    send(move);
    const bool may = data.hasText() && m_model.MayDrop(target.id, text);
    if (move.isAccepted() != may) {
        Complain(u"a drop of “%1” is %2"_s.arg(text, may ? u"refused"_s : u"taken"_s));
    }
    if (!move.isAccepted()) {
        QDragLeaveEvent leave;
        return send(leave);
    }
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    send(drop);
    const bool besides = m_edited && m_edited->row == target.row && m_edited != target;
    if (!besides || Commit(before)) {
        TakeValue(target, text);
    }
}

void RandomUser::Sort(unsigned a, unsigned /*b*/) {
    const bool byPayoff = a % 2 == 0;
    const View before = Look();
    if (!Click(*Named(byPayoff ? u"cmdPayoffDate"_s : u"cmdInterest"_s)) || !Follow(before)) {
        return;
    }
    if (byPayoff) {
        m_model.SortByPayoff();
    } else {
        m_model.SortByInterest();
    }
}

/// Turns the wheel over the rows, which scroll, or the edited field, which keeps its value.
void RandomUser::Wheel(unsigned a, unsigned b) {
    const bool overField = m_edited && a % 3 == 0;
    const QWidget& control = overField ? *Control(*m_edited) : *Named(u"picScroll"_s);
    if (!IsVisible(control)) {
        return;
    }
    const QPoint at = control.mapTo(&Window(), control.rect().center());
    const int notches = static_cast<int>(b % 7) - 3;
    QWheelEvent event(at, Window().mapToGlobal(at), QPoint(), QPoint(0, notches * 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(Window().windowHandle(), &event);
}

void RandomUser::ClickBar(unsigned a, unsigned b) {
    const auto& bar = *qobject_cast<QScrollBar*>(Named(u"vsbLoans"_s));
    if (!bar.isVisible() || !bar.isEnabled()) {
        return;
    }
    QWindow* window = Window().windowHandle();
    const auto placeOn = [&](unsigned number) {
        const int at = static_cast<int>(number % static_cast<unsigned>(bar.height()));
        return bar.mapTo(&Window(), QPoint(bar.width() / 2, at));
    };
    // A small window scrolls as a whole. After a switch of the language it may be larger than its
    // frame for a moment.
    const auto isInside = [&](QPoint place) {
        return Window().rect().contains(place) && QRect({}, window->size()).contains(place);
    };
    const QPoint place = placeOn(b);
    if (!isInside(place) || !isInside(placeOn(a))) {
        return;
    }
    if (a % 3 != 0) {
        ClickAt(place);
        return;
    }
    // Drags the thumb.
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseMove(window, placeOn(a));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, placeOn(a));
}

/// Opens a lender's dialog by its key or a double click. It may paste another text, and then
/// accepts or cancels.
void RandomUser::OpenLender(unsigned a, unsigned b) {
    const Field field{FieldId::Who, Row{static_cast<int>(a % m_model.offers.size())}};
    View before = Look();
    if (!ClickInto(field, before)) {
        return;
    }
    before = Look();
    InDialog(
        [&] {
            if (b % 2 == 0) {
                Press(Qt::Key_F2);
            } else {
                const QPoint place =
                    Control(field)->mapTo(&Window(), Control(field)->rect().center());
                QTest::mouseDClick(Window().windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
            }
            Settle();
        },
        [&](QDialog& dialog) {
            Commit(before); // the dialog opens with the text typed before
            auto* lines = dialog.findChild<QPlainTextEdit*>();
            const QString loaded = lines->document()->toRawText();
            if (b % 3 != 0) {
                QGuiApplication::clipboard()->setText(AnyText(b / 3, m_model.forms.Point()));
                QTest::keyClick(dialog.windowHandle(), Qt::Key_A, Qt::ControlModifier);
                QTest::keyClick(dialog.windowHandle(), Qt::Key_V, Qt::ControlModifier);
            }
            QString entered = lines->document()->toRawText();
            if (b % 5 == 0) {
                QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
                return;
            }
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
            if (entered != loaded) {
                entered.replace(QChar::ParagraphSeparator, u"\r\n"_s);
                m_model.StoreWho(field.row.value, entered);
            }
        });
}

/// A timer shows the notice of raised payments; only this step lets it expire.
void RandomUser::LetSecondPass(unsigned /*a*/, unsigned /*b*/) {
    auto* timer = Window().findChild<QTimer*>(u"Timer1"_s);
    if (timer->isActive() != m_model.noticeComes) {
        Complain(u"the notice of a raised payment is %1"_s.arg(
            timer->isActive() ? u"on its way for nothing"_s : u"not on its way"_s));
    }
    if (timer->isActive()) {
        QTimerEvent event(timer->timerId());
        QCoreApplication::sendEvent(timer, &event);
    }
    m_model.NoticeIsDue();
}
