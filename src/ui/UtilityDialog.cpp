#include "ui/UtilityDialog.h"

#include "shell/WindowPlacement.h"

#include <QScreen>

namespace veyrant {

UtilityDialog::UtilityDialog(double scaleFactor, QWidget* parent)
    : QDialog(parent), scaleFactor_(scaleFactor) {}

void UtilityDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (placed_) {
        return;
    }
    placed_ = true;
    FirstShown();
    if (scaleFactor_ > 1.0) {
        QFont grown = font();
        grown.setPointSizeF(grown.pointSizeF() * scaleFactor_);
        setFont(grown);
    }
    adjustSize();
    if (const QScreen* screen = this->screen()) {
        const QRect room = screen->availableGeometry();
        const ScreenPoint place =
            CentredPlace(room.width(), room.height(), width(), height(), 2.0, 1.8);
        move(room.left() + place.Left, room.top() + place.Top);
    }
}

} // namespace veyrant
