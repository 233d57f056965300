#pragma once
// Qt's mouse buttons and keys as the form's mouse events count them.
#include <Qt>

#include <cstdint>

namespace platform::qt {

// Shift 1, Ctrl 2, Alt 4, summed.
inline int16_t shiftState(Qt::KeyboardModifiers m) {
    return static_cast<int16_t>((m & Qt::ShiftModifier ? 1 : 0) |
                                (m & Qt::ControlModifier ? 2 : 0) | (m & Qt::AltModifier ? 4 : 0));
}

// Qt's left, right and middle are 1, 2 and 4, as the form's events count them.
inline int16_t buttonBits(Qt::MouseButtons b) {
    return static_cast<int16_t>(b & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton));
}

} // namespace platform::qt
