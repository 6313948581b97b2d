#include "ui/ControlWindow.h"

#include "ui/Pixels.h"
#include "ui/QtText.h"

#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextCursor>

namespace veyrant {

namespace {

const char* const ControlProperty = "logicControl";

} // namespace

ControlWindow::ControlWindow() : QWidget(nullptr) {}

void ControlWindow::Render() {
    if (rendering_) {
        return;
    }
    rendering_ = true;
    RenderControls(!rendered_);
    rendered_ = true;
    rendering_ = false;
}

void ControlWindow::Watch(QWidget* widget, int control) {
    widget->setProperty(ControlProperty, control);
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
}

std::optional<int> ControlWindow::WatchedControl(const QObject* watched) {
    const QVariant property = watched->property(ControlProperty);
    if (!property.isValid()) {
        return std::nullopt;
    }
    return property.toInt();
}

void ControlWindow::RenderTitle(const std::string& now, std::string& was, bool force) {
    if (force || now != was) {
        setWindowTitle(ToQt(now));
        setWindowIconText(windowTitle());
        was = now;
    }
}

void ControlWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (OnClose) {
        OnClose();
    }
}

void RenderPlace(QWidget& widget, const Control& now, const Control& was, bool force) {
    if (force || now.Left != was.Left || now.Top != was.Top || now.Width != was.Width ||
        now.Height != was.Height) {
        widget.setGeometry(Pixels(now.Left), Pixels(now.Top), Pixels(now.Width),
                           Pixels(now.Height));
    }
    if (force || now.Enabled != was.Enabled) {
        widget.setEnabled(now.Enabled);
    }
}

QFont DesignedFont(QFont font, const Control& now) {
    if (now.FontSize > 0) {
        font.setPointSizeF(now.FontSize);
    }
    font.setBold(now.FontBold);
    return font;
}

void RenderButton(QPushButton& button, const Control& now, const Control& was, bool force,
                  const QString& caption, const QString& help) {
    if (force || now.Text != was.Text) {
        button.setText(caption);
    }
    if (button.accessibleDescription() != help) {
        button.setAccessibleDescription(help);
    }
    if (force || now.PressedIn != was.PressedIn || now.Ink != was.Ink ||
        now.Underlined != was.Underlined) {
        button.setProperty("pressedIn", now.PressedIn);
        button.setProperty("hoverMark", now.Underlined || now.Ink == Colour::HoverInk);
        button.style()->unpolish(&button);
        button.style()->polish(&button);
    }
}

void RenderCaret(QPlainTextEdit& box, const Control& now, bool intoView) {
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(BoxPosition(now.Text, now.Caret));
    if (now.SelectionLength > 0) {
        cursor.setPosition(BoxPosition(now.Text, now.Caret + now.SelectionLength),
                           QTextCursor::KeepAnchor);
    }
    box.setTextCursor(cursor);
    if (intoView) {
        box.ensureCursorVisible();
    }
}

} // namespace veyrant
