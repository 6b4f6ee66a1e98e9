#include "CMouse.h"

#include <QCursor>
#include <QGuiApplication>

#include <algorithm>
#include <array>

namespace quend::window {

namespace {

struct PointerShape {
    std::int32_t code;
    Qt::CursorShape shape;
};

constexpr std::array PointerShapes{
    PointerShape{1, Qt::ArrowCursor},      PointerShape{2, Qt::CrossCursor},
    PointerShape{3, Qt::IBeamCursor},      PointerShape{5, Qt::SizeAllCursor},
    PointerShape{6, Qt::SizeBDiagCursor},  PointerShape{7, Qt::SizeVerCursor},
    PointerShape{8, Qt::SizeFDiagCursor},  PointerShape{9, Qt::SizeHorCursor},
    PointerShape{10, Qt::UpArrowCursor},   PointerShape{MousePointer::Hourglass, Qt::WaitCursor},
    PointerShape{12, Qt::ForbiddenCursor}, PointerShape{13, Qt::BusyCursor},
    PointerShape{14, Qt::WhatsThisCursor}, PointerShape{15, Qt::SizeAllCursor},
};

Qt::CursorShape ShapeOf(std::int32_t code) {
    const auto* found = std::ranges::find(PointerShapes, code, &PointerShape::code);
    return found == PointerShapes.end() ? Qt::ArrowCursor : found->shape;
}

} // namespace

void CMouse::SetPointer(const std::int32_t& NewPointer) {
    if (m_hasSaved) {
        QGuiApplication::changeOverrideCursor(ShapeOf(NewPointer));
        return;
    }
    // Qt keeps the override cursors on a stack.
    QGuiApplication::setOverrideCursor(ShapeOf(NewPointer));
    m_hasSaved = true;
}

CMouse::~CMouse() {
    if (m_hasSaved) {
        QGuiApplication::restoreOverrideCursor();
    }
}

} // namespace quend::window
