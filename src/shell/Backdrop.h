#pragma once

// The plain backdrop behind the program's windows (frmBack). A click on it takes it away; a
// click on the border of the Write or Read window brings it back. While the pointer moves over
// it a hint tells how, at most three times in one life of the window.

#include "core/WindowLayer.h"

#include <string>

namespace veyrant {

class Backdrop {
public:
    explicit Backdrop(WindowLayer& windows) : windows_(windows) {}

    static constexpr const char* Title = "Veyrant Ardelune";
    static constexpr const char* HintText =
        "Remove the background by clicking this window. To restore the background, click the "
        "Write or Read window border.";

    // The window is built: it counts as shown, with no hint yet.
    void Load();
    void MouseMove();
    void MouseDown();
    void TimerFired();

    // A press on the border of the Write or Read window: shows the backdrop again when it is
    // hidden and the screen is wide enough. True when it was shown, so the caller comes to the
    // front.
    bool RestoreFromBorder();
    // The pointer went onto another window's background while the backdrop shows.
    void HideHint();

    bool BackVisible() const { return backVisible_; }
    bool HintShowing() const { return label1Visible_; }

private:
    static constexpr int FirstDelay = 500;
    static constexpr int HintLasts = 6000;
    static constexpr int MostHints = 3;

    WindowLayer& windows_;
    bool backVisible_ = false;
    int hintStage_ = 0; // 0 waiting, 1 the hint is up
    int hintShows_ = 0;
    bool label1Visible_ = false;
};

} // namespace veyrant
