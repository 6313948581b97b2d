#pragma once

// A multi-line box that takes text only through the keys the Write window's rules let by: no
// paste, no drop, no context menu, no middle-click insertion; an input method's text comes as
// keys. Keys and mouse presses go to its owner first.

#include <QPlainTextEdit>
#include <functional>

namespace veyrant {

class GuardedTextBox final : public QPlainTextEdit {
public:
    explicit GuardedTextBox(QWidget* parent);

    // Decides on a key before the box sees it: true lets the box apply it.
    std::function<bool(QKeyEvent*)> KeyFilter;
    // After the box has applied a key.
    std::function<void()> KeyApplied;
    // After the box has placed the caret for a press or finished a release.
    std::function<void(QMouseEvent*)> MousePressed;
    std::function<void(QMouseEvent*)> MouseReleased;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace veyrant
