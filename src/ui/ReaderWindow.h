#pragma once

// The Read window on the screen. The logic (Reader) holds every rule and the state of every
// control; this window copies that state onto its widgets after each event, and turns the
// widgets' events into the logic's handlers. Keys go to the window itself, which stands for
// txtCursor, so no caret ever shows.

#include "app/Application.h"
#include "reader/Reader.h"
#include "ui/ControlWindow.h"

#include <array>

class QListWidget;
class QPlainTextEdit;

namespace veyrant {

class ReaderWindow final : public ControlWindow {
public:
    ReaderWindow(Application& app, Reader& reader);

    QWidget* Widget(ReaderControl control) const { return widgets_[Index(control)]; }

protected:
    void RenderControls(bool force) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static std::size_t Index(ReaderControl control) { return static_cast<std::size_t>(control); }

    void Build();
    void RenderControl(ReaderControl control, bool force);
    void RenderList(bool force);
    void RenderText(bool force);
    // A key the logic left unused scrolls the text box, if it shows.
    void ScrollText(int key);
    // A key in the search box: true when the window used it, false to let the box edit.
    bool SearchKey(QKeyEvent* event);

    Application& app_;
    Reader& reader_;
    std::array<QWidget*, ReaderControlCount> widgets_{};
    QListWidget* list_ = nullptr;
    QPlainTextEdit* spin_ = nullptr;
    ReaderControls shown_;
    // txtSpin moved or came into view, so its caret must be brought into view again.
    bool spinPlaced_ = false;
};

} // namespace veyrant
