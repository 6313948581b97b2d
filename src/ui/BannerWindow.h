#pragma once

// The banner that stands while the program loads and for its last moments: the program's name
// on a quiet picture inside a frame, on a frameless window a little above the middle.

#include "core/WindowLayer.h"

#include <QWidget>

namespace veyrant {

class BannerWindow final : public QWidget {
public:
    explicit BannerWindow(const WindowLayer& windows);

    // Places in twips; the window fits them.
    static constexpr int PictureLeft = 720;
    static constexpr int PictureTop = 840;
    static constexpr int FrameInset = 360;
    static constexpr int PictureWidth = 6240;
    static constexpr int PictureHeight = 3120;
    static constexpr int BottomMargin = 570;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace veyrant
