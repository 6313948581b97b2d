#pragma once

// Where a window stands on the screen: the free room on each side divided by a divisor, so a
// divisor above 2 lifts the window a little above the middle.

namespace veyrant {

struct ScreenPoint {
    int Left = 0;
    int Top = 0;
};

inline ScreenPoint CentredPlace(int screenWidth, int screenHeight, int windowWidth,
                                int windowHeight, double horizontalDivisor,
                                double verticalDivisor) {
    return {static_cast<int>((screenWidth - windowWidth) / horizontalDivisor),
            static_cast<int>((screenHeight - windowHeight) / verticalDivisor)};
}

} // namespace veyrant
