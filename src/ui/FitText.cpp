#include "ui/FitText.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>

namespace veyrant {

namespace {

constexpr double SmallestPoints = 6.5;
constexpr double PointStep = 0.5;

// The room a line edit's frame and margins leave for its text.
double LineRoom(const QLineEdit& line) {
    const QMargins margins = line.textMargins();
    constexpr int FrameAndPadding = 8;
    return line.width() - margins.left() - margins.right() - FrameAndPadding;
}

} // namespace

void FitWrappedText(QLabel& label, QFont font) {
    label.setFont(font);
    while (label.heightForWidth(label.width()) > label.height() &&
           font.pointSizeF() > SmallestPoints) {
        font.setPointSizeF(font.pointSizeF() - PointStep);
        label.setFont(font);
    }
}

void FitLineText(QLineEdit& line, QFont font) {
    while (QFontMetricsF(font).horizontalAdvance(line.text()) > LineRoom(line) &&
           font.pointSizeF() > SmallestPoints) {
        font.setPointSizeF(font.pointSizeF() - PointStep);
    }
    line.setFont(font);
}

} // namespace veyrant
