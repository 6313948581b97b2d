#pragma once

// The Write window on the screen. The logic (Mirror) holds every rule and the state of every
// control; this window copies that state onto its widgets after each event, and turns the
// widgets' events into the logic's handlers.

#include "app/Application.h"
#include "dialogue/Mirror.h"
#include "ui/ControlWindow.h"

#include <array>

class QLabel;
class QPushButton;

namespace veyrant {

class GuardedTextBox;

class MirrorWindow final : public ControlWindow {
public:
    MirrorWindow(Application& app, Mirror& mirror);

    QWidget* Widget(MirrorControl control) const { return widgets_[Index(control)]; }

protected:
    void RenderControls(bool force) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static std::size_t Index(MirrorControl control) { return static_cast<std::size_t>(control); }

    void Build();
    GuardedTextBox* MakeBox(MirrorControl control);
    QPushButton* MakeButton(MirrorControl control, QWidget* parent);
    QLabel* MakeLabel(MirrorControl control);

    bool KeyFromScreen(MirrorControl control, QKeyEvent* event);
    void ReadBack(MirrorControl control);
    void RenderControl(MirrorControl control, bool force);
    void RenderText(MirrorControl control, const Control& now, bool force = false);

    Application& app_;
    Mirror& mirror_;
    std::array<QWidget*, MirrorControlCount> widgets_{};
    MirrorControls shown_;
};

} // namespace veyrant
