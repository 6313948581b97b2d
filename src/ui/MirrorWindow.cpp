#include "ui/MirrorWindow.h"

#include "core/Cp1252.h"
#include "core/KeyCodes.h"
#include "dialogue/MirrorTexts.h"
#include "shell/MirrorLayout.h"
#include "shell/WindowPlacement.h"
#include "ui/AccessKeys.h"
#include "ui/ControlWindow.h"
#include "ui/FitText.h"
#include "ui/GuardedTextBox.h"
#include "ui/Palette.h"
#include "ui/Pixels.h"
#include "ui/QtText.h"
#include "ui/QtWindowLayer.h"
#include "ui/SpellingHighlighter.h"
#include "ui/SpokenText.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace veyrant {

namespace {

// Quiet greys for the frame and the buttons; the boxes carry the program's own colours, which
// say what is on show.
const char* const MirrorStyle = R"(
QWidget#Mirror { background: rgb(238, 238, 242); }
QFrame#Panel1 { background: rgb(222, 223, 230); border: none;
                border-bottom: 1px solid rgb(192, 193, 202); }
QPushButton { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgb(253, 253, 254),
                                          stop:1 rgb(233, 234, 238));
              border: 1px solid rgb(170, 172, 182); border-radius: 4px; color: rgb(36, 38, 48);
              padding: 0 6px; }
QPushButton:pressed { background: rgb(206, 209, 222); }
QPushButton[pressedIn="true"] { background: rgb(200, 205, 224); border: 1px solid rgb(96, 104, 140);
                                border-top: 2px solid rgb(80, 86, 118); font-weight: bold; }
QPushButton[hoverMark="true"] { color: rgb(0, 0, 192); text-decoration: underline; }
QPushButton:disabled { color: rgb(156, 156, 164); border-color: rgb(204, 205, 210); }
QPlainTextEdit { border: 1px solid rgb(176, 178, 190); border-radius: 3px; color: black;
                 selection-background-color: rgb(150, 160, 196); }
QLabel#txtNote { background: white; border: 1px solid rgb(196, 198, 208); border-radius: 3px;
                 padding: 0px 6px; }
QLabel#lblRem, QLabel#lblRemS { color: rgb(150, 32, 32); font-weight: bold; }
)";

// The key code the rules know a key by. Punctuation gets a code of its own, since Qt's codes for
// it are the character numbers, which the rules would take for arrows or Delete.
int VirtualKey(const QKeyEvent* event) {
    const int key = event->key();
    switch (key) {
    case Qt::Key_Backspace:
        return KeyCode::Backspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return KeyCode::Tab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return KeyCode::Enter;
    case Qt::Key_Shift:
        return KeyCode::Shift;
    case Qt::Key_Control:
        return KeyCode::Control;
    case Qt::Key_Escape:
        return KeyCode::Escape;
    case Qt::Key_PageUp:
        return KeyCode::PageUp;
    case Qt::Key_PageDown:
        return KeyCode::PageDown;
    case Qt::Key_End:
        return KeyCode::End;
    case Qt::Key_Home:
        return KeyCode::Home;
    case Qt::Key_Left:
        return KeyCode::Left;
    case Qt::Key_Up:
        return KeyCode::Up;
    case Qt::Key_Right:
        return KeyCode::Right;
    case Qt::Key_Down:
        return KeyCode::Down;
    case Qt::Key_Delete:
        return KeyCode::Delete;
    case Qt::Key_Space:
        return ' ';
    default:
        break;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return KeyCode::Function(key - Qt::Key_F1 + 1);
    }
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) {
        return key;
    }
    return event->text().isEmpty() ? 0 : 0xDE;
}

// The character of a key as the key-press stage sees it: 0 for a key with none, -1 for a
// character that has no Windows-1252 code and is refused.
int KeyCharacter(const QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return KeyCode::Enter;
    case Qt::Key_Backspace:
        return KeyCode::Backspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return KeyCode::Tab;
    default:
        break;
    }
    // By whole characters: an emoji is two UTF-16 units, and neither has a code.
    const auto characters = event->text().toUcs4();
    for (const char32_t character : characters) {
        if (character >= 32 && character != 127 && !CodePointToCp1252(character)) {
            return -1;
        }
    }
    if (characters.size() != 1 || characters[0] < 32 || characters[0] == 127) {
        return 0;
    }
    return static_cast<unsigned char>(*CodePointToCp1252(characters[0]));
}

// The style sheet picks a box or a label by its control's name.
QString ObjectName(MirrorControl control) {
    const std::string_view name = ControlName(control);
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

bool IsTextBox(MirrorControl control) {
    return control == MirrorControl::txtMirror || control == MirrorControl::txtResponse ||
           control == MirrorControl::txtAnalyze || control == MirrorControl::txtSaved;
}

bool IsLabel(MirrorControl control) {
    return control == MirrorControl::txtNote || control == MirrorControl::lblRem ||
           control == MirrorControl::lblRemS;
}

// What a screen reader calls the boxes and labels; the buttons go by their captions.
struct Spoken {
    const char* Name;
    std::string_view Description;
};

Spoken SpokenFor(MirrorControl control) {
    switch (control) {
    case MirrorControl::txtMirror:
        return {"Entry", "Type a question or a statement, then press 'Enter'."};
    case MirrorControl::txtResponse:
        return {"Response", MirrorText::TipDirection};
    case MirrorControl::txtSaved:
        return {"Dialogue", "The Dialogue so far."};
    case MirrorControl::txtAnalyze:
        return {"Ideas", "List ideas that might answer your question."};
    case MirrorControl::txtNote:
        // Its description is its words, given as they change.
        return {"Instruction", ""};
    case MirrorControl::lblRem:
        return {"Entry status",
                "'X' while the entry is too short or too long; near the limit, the words left."};
    case MirrorControl::lblRemS:
        return {"Ideas status",
                "'X' while the list is too short or too long; near the limit, the words left."};
    default:
        return {"", ""};
    }
}

void MakeSpoken(QWidget* widget, MirrorControl control) {
    const Spoken spoken = SpokenFor(control);
    widget->setAccessibleName(QString::fromLatin1(spoken.Name));
    widget->setAccessibleDescription(ToQt(std::string(spoken.Description)));
}

MouseButton ButtonOf(const QMouseEvent* event) {
    switch (event->button()) {
    case Qt::RightButton:
        return MouseButton::Right;
    case Qt::MiddleButton:
        return MouseButton::Middle;
    default:
        return MouseButton::Left;
    }
}

} // namespace

MirrorWindow::MirrorWindow(Application& app, Mirror& mirror) : app_(app), mirror_(mirror) {
    setObjectName(QStringLiteral("Mirror"));
    setStyleSheet(QString::fromLatin1(MirrorStyle));
    setMouseTracking(true);
    Build();
    mirror_.SetPainter([this] { Render(); });

    const auto& window = mirror_.Controls()[MirrorControl::Window];
    setFixedSize(Pixels(window.Width - static_cast<int>(FrameWidthTwips)),
                 Pixels(window.Height - static_cast<int>(FrameHeightTwips)));
    const ScreenPoint place =
        CentredPlace(app.Windows.ScreenWidthTwips(), app.Windows.ScreenHeightTwips(), window.Width,
                     window.Height, 2, 1.9);
    move(Pixels(place.Left), Pixels(place.Top));
    Render();
}

void MirrorWindow::Build() {
    auto* panel = new QFrame(this);
    panel->setObjectName(QStringLiteral("Panel1"));
    widgets_[Index(MirrorControl::Panel1)] = panel;
    Watch(panel, MirrorControl::Panel1);
    widgets_[Index(MirrorControl::Window)] = this;
    Watch(this, MirrorControl::Window);

    // Made in this order so that the entry box lies under the others where they overlap, and
    // the Dialogue panel over the response.
    for (auto box : {MirrorControl::txtMirror, MirrorControl::txtResponse, MirrorControl::txtSaved,
                     MirrorControl::txtAnalyze}) {
        MakeBox(box);
    }
    for (auto button :
         {MirrorControl::cmdConverse, MirrorControl::cmdSuppose, MirrorControl::cmdNotate,
          MirrorControl::cmdKnow, MirrorControl::cmdRetrieve, MirrorControl::cmdHelp}) {
        MakeButton(button, panel);
    }
    for (auto button :
         {MirrorControl::cmdClear, MirrorControl::cmdRemove, MirrorControl::cmdDisplay,
          MirrorControl::cmdPrint, MirrorControl::cmdSave, MirrorControl::cmdNew}) {
        MakeButton(button, this);
    }
    for (auto label : {MirrorControl::txtNote, MirrorControl::lblRem, MirrorControl::lblRemS}) {
        MakeLabel(label);
    }
    static_cast<QLabel*>(Widget(MirrorControl::txtNote))->setWordWrap(true);
    static_cast<QLabel*>(Widget(MirrorControl::lblRem))
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    static_cast<QLabel*>(Widget(MirrorControl::lblRemS))
        ->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

GuardedTextBox* MirrorWindow::MakeBox(MirrorControl control) {
    auto* box = new GuardedTextBox(this);
    box->setObjectName(ObjectName(control));
    box->document()->setDocumentMargin(6);
    box->setFrameShape(QFrame::NoFrame);
    if (control != MirrorControl::txtMirror && control != MirrorControl::txtAnalyze) {
        box->setReadOnly(true);
        box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    if (control == MirrorControl::txtMirror) {
        box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    if (control == MirrorControl::txtMirror || control == MirrorControl::txtAnalyze) {
        new SpellingHighlighter(*box, app_.Spelling);
    }
    widgets_[Index(control)] = box;
    MakeSpoken(box, control);
    Watch(box, control);
    Watch(box->viewport(), control);
    box->KeyFilter = [this, control](QKeyEvent* event) { return KeyFromScreen(control, event); };
    box->KeyApplied = [this, control] {
        ReadBack(control);
        Render();
    };
    box->MousePressed = [this, control](QMouseEvent* event) {
        ReadBack(control);
        mirror_.MouseDown(control, ButtonOf(event));
        Render();
    };
    box->MouseReleased = [this, control](QMouseEvent* event) {
        ReadBack(control);
        mirror_.MouseUp(control, ButtonOf(event));
        if (event->button() == Qt::LeftButton) {
            mirror_.Click(control);
        }
        Render();
    };
    return box;
}

QPushButton* MirrorWindow::MakeButton(MirrorControl control, QWidget* parent) {
    auto* button = new QPushButton(parent);
    // The keyboard reaches a button by Alt and its underlined letter, never by Tab: the entry box
    // keeps the focus while it is enabled and takes Tab for itself, and the function keys stand
    // for the Write window's buttons already. No rule of the boxes reads Alt, so the letters take
    // nothing from them, and a button that takes no focus leaves the focus where the rules keep
    // it. Save, Print, File and Continue have no function key, and are reached only this way.
    button->setFocusPolicy(Qt::NoFocus);
    widgets_[Index(control)] = button;
    Watch(button, control);
    connect(button, &QPushButton::pressed, this, [this, control] {
        mirror_.MouseDown(control, MouseButton::Left);
        Render();
    });
    connect(button, &QPushButton::clicked, this, [this, control] {
        mirror_.Click(control);
        Render();
    });
    return button;
}

QLabel* MirrorWindow::MakeLabel(MirrorControl control) {
    auto* label = new QLabel(this);
    label->setObjectName(ObjectName(control));
    label->setTextFormat(Qt::PlainText);
    widgets_[Index(control)] = label;
    MakeSpoken(label, control);
    Watch(label, control);
    return label;
}

bool MirrorWindow::KeyFromScreen(MirrorControl, QKeyEvent* event) {
    const auto modifiers = event->modifiers();
    const int key = event->key();
    // The control key itself reaches the rules and gets its box; no shortcut goes further.
    if ((modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
        key != Qt::Key_Control) {
        return false;
    }
    const int character = KeyCharacter(event);
    if (character < 0) {
        mirror_.RefuseUnwritable();
        Render();
        return false;
    }
    const int keyCode = VirtualKey(event);
    if (keyCode == 0) {
        return false;
    }
    const int passedDown = mirror_.KeyDown(keyCode);
    // A key dropped at key down still reaches key press, as the rules expect.
    const int passedPress = character != 0 ? mirror_.KeyPress(character) : keyCode;
    Render();
    return passedDown != 0 && passedPress != 0 && keyCode != KeyCode::Control;
}

void MirrorWindow::ReadBack(MirrorControl control) {
    auto* box = static_cast<GuardedTextBox*>(Widget(control));
    QString shown = box->toPlainText();
    const int position = box->textCursor().position();
    const QString before = shown.left(position);
    shown.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    const auto text = Utf16ToCp1252(std::u16string(shown.toStdU16String()));
    if (!text) {
        // However it came, a character the Dialogue file cannot hold does not stay in the box.
        RenderText(control, mirror_.Controls()[control], true);
        return;
    }
    const long caret = static_cast<long>(position + before.count(QLatin1Char('\n')));
    if (*text != mirror_.Controls()[control].Text) {
        mirror_.TextEdited(control, *text, caret);
    } else {
        const auto cursor = box->textCursor();
        mirror_.CaretMoved(control, caret,
                           static_cast<long>(cursor.selectionEnd() - cursor.selectionStart()));
    }
    shown_[control].Text = mirror_.Controls()[control].Text;
    shown_[control].Caret = mirror_.Controls()[control].Caret;
    shown_[control].SelectionLength = mirror_.Controls()[control].SelectionLength;
}

void MirrorWindow::RenderControls(bool force) {
    for (int index = 0; index < MirrorControlCount; ++index) {
        RenderControl(static_cast<MirrorControl>(index), force);
    }
    const auto& controls = mirror_.Controls();
    // While the Read window shows, this window is minimised and named by its icon text.
    RenderTitle(controls.Title, shown_.Title, force);
    QWidget* focus = Widget(controls.Focus);
    if (IsTextBox(controls.Focus) && focus->isVisible() && focus->isEnabled() &&
        !focus->hasFocus()) {
        focus->setFocus(Qt::OtherFocusReason);
    }
    shown_.Focus = controls.Focus;
}

void MirrorWindow::RenderControl(MirrorControl control, bool force) {
    if (control == MirrorControl::Window) {
        return;
    }
    const Control& now = mirror_.Controls()[control];
    Control& was = shown_[control];
    QWidget* widget = Widget(control);

    RenderPlace(*widget, now, was, force);
    const bool fontChanged = force || now.FontSize != was.FontSize || now.FontBold != was.FontBold;
    if (fontChanged) {
        const QFont font =
            DesignedFont(IsTextBox(control) ? QFont(ToQt(app_.Fonts.Main)) : this->font(), now);
        widget->setFont(font);
        if (IsTextBox(control)) {
            auto* box = static_cast<GuardedTextBox*>(widget);
            box->setTabStopDistance(QFontMetricsF(font).horizontalAdvance(QLatin1Char(' ')) * 3);
        }
    }

    if (IsTextBox(control)) {
        RenderText(control, now);
        if (force || now.Background != was.Background) {
            widget->setStyleSheet(
                QStringLiteral("QPlainTextEdit { background: %1; }").arg(Css(now.Background)));
        }
    } else if (IsLabel(control)) {
        auto* label = static_cast<QLabel*>(widget);
        if (force || now.Text != was.Text) {
            if (control == MirrorControl::txtNote) {
                ShowSpokenText(*label, ToQt(now.Text));
            } else {
                label->setText(ToQt(now.Text));
            }
        }
        if (control == MirrorControl::txtNote && (force || now.Ink != was.Ink)) {
            label->setStyleSheet(QStringLiteral("color: %1;").arg(Css(now.Ink)));
        }
        if (label->wordWrap() && (fontChanged || now.Text != was.Text || now.Width != was.Width ||
                                  now.Height != was.Height)) {
            FitWrappedText(*label, DesignedFont(this->font(), now));
        }
    } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
        RenderButton(*button, now, was, force, WithAccessKey(ToQt(now.Text)),
                     ToQt(mirror_.HelpFor(control)));
    }
    if (force || now.Visible != was.Visible) {
        widget->setVisible(now.Visible);
        // A hidden box cannot scroll; one that appears shows its caret, as the list of ideas
        // must show its open prompt.
        if (now.Visible && IsTextBox(control)) {
            static_cast<GuardedTextBox*>(widget)->ensureCursorVisible();
        }
    }
    was = now;
}

void MirrorWindow::RenderText(MirrorControl control, const Control& now, bool force) {
    auto* box = static_cast<GuardedTextBox*>(Widget(control));
    Control& was = shown_[control];
    const bool textChanged = force || !Rendered() || now.Text != was.Text;
    if (textChanged) {
        box->setPlainText(ToQt(now.Text));
    }
    if (textChanged || now.Caret != was.Caret || now.SelectionLength != was.SelectionLength) {
        RenderCaret(*box, now, true);
    }
    was.Text = now.Text;
    was.Caret = now.Caret;
    was.SelectionLength = now.SelectionLength;
}

bool MirrorWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto watchedControl = WatchedControl(watched);
    if (!watchedControl) {
        return QWidget::eventFilter(watched, event);
    }
    const auto control = static_cast<MirrorControl>(*watchedControl);
    switch (event->type()) {
    case QEvent::MouseMove:
        mirror_.MouseMove(control);
        Render();
        // A button or label would pass the move on to the window behind it, whose own move
        // ends the help just begun.
        if (!IsTextBox(control) && control != MirrorControl::Window &&
            static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) {
            return true;
        }
        break;
    case QEvent::MouseButtonPress:
        // A button's left press arrives through its pressed signal; the bare window and the
        // panel have no such signal, and their left press brings the backdrop back.
        if (!IsTextBox(control) &&
            (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton ||
             control == MirrorControl::Window || control == MirrorControl::Panel1)) {
            mirror_.MouseDown(control, ButtonOf(static_cast<QMouseEvent*>(event)));
            Render();
        }
        break;
    case QEvent::MouseButtonRelease:
        // A right-click on Know opens the Advanced Knowledge Library; a button clicks only on
        // the left.
        if (control == MirrorControl::cmdKnow &&
            static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
            mirror_.Click(control);
            Render();
        }
        break;
    case QEvent::FocusIn:
        if (IsTextBox(control) && !Rendering()) {
            mirror_.FocusGained(control);
            Render();
        }
        break;
    case QEvent::FocusOut: {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if ((control == MirrorControl::txtMirror || control == MirrorControl::txtAnalyze) &&
            !Rendering() && reason != Qt::ActiveWindowFocusReason &&
            reason != Qt::PopupFocusReason) {
            mirror_.FocusLost(control);
            Render();
        }
        break;
    }
    case QEvent::KeyPress:
        if (watched == this) {
            KeyFromScreen(MirrorControl::Window, static_cast<QKeyEvent*>(event));
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void MirrorWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) {
        mirror_.WindowStateChanged(isMinimized());
        Render();
    } else if (event->type() == QEvent::ActivationChange && isActiveWindow() &&
               app_.Windows.IsWindowMinimised(WindowId::Mirror)) {
        // Where a window cannot really be minimised, coming to the front is coming back.
        app_.Windows.RestoreWindow(WindowId::Mirror);
        mirror_.WindowStateChanged(false);
        Render();
    }
    QWidget::changeEvent(event);
}

} // namespace veyrant
