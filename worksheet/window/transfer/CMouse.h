#pragma once

#include <QtGlobal>

#include <cstdint>

namespace quend::window {

/// The pointer codes that the program uses by name.
namespace MousePointer {
inline constexpr std::int32_t Hourglass = 11;
} // namespace MousePointer

/// Changes the mouse pointer of the whole program during its lifetime. The destructor restores the
/// pointer from before the first change, so that a failure restores it, too.
class CMouse {
public:
    CMouse() = default;
    Q_DISABLE_COPY_MOVE(CMouse)
    ~CMouse();

    /// An unknown code shows the arrow.
    void SetPointer(const std::int32_t& NewPointer);

private:
    bool m_hasSaved = false;
};

} // namespace quend::window
