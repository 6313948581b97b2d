#pragma once

// The logic of the Library Options window (frmOptions): the two retention limits, Guest Mode
// and the clean-out of the whole Library. It opens with the Write window hidden, and every way
// out ends the program, so that a change takes effect at the next start.

#include "core/WindowLayer.h"
#include "shell/Settings.h"
#include "storage/DialogueLibrary.h"

#include <functional>
#include <string>

namespace veyrant {

enum class OptionsControl { None, txtSetSave, txtSetDays, Check1, cmdOK, cmdCancel, cmdClean };

struct OptionsTextBox {
    std::string Text;
};

struct OptionsLabel {
    std::string Caption;
};

struct OptionsButton {
    bool Enabled = true;
};

struct OptionsControls {
    OptionsTextBox txtSetSave;
    OptionsTextBox txtSetDays;
    int Check1 = 0; // Guest Mode: 0 unchecked, 1 checked
    OptionsLabel Label3;
    OptionsLabel Label4;
    OptionsLabel lblSetSave;
    OptionsLabel lblSetDays;
    OptionsButton cmdOK;
    OptionsButton cmdCancel;
    OptionsButton cmdClean;
    OptionsControl Focus = OptionsControl::None;
    int FocusMoves = 0; // counts the moves, so that a window moves the focus once per move
};

class Options {
public:
    Options(DialogueLibrary& library, Settings& settings, WindowLayer& windows,
            std::function<void()> exitProgram, std::function<void()> unloadReader);

    const OptionsControls& Controls() const { return controls_; }

    void Form_Load();
    // The typed text, as it stands after the change, goes straight into the setting.
    void txtSetSave_Change(const std::string& text);
    void txtSetDays_Change(const std::string& text);
    void Check1_Click(int value);
    void cmdOK_Click();
    // Closing the window is the same as Cancel.
    void cmdCancel_Click();
    void cmdClean_Click();

    // The visible state, one control to a line.
    std::string Dump() const;

private:
    void ShowLimits(int files, int days);
    void MoveFocus(OptionsControl control);
    void Leave();

    DialogueLibrary& library_;
    Settings& settings_;
    WindowLayer& windows_;
    std::function<void()> exitProgram_;
    std::function<void()> unloadReader_;
    OptionsControls controls_;
    int priorFiles_ = 0;
    int priorDays_ = 0;
    int priorGuestMode_ = 0;
};

} // namespace veyrant
