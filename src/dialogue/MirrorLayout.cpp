// Geometry of the Write window: the design places of its controls scaled once at creation, the
// three arrangements of the boxes, the text sizes, and the keys the window takes before its
// boxes.

#include "shell/MirrorLayout.h"

#include "core/KeyCodes.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorWorld.h"

#include <cmath>
#include <utility>

namespace veyrant {

namespace {

int Twips(double scaled) {
    return static_cast<int>(std::lround(scaled));
}

} // namespace

int Mirror::WindowWidth() const {
    return Twips(ScaleMirrorLayout(MirrorDesign(), world_.Scale.ScaleFactor).WindowWidth);
}

int Mirror::WindowHeight() const {
    return Twips(ScaleMirrorLayout(MirrorDesign(), world_.Scale.ScaleFactor).WindowHeight);
}

void Mirror::ScaleAtCreation() {
    const MirrorLayout layout = ScaleMirrorLayout(MirrorDesign(), world_.Scale.ScaleFactor);
    const std::pair<MirrorControl, const ControlPlace*> places[] = {
        {MirrorControl::Panel1, &layout.Panel1},
        {MirrorControl::cmdConverse, &layout.cmdConverse},
        {MirrorControl::cmdSuppose, &layout.cmdSuppose},
        {MirrorControl::cmdNotate, &layout.cmdNotate},
        {MirrorControl::cmdKnow, &layout.cmdKnow},
        {MirrorControl::cmdRetrieve, &layout.cmdRetrieve},
        {MirrorControl::cmdHelp, &layout.cmdHelp},
        {MirrorControl::cmdClear, &layout.cmdClear},
        {MirrorControl::cmdRemove, &layout.cmdRemove},
        {MirrorControl::cmdDisplay, &layout.cmdDisplay},
        {MirrorControl::cmdPrint, &layout.cmdPrint},
        {MirrorControl::cmdSave, &layout.cmdSave},
        {MirrorControl::cmdNew, &layout.cmdNew},
        {MirrorControl::txtResponse, &layout.txtResponse},
        {MirrorControl::txtMirror, &layout.txtMirror},
        {MirrorControl::txtSaved, &layout.txtSaved},
        {MirrorControl::txtAnalyze, &layout.txtAnalyze},
        {MirrorControl::txtNote, &layout.txtNote},
        {MirrorControl::lblRem, &layout.lblRem},
        {MirrorControl::lblRemS, &layout.lblRemS},
    };
    for (const auto& [id, place] : places) {
        auto& control = C(id);
        control.Left = Twips(place->Left);
        control.Top = Twips(place->Top);
        control.Width = Twips(place->Width);
        control.Height = Twips(place->Height);
        control.FontSize = world_.Scale.ButtonFontSize;
    }
    C(MirrorControl::Window).Width = Twips(layout.WindowWidth);
    C(MirrorControl::Window).Height = Twips(layout.WindowHeight);
    ApplyWriteFont();
}

void Mirror::Place(MirrorControl control, int top, int height) {
    C(control).Top = static_cast<int>(std::lround(top * world_.Scale.ScaleFactor));
    if (height > 0) {
        C(control).Height = static_cast<int>(std::lround(height * world_.Scale.ScaleFactor));
    }
}

void Mirror::ArrangeOpening() {
    Place(MirrorControl::txtResponse, 960, 1820);
    Place(MirrorControl::txtMirror, 2480, 0);
    Place(MirrorControl::txtSaved, 2760, 2745);
    C(MirrorControl::lblRem).FontSize = world_.Scale.ButtonFontSize;
}

// While an entry is typed it stands below the response; once answered, above it, so the eye
// reads entry then response.
void Mirror::ArrangeEntry() {
    Place(MirrorControl::txtResponse, 960, 1335);
    Place(MirrorControl::txtMirror, 2280, 0);
    Place(MirrorControl::lblRem, 2760, 0);
    Place(MirrorControl::txtSaved, 3000, 2175);
    C(MirrorControl::lblRem).FontSize = world_.Scale.ButtonFontSize;
}

void Mirror::ArrangeResult() {
    Place(MirrorControl::txtResponse, 1680, 1335);
    Place(MirrorControl::txtMirror, 960, 0);
    Place(MirrorControl::lblRem, 1440, 0);
    Place(MirrorControl::txtSaved, 3000, 2175);
    C(MirrorControl::lblRem).FontSize = world_.Scale.ButtonFontSize;
}

void Mirror::ApplyWriteFont() {
    const bool large = world_.UserSettings.WriteFontStep == 2;
    for (auto box : {MirrorControl::txtMirror, MirrorControl::txtResponse,
                     MirrorControl::txtAnalyze, MirrorControl::txtSaved}) {
        C(box).FontSize = large ? world_.Scale.TextSize[2] : world_.Scale.TextSize[1];
        C(box).FontBold = !large && world_.Scale.TextSize1Bold;
    }
}

void Mirror::ToggleWriteFont() {
    world_.UserSettings.WriteFontStep = world_.UserSettings.WriteFontStep == 1 ? 2 : 1;
    ApplyWriteFont();
}

int Mirror::WindowKeyDown(int keyCode) {
    if (state_.ActiveMethod == WriteMethod::NotStarted) {
        return 0;
    }
    if (state_.DisplayFull) {
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
        if (state_.ActiveMethod == WriteMethod::Converse ||
            (state_.ActiveMethod == WriteMethod::Comment && cancel) ||
            (state_.ActiveMethod == WriteMethod::Suppose && cancel)) {
            Click(MirrorControl::cmdNew);
            return 0;
        }
        if (state_.ActiveMethod == WriteMethod::Suppose) {
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
