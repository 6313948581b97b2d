#include "shell/DisplayScale.h"

namespace veyrant {

namespace {

struct ScaleRow {
    double ScaleFactor;
    double Size1;
    double Size2;
    double Size3;
    bool Size1Bold;
    double ControlSmall;
    double ControlLarge;
};

constexpr std::array<ScaleRow, 4> ScaleTable{{
    {0.9, 11, 12, 13.5, true, 8.25, 9.75},
    {1.0, 12, 13.5, 15, true, 8.25, 9.75},
    {1.21, 14, 16, 18, false, 9.75, 12},
    {1.45, 16.5, 19, 22, false, 12, 13.5},
}};

} // namespace

void SetDisplayScale(int displayOption, DisplayScale& scale) {
    if (displayOption < 0 || displayOption >= static_cast<int>(ScaleTable.size())) {
        return;
    }
    const ScaleRow& row = ScaleTable[static_cast<std::size_t>(displayOption)];
    scale.ScaleFactor = row.ScaleFactor;
    scale.TextSize = {0, row.Size1, row.Size2, row.Size3};
    scale.TextSize1Bold = row.Size1Bold;
    scale.ControlFontSmall = row.ControlSmall;
    scale.ControlFontLarge = row.ControlLarge;
    scale.ButtonFontSize = row.ControlSmall;
}

int DisplayOptionForScreen(int screenWidthTwips) {
    if (screenWidthTwips < SmallScreenTwips) {
        return 0;
    }
    return screenWidthTwips < 19200 ? 1 : 2;
}

} // namespace veyrant
