#pragma once

// The logic places controls in twips; the screen in pixels.

#include "core/WindowLayer.h"

#include <cmath>

namespace veyrant {

inline int Pixels(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / TwipsPerPixel));
}

} // namespace veyrant
