#include "DragFixture.h"

#include "EnterValues.h"
#include "QuendNames.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QMimeData> DataOf(QStringView text) {
    auto data = std::make_unique<QMimeData>();
    data->setText(text.toString());
    return data;
}

} // namespace

Offered DragTest::Over(QStringView name, const QMimeData& data, Qt::DropActions actions,
                       std::optional<QPoint> at) {
    const QWidget& control = Control(name);
    const QPoint place = PlaceInWindow(control, at.value_or(control.rect().center()));
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Window().windowHandle(), &enter);
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Window().windowHandle(), &move);
    const Offered offered{move.isAccepted(),
                          move.isAccepted() ? move.dropAction() : Qt::IgnoreAction};
    return offered;
}

Offered DragTest::Over(QStringView name, QStringView text, Qt::DropActions actions) {
    return Over(name, *DataOf(text), actions);
}

Offered DragTest::Drop(QStringView name, QStringView text, Qt::DropActions actions,
                       std::optional<QPoint> at) {
    const auto data = DataOf(text);
    const Offered offered = Over(name, *data, actions, at);
    if (!offered.accepted) {
        QDragLeaveEvent leave;
        QApplication::sendEvent(Window().windowHandle(), &leave);
        return offered;
    }
    const QWidget& control = Control(name);
    const QPoint place = PlaceInWindow(control, at.value_or(control.rect().center()));
    QDropEvent drop(place, actions, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Window().windowHandle(), &drop);
    return {drop.isAccepted(), drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction};
}

void DragTest::FillOffers() {
    Worksheet& sheet = SheetToWrite();
    sheet.SetLoanAmount(Money::FromDouble(100'000));
    sheet.SetPaymentNoticeShown(true);
    const std::array points{1.5, 0.0, 2.25};
    const std::array rates{0.065, 0.0625, 0.07};
    const std::array payments{700.0, 650.5, 0.0};
    for (Row row{0}; row.value < 3; ++row.value) {
        const auto index = static_cast<std::size_t>(row.value);
        EnterOffer(sheet, row,
                   {{FieldId::Points, Percent::FromPercent(points.at(index))},
                    {FieldId::Term, Months{360}},
                    {FieldId::Frequency, FrequencyCode(u"M"_s)},
                    {FieldId::ActualPayment, Money::FromDouble(payments.at(index))},
                    {FieldId::InterestRate, Rate::FromFraction(rates.at(index))},
                    {FieldId::Who, u"Bank %1"_s.arg(row.value + 1)}});
    }
    sheet.ClearDirty();
    Settle();
}

void DragMouse(const QWidget& control, QPoint from, QPoint to, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers) {
    QWindow* window = control.window()->windowHandle();
    const auto place = [&](QPoint at) { return control.mapTo(control.window(), at); };
    QTest::mousePress(window, button, modifiers, place(from));
    QTest::mouseMove(window, place(from + (to - from) / 2));
    QTest::mouseMove(window, place(to));
}
