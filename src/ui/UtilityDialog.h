#pragma once

// A window opened from the Utilities: it grows with the display scale and, the first time it is
// shown, stands a little below the middle of the screen.

#include <QDialog>

namespace veyrant {

class UtilityDialog : public QDialog {
protected:
    // A scale of 1 leaves the font as it is.
    UtilityDialog(double scaleFactor, QWidget* parent);

    void showEvent(QShowEvent* event) override;

    // Fills the window at its first showing, before it is placed.
    virtual void FirstShown() {}

private:
    double scaleFactor_;
    bool placed_ = false;
};

} // namespace veyrant
