// Geometry of the Write window: the design places of its controls scaled once at creation, the
// three arrangements of the boxes, the text sizes, and the keys the window takes before its
// boxes.

#include "dialogue/KeyCodes.h"
#include "dialogue/Mirror.h"
#include "shell/Settings.h"

#include <cmath>

namespace veyrant {

namespace {

struct DesignPlace {
    MirrorControl Control;
    int Left;
    int Top;
    int Width;
    int Height;
};

// Twips at the design size. The boxes' vertical places are those of the arrangements; the
// buttons sit on Panel1 above them and in a column to their right.
constexpr DesignPlace DesignPlaces[] = {
    {MirrorControl::Panel1, 0, 0, 9060, 840},
    {MirrorControl::cmdConverse, 240, 180, 1200, 480},
    {MirrorControl::cmdSuppose, 1500, 180, 1200, 480},
    {MirrorControl::cmdNotate, 2760, 180, 1200, 480},
    {MirrorControl::cmdKnow, 5100, 180, 1140, 480},
    {MirrorControl::cmdRetrieve, 6300, 180, 1140, 480},
    {MirrorControl::cmdHelp, 7680, 180, 1140, 480},
    {MirrorControl::txtResponse, 240, 960, 6960, 1335},
    {MirrorControl::txtMirror, 240, 2280, 6960, 660},
    {MirrorControl::txtAnalyze, 240, 3000, 6960, 2175},
    {MirrorControl::txtSaved, 240, 3000, 6960, 2175},
    {MirrorControl::lblRem, 7230, 2760, 420, 300},
    {MirrorControl::lblRemS, 7230, 4875, 420, 300},
    {MirrorControl::cmdClear, 7740, 960, 1080, 480},
    {MirrorControl::cmdRemove, 7740, 1560, 1080, 480},
    {MirrorControl::cmdDisplay, 7740, 2160, 1080, 480},
    {MirrorControl::cmdPrint, 7740, 3000, 1080, 480},
    {MirrorControl::cmdSave, 7740, 3600, 1080, 480},
    {MirrorControl::cmdNew, 7740, 4695, 1080, 480},
    {MirrorControl::txtNote, 240, 5610, 8580, 450},
};

constexpr int DesignClientWidth = 9060;
constexpr int DesignClientHeight = 6210;
// The frame of the window is not scaled.
constexpr int FrameWidth = 90;
constexpr int FrameHeight = 405;

} // namespace

int Mirror::WindowWidth() const {
    return static_cast<int>(std::lround(DesignClientWidth * scale_.ScaleFactor)) + FrameWidth;
}

int Mirror::WindowHeight() const {
    return static_cast<int>(std::lround(DesignClientHeight * scale_.ScaleFactor)) + FrameHeight;
}

void Mirror::ScaleAtCreation() {
    const auto scaled = [this](int twips) {
        return static_cast<int>(std::lround(twips * scale_.ScaleFactor));
    };
    for (const auto& place : DesignPlaces) {
        auto& control = C(place.Control);
        control.Left = scaled(place.Left);
        control.Top = scaled(place.Top);
        control.Width = scaled(place.Width);
        control.Height = scaled(place.Height);
        control.FontSize = scale_.ButtonFontSize;
    }
    C(MirrorControl::Window).Width = WindowWidth();
    C(MirrorControl::Window).Height = WindowHeight();
    ApplyWriteFont();
}

void Mirror::Place(MirrorControl control, int top, int height) {
    C(control).Top = static_cast<int>(std::lround(top * scale_.ScaleFactor));
    if (height > 0) {
        C(control).Height = static_cast<int>(std::lround(height * scale_.ScaleFactor));
    }
}

void Mirror::ArrangeOpening() {
    Place(MirrorControl::txtResponse, 960, 1820);
    Place(MirrorControl::txtMirror, 2480, 0);
    Place(MirrorControl::txtSaved, 2760, 2745);
    C(MirrorControl::lblRem).FontSize = scale_.ButtonFontSize;
}

// While an entry is typed it stands below the response; once answered, above it, so the eye
// reads entry then response.
void Mirror::ArrangeEntry() {
    Place(MirrorControl::txtResponse, 960, 1335);
    Place(MirrorControl::txtMirror, 2280, 0);
    Place(MirrorControl::lblRem, 2760, 0);
    Place(MirrorControl::txtSaved, 3000, 2175);
    C(MirrorControl::lblRem).FontSize = scale_.ButtonFontSize;
}

void Mirror::ArrangeResult() {
    Place(MirrorControl::txtResponse, 1680, 1335);
    Place(MirrorControl::txtMirror, 960, 0);
    Place(MirrorControl::lblRem, 1440, 0);
    Place(MirrorControl::txtSaved, 3000, 2175);
    C(MirrorControl::lblRem).FontSize = scale_.ButtonFontSize;
}

void Mirror::ApplyWriteFont() {
    const bool large = settings_.WriteFontStep == 2;
    for (auto box : {MirrorControl::txtMirror, MirrorControl::txtResponse,
                     MirrorControl::txtAnalyze, MirrorControl::txtSaved}) {
        C(box).FontSize = large ? scale_.TextSize2 : scale_.TextSize1;
        C(box).FontBold = !large && scale_.TextSize1Bold;
    }
}

void Mirror::ToggleWriteFont() {
    settings_.WriteFontStep = settings_.WriteFontStep == 1 ? 2 : 1;
    ApplyWriteFont();
}

int Mirror::WindowKeyDown(int keyCode) {
    if (state_.ActiveMethod == -1) {
        return 0;
    }
    if (state_.DisplayFull == 1) {
        auto& saved = C(MirrorControl::txtSaved);
        if (keyCode == KeyCode::Up || keyCode == KeyCode::PageUp || keyCode == KeyCode::Home) {
            saved.Caret = 0;
            return 0;
        }
        if (keyCode == KeyCode::Down || keyCode == KeyCode::PageDown || keyCode == KeyCode::End) {
            saved.Caret = static_cast<long>(saved.Text.size());
            return 0;
        }
    }
    if (keyCode == KeyCode::Escape) {
        const bool cancel = C(MirrorControl::cmdNew).Text == "Cancel";
        if (state_.ActiveMethod == 1 || (state_.ActiveMethod == 4 && cancel) ||
            (state_.ActiveMethod == 2 && cancel)) {
            Click(MirrorControl::cmdNew);
            return 0;
        }
        if (state_.ActiveMethod == 2) {
            keyCode = KeyCode::Function(5);
        }
    }
    if (keyCode >= KeyCode::Function(1) && keyCode <= KeyCode::Function(12)) {
        PressFunctionKey(keyCode - KeyCode::F1 + 1);
        return 0;
    }
    return keyCode;
}

// Each function key stands for a mouse press and click on its button, unless the button's state
// says the click would mean nothing.
void Mirror::PressFunctionKey(int number) {
    const auto pressAndClick = [this](MirrorControl button, MouseButton mouse, bool needsEnabled) {
        const auto& control = C(button);
        if (control.PressedIn || (needsEnabled && !control.Enabled)) {
            return;
        }
        MouseDown(button, mouse);
        Click(button);
    };
    const auto clickOnly = [this](MirrorControl button, std::string_view refusedCaption) {
        const auto& control = C(button);
        if (!control.Enabled || control.Text == refusedCaption) {
            return;
        }
        Click(button);
    };
    switch (number) {
    case 1:
        pressAndClick(MirrorControl::cmdHelp, MouseButton::Left, false);
        break;
    case 2:
        pressAndClick(MirrorControl::cmdKnow, MouseButton::Left, false);
        break;
    case 3:
        pressAndClick(MirrorControl::cmdRetrieve, MouseButton::Left, true);
        break;
    case 4:
        pressAndClick(MirrorControl::cmdKnow, MouseButton::Right, false);
        break;
    case 5:
        pressAndClick(MirrorControl::cmdConverse, MouseButton::Left, true);
        break;
    case 6:
        pressAndClick(MirrorControl::cmdSuppose, MouseButton::Left, true);
        break;
    case 7:
        pressAndClick(MirrorControl::cmdNotate, MouseButton::Left, true);
        break;
    case 9:
        clickOnly(MirrorControl::cmdClear, {});
        break;
    case 10:
        clickOnly(MirrorControl::cmdRemove, "Continue");
        break;
    case 11:
        clickOnly(MirrorControl::cmdDisplay, "File");
        break;
    case 12:
        clickOnly(MirrorControl::cmdNew, {});
        break;
    default:
        break;
    }
}

} // namespace veyrant
