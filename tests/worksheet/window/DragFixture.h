#pragma once

#include "WindowFixture.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPoint>

#include <optional>

/// What a program that drags a text learns of the field under it.
struct Offered {
    bool accepted = false;
    Qt::DropAction action = Qt::IgnoreAction;
    friend bool operator==(const Offered&, const Offered&) = default;
};

inline constexpr Offered Refused{};
inline constexpr Offered Copied{true, Qt::CopyAction};
inline constexpr Offered Moved{true, Qt::MoveAction};

inline void PrintTo(const Offered& offered, std::ostream* out) {
    *out << (offered.accepted ? "accepted " : "refused ") << offered.action;
}

/// The window under drags that come from outside, the way the window system brings them.
class DragTest : public WindowTest {
protected:
    /// Brings a drag over the middle of a field, or a place of it, and moves it there.
    Offered Over(QStringView name, const QMimeData& data, Qt::DropActions actions = Qt::CopyAction,
                 std::optional<QPoint> at = {});
    Offered Over(QStringView name, QStringView text, Qt::DropActions actions = Qt::CopyAction);
    /// The same, and drops it where it is accepted, as a window system does.
    Offered Drop(QStringView name, QStringView text, Qt::DropActions actions = Qt::CopyAction,
                 std::optional<QPoint> at = {});
    /// Three offers, each with points, rate, payment and lender of its own; nothing unsaved.
    void FillOffers();
};

/// Lets a mouse that presses at one place of a control go to another. Not released.
void DragMouse(const QWidget& control, QPoint from, QPoint to, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
