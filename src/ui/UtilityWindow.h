#pragma once

// The Utilities window (frmUtility) over its logic: four buttons, each leading to one other
// window, and the close box, which ends the program.

#include "app/Utility.h"

#include <QDialog>

class QPushButton;

namespace veyrant {

// The windows opened from the Utilities grow with the display scale and stand a little below the
// middle of the screen. A scale of 1 leaves the font as it is.
void PlaceUtilityWindow(QWidget& window, double scaleFactor);

class UtilityWindow : public QDialog {
public:
    UtilityWindow(Utility& utility, double scaleFactor, QWidget* parent = nullptr);

    // Escape and the window's close box both close the window, which ends the program.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    Utility& utility_;
    double scaleFactor_;
    bool placed_ = false;
    QPushButton* cmdOptions_;
    QPushButton* cmdResize_;
    QPushButton* cmdExport_;
    QPushButton* cmdAbout_;
};

} // namespace veyrant
