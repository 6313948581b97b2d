#pragma once

// The Display Size window (frmResize) over its logic: four scales to choose from and the spelling
// marks to turn on or off, stored at the click, and OK or Cancel, both of which end the program.

#include "shell/Resize.h"
#include "ui/UtilityDialog.h"

#include <array>

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace veyrant {

class ResizeWindow : public UtilityDialog {
public:
    ResizeWindow(Resize& resize, double scaleFactor, QWidget* parent = nullptr);

    // Escape and the window's close box are Cancel.
    void reject() override;

protected:
    // The window loads the first time it is shown, as the program's windows do.
    void FirstShown() override;

private:
    void Render();

    Resize& resize_;
    std::array<QRadioButton*, 4> choices_{};
    QCheckBox* chkSpelling_;
    QPushButton* cmdOK_;
    QPushButton* cmdCancel_;
};

} // namespace veyrant
