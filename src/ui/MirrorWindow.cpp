#include "ui/MirrorWindow.h"

#include "shell/MirrorLayout.h"
#include "shell/WindowPlacement.h"
#include "ui/QtWindowLayer.h"

#include <QCloseEvent>
#include <QFont>
#include <QFontMetricsF>
#include <QFrame>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <cmath>

namespace veyrant {

namespace {

int Pixels(double twips) {
    return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

void Place(QWidget* widget, const ControlPlace& place) {
    widget->setGeometry(Pixels(place.Left), Pixels(place.Top), Pixels(place.Width),
                        Pixels(place.Height));
}

QFont SizedFont(QFont font, double points, bool bold = false) {
    if (points > 0) {
        font.setPointSizeF(points);
    }
    font.setBold(bold);
    return font;
}

// Quiet greys and one cool accent: the program's shades, a light window and white boxes.
const char* const MirrorStyle = R"(
MirrorWindow, QWidget#Mirror { background: rgb(236, 236, 240); }
QFrame#Panel1 { background: rgb(220, 220, 226); border: none;
                border-bottom: 1px solid rgb(190, 190, 196); }
QPushButton { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgb(252, 252, 253),
                                          stop:1 rgb(232, 232, 236));
              border: 1px solid rgb(172, 172, 178); border-radius: 4px; color: rgb(40, 42, 52);
              padding: 0 6px; }
QPushButton:hover { border-color: rgb(120, 128, 150); }
QPushButton:pressed, QPushButton:checked { background: rgb(208, 210, 220); }
QPushButton:disabled { color: rgb(150, 150, 156); border-color: rgb(200, 200, 204); }
QPlainTextEdit { border: 1px solid rgb(180, 180, 188); border-radius: 3px;
                 selection-background-color: rgb(150, 160, 190); }
QLabel#txtNote { color: rgb(60, 62, 74); }
QLabel#lblRem, QLabel#lblRemS { color: rgb(150, 40, 40); font-weight: bold; }
)";

} // namespace

MirrorWindow::MirrorWindow(const Application& app) : QWidget(nullptr) {
    setObjectName(QStringLiteral("Mirror"));
    setWindowTitle(QStringLiteral("Veyrant Sagrel"));
    setStyleSheet(QString::fromLatin1(MirrorStyle));
    const DisplayScale& scale = app.Scale;
    const MirrorLayout layout = ScaleMirrorLayout(MirrorDesign(), scale.ScaleFactor);

    auto& c = controls_;
    c.Panel1 = new QFrame(this);
    c.Panel1->setObjectName(QStringLiteral("Panel1"));
    Place(c.Panel1, layout.Panel1);

    const QFont buttonFont = SizedFont(font(), scale.ButtonFontSize);
    const auto button = [&](QWidget* parent, const char* caption, const ControlPlace& place) {
        auto* made = new QPushButton(QString::fromLatin1(caption), parent);
        made->setFont(buttonFont);
        made->setFocusPolicy(Qt::NoFocus);
        Place(made, place);
        return made;
    };
    c.cmdConverse = button(c.Panel1, "Converse", layout.cmdConverse);
    c.cmdSuppose = button(c.Panel1, "Suppose", layout.cmdSuppose);
    c.cmdNotate = button(c.Panel1, "Comment", layout.cmdNotate);
    c.cmdKnow = button(c.Panel1, "Knowledge", layout.cmdKnow);
    c.cmdRetrieve = button(c.Panel1, "Library", layout.cmdRetrieve);
    c.cmdHelp = button(c.Panel1, "Information", layout.cmdHelp);
    c.cmdClear = button(this, "Rewrite", layout.cmdClear);
    c.cmdRemove = button(this, "Edit", layout.cmdRemove);
    c.cmdDisplay = button(this, "Display", layout.cmdDisplay);
    c.cmdPrint = button(this, "Print", layout.cmdPrint);
    c.cmdSave = button(this, "Save", layout.cmdSave);
    c.cmdNew = button(this, "New", layout.cmdNew);

    const int step = app.UserSettings.WriteFontStep == 2 ? 2 : 1;
    const QFont writeFont =
        SizedFont(QFont(ToDisplayText(app.Fonts.Main)),
                  scale.TextSize[static_cast<std::size_t>(step)], step == 1 && scale.TextSize1Bold);
    const auto box = [&](const char* name, const ControlPlace& place) {
        auto* made = new QPlainTextEdit(this);
        made->setObjectName(QString::fromLatin1(name));
        made->setFont(writeFont);
        made->document()->setDocumentMargin(6);
        // Paragraphs open with a tab; a short indent reads better than a wide column stop.
        made->setTabStopDistance(QFontMetricsF(writeFont).averageCharWidth() * 4);
        Place(made, place);
        return made;
    };
    c.txtResponse = box("txtResponse", layout.txtResponse);
    c.txtSaved = box("txtSaved", layout.txtSaved);
    c.txtAnalyze = box("txtAnalyze", layout.txtAnalyze);
    c.txtMirror = box("txtMirror", layout.txtMirror);
    c.txtResponse->setReadOnly(true);
    c.txtSaved->setReadOnly(true);
    c.txtAnalyze->hide();
    // The entry box stays out of sight until a Dialogue gives it its place.
    c.txtMirror->hide();
    c.txtMirror->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    const auto label = [&](const char* name, const ControlPlace& place) {
        auto* made = new QLabel(this);
        made->setObjectName(QString::fromLatin1(name));
        made->setFont(buttonFont);
        Place(made, place);
        return made;
    };
    c.txtNote = label("txtNote", layout.txtNote);
    c.txtNote->setWordWrap(true);
    c.lblRem = label("lblRem", layout.lblRem);
    c.lblRem->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    c.lblRem->hide();
    c.lblRemS = label("lblRemS", layout.lblRemS);
    c.lblRemS->hide();

    setFixedSize(Pixels(layout.WindowWidth - FrameWidthTwips),
                 Pixels(layout.WindowHeight - FrameHeightTwips));
    const ScreenPoint place = CentredPlace(
        app.Windows.ScreenWidthTwips(), app.Windows.ScreenHeightTwips(),
        static_cast<int>(layout.WindowWidth), static_cast<int>(layout.WindowHeight), 2, 1.9);
    move(Pixels(place.Left), Pixels(place.Top));
}

void MirrorWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (OnClose) {
        OnClose();
    }
}

} // namespace veyrant
