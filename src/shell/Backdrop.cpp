#include "shell/Backdrop.h"

#include "shell/DisplayScale.h"

namespace veyrant {

void Backdrop::Load() {
    backVisible_ = true;
    hintShows_ = 0;
    hintStage_ = 0;
    label1Visible_ = false;
}

void Backdrop::MouseMove() {
    if (label1Visible_) {
        return;
    }
    hintStage_ = 0;
    windows_.StartTimer(TimerId::BackTimer, FirstDelay);
}

void Backdrop::TimerFired() {
    if (hintStage_ == 0) {
        if (hintShows_ < MostHints) {
            label1Visible_ = true;
        }
        windows_.StartTimer(TimerId::BackTimer, HintLasts);
        ++hintShows_;
        hintStage_ = 1;
        return;
    }
    label1Visible_ = false;
    windows_.StopTimer(TimerId::BackTimer);
    hintStage_ = 0;
}

void Backdrop::MouseDown() {
    backVisible_ = false;
    windows_.HideWindow(WindowId::Back);
    hintShows_ = 0;
}

bool Backdrop::RestoreFromBorder() {
    if (windows_.IsWindowVisible(WindowId::Back) ||
        windows_.ScreenWidthTwips() < SmallScreenTwips) {
        return false;
    }
    windows_.ShowWindow(WindowId::Back);
    backVisible_ = true;
    return true;
}

void Backdrop::HideHint() {
    label1Visible_ = false;
}

} // namespace veyrant
