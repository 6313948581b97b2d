#pragma once

// What the Write window's logic reaches of the program around it: the clock, chance, the window
// layer, the display scale, the user's settings and the program's closing state. The composition
// root fills it; the logic never sees the whole application.

#include "core/Clock.h"
#include "core/Random.h"
#include "core/WindowLayer.h"
#include "shell/ClosingState.h"
#include "shell/DisplayScale.h"
#include "shell/Settings.h"

#include <cstdint>

namespace veyrant {

struct MirrorWorld {
    veyrant::Clock& Clock;
    veyrant::Random& Random;
    WindowLayer& Windows;
    const DisplayScale& Scale;
    Settings& UserSettings;
    std::int16_t& ClosingState;
};

} // namespace veyrant
