#include "ui/BannerWindow.h"

#include "shell/WindowPlacement.h"
#include "ui/Palette.h"
#include "ui/Pixels.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace veyrant {

namespace {

// The Read window's greys.
const QColor ShadeLight = ColourValue(Colour::WindowGrey);
const QColor ShadeDark = ColourValue(Colour::PanelGrey);
const QColor Ink(58, 60, 72);

QFont NameFont(int pixelSize) {
    QFont font(QStringLiteral("Liberation Serif"));
    font.setStyleHint(QFont::Serif);
    font.setPixelSize(pixelSize);
    font.setLetterSpacing(QFont::PercentageSpacing, 104);
    return font;
}

} // namespace

BannerWindow::BannerWindow(const WindowLayer& windows)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setWindowTitle(QStringLiteral("Veyrant Sagrel"));
    const int width = PictureLeft * 2 + PictureWidth;
    const int height = PictureTop + PictureHeight + BottomMargin;
    setFixedSize(Pixels(width), Pixels(height));
    const ScreenPoint place = CentredPlace(windows.ScreenWidthTwips(), windows.ScreenHeightTwips(),
                                           width, height, 2, 2.3);
    move(Pixels(place.Left), Pixels(place.Top));
}

void BannerWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = rect();

    // The window in the light shade, with a thin raised edge in the dark one.
    painter.fillRect(whole, ShadeLight);
    painter.setPen(QPen(ShadeDark, 2));
    painter.drawRect(whole.adjusted(1, 1, -1, -1));

    // The frame: a band of the dark shade round the picture.
    const QRectF picture(Pixels(PictureLeft), Pixels(PictureTop), Pixels(PictureWidth),
                         Pixels(PictureHeight));
    const qreal inset = Pixels(FrameInset) / 2.0;
    const QRectF frame = picture.adjusted(-inset, -inset, inset, inset);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ShadeDark);
    painter.drawRoundedRect(frame, 6, 6);

    // The picture: a horizon where the light shade meets its reflection.
    QLinearGradient sky(picture.topLeft(), picture.bottomLeft());
    sky.setColorAt(0.0, ShadeLight.lighter(112));
    sky.setColorAt(0.5, ShadeLight);
    sky.setColorAt(1.0, ShadeDark.lighter(104));
    painter.setBrush(sky);
    painter.drawRoundedRect(picture, 3, 3);
    const qreal horizon = picture.top() + picture.height() * 0.62;
    painter.setPen(QPen(ShadeLight.lighter(118), 1.2));
    painter.drawLine(QPointF(picture.left() + 40, horizon), QPointF(picture.right() - 40, horizon));

    // The name, and below the horizon its reflection, fading into the shade.
    const QString name = QStringLiteral("Veyrant Sagrel");
    const QFont font = NameFont(static_cast<int>(picture.height() * 0.26));
    QPainterPath text;
    text.addText(0, 0, font, name);
    const QRectF bounds = text.boundingRect();
    const qreal left = picture.center().x() - bounds.width() / 2 - bounds.left();
    const qreal baseline = horizon - picture.height() * 0.07;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ink);
    painter.drawPath(text.translated(left, baseline));

    painter.save();
    painter.setClipRect(
        QRectF(picture.left(), horizon, picture.width(), picture.bottom() - horizon));
    painter.translate(0, 2 * horizon);
    painter.scale(1, -1);
    QLinearGradient fade(0, horizon, 0, horizon - bounds.height());
    QColor faint = Ink;
    faint.setAlpha(70);
    QColor gone = Ink;
    gone.setAlpha(0);
    fade.setColorAt(0.0, faint);
    fade.setColorAt(1.0, gone);
    painter.setBrush(fade);
    painter.drawPath(text.translated(left, baseline));
    painter.restore();

    // The subtitle in the band above the frame.
    QFont small = NameFont(Pixels(BottomMargin) / 2 + 1);
    small.setLetterSpacing(QFont::PercentageSpacing, 130);
    painter.setFont(small);
    painter.setPen(Ink.lighter(150));
    const QRectF band(0, 0, whole.width(), frame.top());
    painter.drawText(band, Qt::AlignCenter, QStringLiteral("Veyrant Ardelune"));
}

} // namespace veyrant
