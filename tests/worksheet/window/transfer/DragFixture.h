#pragma once

#include "WindowFixture.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPoint>

#include <optional>

/// What a dragging program learns about the field under the mouse.
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

/// The window, with drags from outside as the window system sends them.
class DragTest : public WindowTest {
protected:
    /// Moves a drag over the middle of a field, or over a position in it.
    Offered Over(QStringView name, const QMimeData& data, Qt::DropActions actions = Qt::CopyAction,
                 std::optional<QPoint> at = {});
    Offered Over(QStringView name, QStringView text, Qt::DropActions actions = Qt::CopyAction);
    /// The same, and drops it if it is accepted, as a window system does.
    Offered Drop(QStringView name, QStringView text, Qt::DropActions actions = Qt::CopyAction,
                 std::optional<QPoint> at = {});
    /// Three offers, each with different points, rate, payment and lender; nothing unsaved.
    void FillOffers();
};

/// Presses the mouse at one position of a control and moves it to another without a release.
void DragMouse(const QWidget& control, QPoint from, QPoint to, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
