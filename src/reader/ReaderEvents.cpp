// The window's events as the screen reports them, sent to the routine that owns each control,
// the geometry set at load, and the few platform calls that must show the state first.

#include "reader/Reader.h"

#include <cmath>

namespace veyrant {

namespace {

struct DesignPlace {
    ReaderControl Control;
    int Left;
    int Top;
    int Width;
    int Height;
};

// The designed window, frame included, and its controls, in twips at a scale of 1. The list's
// height and the text box's place change with the mode; these are the split ones.
constexpr int DesignWidth = 9090;
constexpr int DesignHeight = 7365;
constexpr DesignPlace DesignPlaces[] = {
    {ReaderControl::txtNote, 120, 120, 8760, 360},
    {ReaderControl::Panel1, 0, 540, 9000, 390},
    {ReaderControl::cmdSelect, 120, 570, 1440, 330},
    {ReaderControl::cmdPrior, 1620, 570, 1200, 330},
    {ReaderControl::cmdNext, 2880, 570, 1200, 330},
    {ReaderControl::cmdWindow, 4140, 570, 1080, 330},
    {ReaderControl::txtSearch, 5400, 570, 2400, 330},
    {ReaderControl::cmdSearch, 7860, 570, 1020, 330},
    {ReaderControl::List1, 120, 960, 8760, 2595},
    {ReaderControl::txtSpin, 120, 3600, 8760, 2775},
    {ReaderControl::cmdExitM, 120, 6480, 1500, 360},
    {ReaderControl::cmdPrint, 5340, 6480, 1140, 360},
    {ReaderControl::cmdFile, 6540, 6480, 1140, 360},
    {ReaderControl::cmdDelete, 7740, 6480, 1140, 360},
};

int Scaled(int twips, double factor) {
    return static_cast<int>(std::lround(twips * factor));
}

} // namespace

void Reader::ScaleReader() {
    const double s = world_.Scale.ScaleFactor;
    windowWidth_ = Scaled(DesignWidth - 405, s) + 405;
    windowHeight_ = Scaled(DesignHeight - 90, s) + 90;
    for (const auto& place : DesignPlaces) {
        auto& control = C(place.Control);
        control.Left = Scaled(place.Left, s);
        control.Top = Scaled(place.Top, s);
        control.Width = Scaled(place.Width, s);
        control.Height = Scaled(place.Height, s);
    }
    C(ReaderControl::txtSearch).FontSize = world_.Scale.TextSize[1];
    C(ReaderControl::txtSearch).FontBold = world_.Scale.TextSize1Bold;
    for (auto control :
         {ReaderControl::cmdDelete, ReaderControl::cmdNext, ReaderControl::cmdPrior,
          ReaderControl::cmdSelect, ReaderControl::cmdWindow, ReaderControl::txtNote}) {
        C(control).FontSize = world_.Scale.ControlFontSmall;
    }
    for (auto control : {ReaderControl::cmdSearch, ReaderControl::cmdExitM, ReaderControl::cmdPrint,
                         ReaderControl::cmdFile}) {
        C(control).FontSize = world_.Scale.ControlFontLarge;
    }
}

int Reader::WindowWidth() const {
    return windowWidth_;
}

int Reader::WindowHeight() const {
    return windowHeight_;
}

void Reader::Click(ReaderControl control) {
    // A disabled button takes no click, however the click came: its handler assumes the state
    // that enables it, such as an open Dialogue for Delete.
    if (IsReaderButton(control) && !C(control).Enabled) {
        return;
    }
    switch (control) {
    case ReaderControl::cmdSearch:
        ClickSearch();
        break;
    case ReaderControl::txtSearch:
        ClickSearchBox();
        break;
    case ReaderControl::cmdNext:
        Step(1);
        break;
    case ReaderControl::cmdPrior:
        Step(-1);
        break;
    case ReaderControl::cmdSelect:
        ClickSelect();
        break;
    case ReaderControl::cmdWindow:
        ClickWindow();
        break;
    case ReaderControl::cmdExitM:
        ClickMarkExit();
        break;
    case ReaderControl::cmdPrint:
        ClickPrint();
        break;
    case ReaderControl::cmdFile:
        FileOpenDialogue();
        break;
    case ReaderControl::cmdDelete:
        DeleteOpenDialogue();
        break;
    case ReaderControl::txtSpin:
        // The release of a right-click that changed the font is no toggle.
        if (state_.SpinRightClick) {
            state_.SpinRightClick = false;
        } else {
            ClickWindow();
        }
        break;
    default:
        break;
    }
}

void Reader::MouseDown(ReaderControl control, MouseButton button) {
    // A left press begins a click of its own: the release of a font step's right-click has
    // passed, even where the step's box took it.
    if (control == ReaderControl::txtSpin && button == MouseButton::Left) {
        state_.SpinRightClick = false;
    }
    if (control == ReaderControl::txtSpin && button == MouseButton::Right) {
        state_.SpinRightClick = true;
        Message("Change Font Size", "There are three font sizes available in the Read window.");
        CycleFontStep();
        return;
    }
    if (IsReaderButton(control)) {
        if (button == MouseButton::Right) {
            Message("Veyrant Sagrel Help",
                    std::string("Right-click is not available on the ") +
                        (control == ReaderControl::cmdWindow ? "Veyrant Sagrel " : "") +
                        "Reader. Close this message, then press 'F1' to review the Read window "
                        "instructions.");
        } else {
            C(control).PressedIn = true;
        }
        return;
    }
    if (control == ReaderControl::txtSearch && button == MouseButton::Right) {
        Message("Veyrant Sagrel Help", "Right-click text menus are not available. Text cannot be "
                                       "copied or entered with cut and paste procedures.");
        return;
    }
    // Any button on the bare window brings the backdrop back.
    if (control == ReaderControl::Window || control == ReaderControl::Panel1) {
        BackgroundPress();
    }
}

void Reader::MouseUp(ReaderControl control, MouseButton) {
    if (IsReaderButton(control)) {
        C(control).PressedIn = false;
    }
}

void Reader::MouseMove(ReaderControl control) {
    if (IsReaderButton(control)) {
        if (C(control).Enabled) {
            MarkHover(control);
        }
        return;
    }
    switch (control) {
    case ReaderControl::List1:
    case ReaderControl::txtSpin:
        hover_.End();
        break;
    case ReaderControl::txtNote:
        NoteHover();
        break;
    case ReaderControl::Window:
    case ReaderControl::Panel1:
        BackgroundMove();
        break;
    default:
        break;
    }
}

void Reader::TimerFired(TimerId timer) {
    if (timer == TimerId::ReadHover) {
        hover_.Tick(state_.NoteText, state_.NoteColor);
    }
}

MessageAnswer Reader::Message(const std::string& title, const std::string& text) {
    Paint();
    MessageBoxRequest request;
    request.Title = title;
    request.Text = text;
    return world_.Windows.ShowMessage(request);
}

void Reader::Paint() {
    if (painter_) {
        painter_();
    }
}

} // namespace veyrant
