#pragma once

// The logic of the Display Size window (frmResize): the four scales of every window, and whether
// misspelt words are marked. A choice is stored at once and takes effect at the next start, since
// every way out ends the program.

#include "core/WindowLayer.h"
#include "shell/Preferences.h"
#include "shell/Settings.h"

#include <array>
#include <functional>
#include <string>

namespace veyrant {

struct ResizeOption {
    std::string Name; // the control's name
    std::string Caption;
    int Value = 0; // the DisplayOption it stands for
    bool Checked = false;
};

struct ResizeCheck {
    std::string Name; // the control's name
    std::string Caption;
    bool Checked = false;
};

struct ResizeControls {
    std::string Title = "Display Size";
    // In the order the window shows them, smallest scale first.
    std::array<ResizeOption, 4> Choices{{
        {"Option4", "90% for 12\" display, 640x480 (not recomnd)", 0},
        {"Option1", "100% for 15\" display, 800x600 resolution", 1},
        {"Option2", "120% for 17\" display, 1280x960 resolution", 2},
        {"Option3", "145% for 19\" display, 1600x1200 resolution", 3},
    }};
    ResizeCheck chkSpelling{"chkSpelling", "Mark misspelt words while typing"};
};

class Resize {
public:
    Resize(Settings& settings, Preferences& preferences, WindowLayer& windows,
           std::function<void()> exitProgram);

    const ResizeControls& Controls() const { return controls_; }

    void Form_Load();
    void Option_Click(int value);
    void chkSpelling_Click(bool checked);
    void cmdOK_Click();
    // Closing the window is the same as Cancel.
    void cmdCancel_Click();

    // The visible state, one control to a line.
    std::string Dump() const;

private:
    void Tick(int value);
    void Leave();

    Settings& settings_;
    Preferences& preferences_;
    WindowLayer& windows_;
    std::function<void()> exitProgram_;
    ResizeControls controls_;
    std::int16_t priorOption_ = 1;
    bool priorSpelling_ = true;
};

} // namespace veyrant
