#pragma once

// The plumbing of a window whose logic holds every rule and the state of every control: after
// each event the window copies that state onto its widgets, touching only what changed, and it
// tells the logic which control each event came from.

#include "core/Control.h"

#include <QFont>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

class QPlainTextEdit;
class QPushButton;

namespace veyrant {

class ControlWindow : public QWidget {
public:
    // Copies the logic's state onto the widgets, touching only what changed.
    void Render();

    // Runs when the user closes the window; the window itself stays until the logic hides it.
    std::function<void()> OnClose;

protected:
    ControlWindow();

    // The window's own part of Render; `force` at the first, when no widget shows anything yet.
    virtual void RenderControls(bool force) = 0;

    // The events of `widget` reach eventFilter, and the pointer's moves with them.
    void Watch(QWidget* widget, int control);
    template <typename ControlId>
    void Watch(QWidget* widget, ControlId control) {
        Watch(widget, static_cast<int>(control));
    }
    // The control a watched widget stands for; none for a widget not watched.
    static std::optional<int> WatchedControl(const QObject* watched);

    // The title, and the icon text that names the window while it is minimised.
    void RenderTitle(const std::string& now, std::string& was, bool force);

    bool Rendered() const { return rendered_; }
    bool Rendering() const { return rendering_; }

    void closeEvent(QCloseEvent* event) override;

private:
    bool rendered_ = false;
    bool rendering_ = false;
};

// A control's place and whether it takes input.
void RenderPlace(QWidget& widget, const Control& now, const Control& was, bool force);

// The font the logic gives a control, on the given face.
QFont DesignedFont(QFont font, const Control& now);

// A button's caption, its help for a screen reader, and the marks of a button pressed in and of
// the one the pointer rests on.
void RenderButton(QPushButton& button, const Control& now, const Control& was, bool force,
                  const QString& caption, const QString& help);

// The caret and the selection of a text box, brought into view where `intoView`.
void RenderCaret(QPlainTextEdit& box, const Control& now, bool intoView);

} // namespace veyrant
