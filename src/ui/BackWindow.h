#pragma once

// The backdrop on the screen: a plain window over the whole screen with its one hint.

#include "shell/Backdrop.h"

#include <QWidget>

class QLabel;

namespace veyrant {

class BackWindow final : public QWidget {
public:
    explicit BackWindow(Backdrop& backdrop);

    void Render();

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Backdrop& backdrop_;
    QLabel* label1_ = nullptr;
};

} // namespace veyrant
