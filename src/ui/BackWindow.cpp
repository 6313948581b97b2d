#include "ui/BackWindow.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

namespace veyrant {

BackWindow::BackWindow(Backdrop& backdrop) : QWidget(nullptr), backdrop_(backdrop) {
    setWindowTitle(QString::fromLatin1(Backdrop::Title));
    // The hint shows only while the pointer moves over the window; a screen reader tells it
    // whenever the window is met.
    setAccessibleName(QString::fromLatin1(Backdrop::Title));
    setAccessibleDescription(QString::fromLatin1(Backdrop::HintText));
    setMouseTracking(true);
    // It stands behind the program's windows: showing it never takes the focus from them.
    setAttribute(Qt::WA_ShowWithoutActivating);
    // A Wayland client draws its own title bar, whose buttons would offer to minimise, maximise
    // or close a backdrop.
    if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
        setWindowFlag(Qt::FramelessWindowHint);
    }
    setStyleSheet(QStringLiteral("BackWindow, QWidget { background: rgb(92, 100, 122); }"));
    setGeometry(QGuiApplication::primaryScreen()->availableGeometry());
    label1_ = new QLabel(QString::fromLatin1(Backdrop::HintText), this);
    label1_->setStyleSheet(QStringLiteral("color: rgb(236, 236, 242); background: transparent; "
                                          "font-size: 14pt;"));
    label1_->setAttribute(Qt::WA_TransparentForMouseEvents);
    label1_->adjustSize();
    label1_->move(24, 24);
    Render();
}

void BackWindow::Render() {
    label1_->setVisible(backdrop_.HintShowing());
}

void BackWindow::mouseMoveEvent(QMouseEvent*) {
    backdrop_.MouseMove();
    Render();
}

void BackWindow::mousePressEvent(QMouseEvent*) {
    backdrop_.MouseDown();
    Render();
}

} // namespace veyrant
