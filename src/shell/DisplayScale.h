#pragma once

// The display scale: every window is laid out for one design size and multiplied by the factor of
// the user's display option. The Write window uses text sizes 1 and 2, the Reader all three.

#include <array>

namespace veyrant {

struct DisplayScale {
    double ScaleFactor = 0;
    // Text sizes 1 to 3 in points; index 0 is idle.
    std::array<double, 4> TextSize{};
    // Only text size 1 is ever bold, and only on the two smaller options.
    bool TextSize1Bold = false;
    double ControlFontSmall = 0;
    double ControlFontLarge = 0;
    // The small control font, as the buttons and marks of every window use it.
    double ButtonFontSize = 0;
};

// Fills the scale from a display option 0 to 3. Any other option finds no row and leaves the
// scale as it was, so a factor of 0 stays 0: what the settings file says is used as it stands.
void SetDisplayScale(int displayOption, DisplayScale& scale);

// The display option a screen of this width gets when the settings file has to be made afresh.
int DisplayOptionForScreen(int screenWidthTwips);

// Below this width the screen counts as 640 by 480: no backdrop, and only option 0 fits.
inline constexpr int SmallScreenTwips = 12000;

} // namespace veyrant
