#pragma once

#include <cstdint>

/// Pointer codes, as far as the program uses them by name.
namespace MousePointer {
inline constexpr std::int32_t Hourglass = 11;
} // namespace MousePointer

/// Changes the mouse pointer of the whole program for as long as it lives. Every way out of a
/// procedure, a failure included, brings the pointer back that was there before the first change.
class CMouse {
public:
    CMouse() = default;
    CMouse(const CMouse&) = delete;
    CMouse& operator=(const CMouse&) = delete;
    CMouse(CMouse&&) = delete;
    CMouse& operator=(CMouse&&) = delete;
    ~CMouse();

    /// A code without a pointer of its own shows the arrow.
    void SetPointer(const std::int32_t& NewPointer);

private:
    bool m_hasSaved = false;
};
