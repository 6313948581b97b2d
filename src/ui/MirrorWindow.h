#pragma once

// The Write window on the screen. The logic (Mirror) holds every rule and the state of every
// control; this window copies that state onto its widgets after each event, and turns the
// widgets' events into the logic's handlers.

#include "app/Application.h"
#include "dialogue/Mirror.h"

#include <QWidget>
#include <array>
#include <functional>

class QLabel;
class QPushButton;

namespace veyrant {

class GuardedTextBox;

class MirrorWindow final : public QWidget {
public:
    MirrorWindow(Application& app, Mirror& mirror);

    // Copies the logic's state onto the widgets, touching only what changed.
    void Render();

    QWidget* Widget(MirrorControl control) const { return widgets_[Index(control)]; }

    // Runs when the user closes the window; the window itself stays until the logic hides it.
    std::function<void()> OnClose;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static std::size_t Index(MirrorControl control) { return static_cast<std::size_t>(control); }

    void Build();
    GuardedTextBox* MakeBox(MirrorControl control);
    QPushButton* MakeButton(MirrorControl control, QWidget* parent);
    QLabel* MakeLabel(MirrorControl control);
    void Watch(QWidget* widget, MirrorControl control);

    bool KeyFromScreen(MirrorControl control, QKeyEvent* event);
    void ReadBack(MirrorControl control);
    void RenderControl(MirrorControl control, bool force);
    void RenderText(MirrorControl control, const Control& now, bool force = false);

    Application& app_;
    Mirror& mirror_;
    std::array<QWidget*, MirrorControlCount> widgets_{};
    MirrorControls shown_;
    bool rendered_ = false;
    bool rendering_ = false;
};

} // namespace veyrant
