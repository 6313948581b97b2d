#pragma once

#include "app/Application.h"

namespace veyrant {

// A 640 by 480 screen with a larger display option: the option drops to 0, the settings are
// stored, and the program ends so that the next start fits the screen.
void WarnSmallDisplay(Application& app);

} // namespace veyrant
