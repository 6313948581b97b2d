#include "ui/GuardedTextBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace veyrant {

GuardedTextBox::GuardedTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
    setUndoRedoEnabled(false);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setTabChangesFocus(false);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void GuardedTextBox::keyPressEvent(QKeyEvent* event) {
    if (KeyFilter && !KeyFilter(event)) {
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
    if (KeyApplied) {
        KeyApplied();
    }
}

// Text from an input method goes through the key rules one character at a time, as typed keys
// do; what it shows while composing never enters the box.
void GuardedTextBox::inputMethodEvent(QInputMethodEvent* event) {
    for (const char32_t character : event->commitString().toUcs4()) {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&character, 1));
        keyPressEvent(&key);
    }
    event->accept();
}

void GuardedTextBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        QPlainTextEdit::mousePressEvent(event);
    } else {
        event->accept();
    }
    if (MousePressed) {
        MousePressed(event);
    }
}

// The X11 selection would paste on a middle release, so only the left button reaches the box.
void GuardedTextBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        QPlainTextEdit::mouseReleaseEvent(event);
    } else {
        event->accept();
    }
    if (MouseReleased) {
        MouseReleased(event);
    }
}

// A double click would select a word; nothing in these boxes stays selected.
void GuardedTextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

bool GuardedTextBox::canInsertFromMimeData(const QMimeData*) const {
    return false;
}

void GuardedTextBox::insertFromMimeData(const QMimeData*) {}

} // namespace veyrant
