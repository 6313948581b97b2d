#pragma once

// A colour's value, as the screen takes it.

namespace veyrant {

struct Rgb {
    int Red = 0;
    int Green = 0;
    int Blue = 0;
};

} // namespace veyrant
