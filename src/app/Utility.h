#pragma once

// The logic of the Utilities window (frmUtility): the windows that can only run with the Write
// window out of the way. Every way out ends the program, so the user starts it again to see the
// change.

#include "core/WindowLayer.h"

#include <functional>
#include <string>

namespace veyrant {

struct UtilityButton {
    std::string Caption;
};

struct UtilityControls {
    std::string Title = "Veyrant Sagrel Utilities";
    UtilityButton cmdOptions{"Library Options Window"};
    UtilityButton cmdResize{"Display Size Window"};
    UtilityButton cmdExport{"Export Library"};
    UtilityButton cmdAbout{"About Veyrant Sagrel"};
};

// The About box's text, one group of lines after another with a blank line between them.
std::string AboutText(const std::string& versionString, const std::string& programYear);

class Utility {
public:
    Utility(WindowLayer& windows, std::string versionString, std::string programYear,
            std::function<void()> exitProgram);

    const UtilityControls& Controls() const { return controls_; }

    void cmdOptions_Click();
    void cmdResize_Click();
    void cmdExport_Click();
    void cmdAbout_Click();
    void Form_Close();

    // The visible state, one control to a line.
    std::string Dump() const;

private:
    void ShowInstead(WindowId window);

    WindowLayer& windows_;
    std::string versionString_;
    std::string programYear_;
    std::function<void()> exitProgram_;
    UtilityControls controls_;
};

} // namespace veyrant
