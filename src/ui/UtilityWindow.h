#pragma once

// The Utilities window (frmUtility) over its logic: four buttons, each leading to one other
// window, and the close box, which ends the program.

#include "app/Utility.h"
#include "ui/UtilityDialog.h"

class QPushButton;

namespace veyrant {

class UtilityWindow : public UtilityDialog {
public:
    UtilityWindow(Utility& utility, double scaleFactor, QWidget* parent = nullptr);

    // Escape and the window's close box both close the window, which ends the program.
    void reject() override;

private:
    Utility& utility_;
    QPushButton* cmdOptions_;
    QPushButton* cmdResize_;
    QPushButton* cmdExport_;
    QPushButton* cmdAbout_;
};

} // namespace veyrant
