#include "ui/ReaderWindow.h"

#include "core/Cp1252.h"
#include "core/KeyCodes.h"
#include "shell/WindowPlacement.h"
#include "ui/ControlWindow.h"
#include "ui/FitText.h"
#include "ui/Palette.h"
#include "ui/Pixels.h"
#include "ui/QtText.h"
#include "ui/QtWindowLayer.h"
#include "ui/SpokenText.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <utility>

namespace veyrant {

namespace {

constexpr int FrameWidth = 90;
constexpr int FrameHeight = 405;
constexpr int SearchLength = 60;

// The window and its buttons take the logic's own colour, filled in at %1.
const char* const ReaderStyle = R"(
QWidget#Read { background: %1; }
QPushButton { border: 1px solid rgb(150, 150, 160); border-radius: 3px; padding: 0 6px;
              background: %1; }
QPushButton:pressed, QPushButton[pressedIn="true"] { background: rgb(176, 178, 192);
              border-top: 2px solid rgb(90, 92, 110); }
QPushButton[hoverMark="true"] { color: rgb(0, 0, 192); text-decoration: underline; }
QPushButton:disabled { color: rgb(150, 150, 156); border-style: inset; }
QLabel#txtNote { border: 1px solid rgb(160, 160, 170); padding: 0 6px; }
QListWidget, QPlainTextEdit { border: 1px solid rgb(150, 150, 160); color: black; }
QLineEdit { border: 1px solid rgb(150, 150, 160); padding: 0 4px; }
)";

// The Reader's keys by the code the logic knows them by; 0 for any other key.
int ReaderKey(const QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return KeyCode::Enter;
    case Qt::Key_Escape:
        return KeyCode::Escape;
    case Qt::Key_Space:
        return KeyCode::Space;
    case Qt::Key_F1:
        return KeyCode::F1;
    case Qt::Key_PageUp:
        return KeyCode::PageUp;
    case Qt::Key_PageDown:
        return KeyCode::PageDown;
    case Qt::Key_Up:
        return KeyCode::Up;
    case Qt::Key_Down:
        return KeyCode::Down;
    default:
        return 0;
    }
}

// A row's tabs indent it: the list has no tab stops of its own.
QString ListRowText(const std::string& row) {
    QString shown = ToQt(row);
    const auto tab = shown.indexOf(QLatin1Char('\t'));
    if (tab < 0) {
        return shown;
    }
    QString number = shown.left(tab);
    QString title = shown.mid(tab + 1);
    int depth = 0;
    while (title.startsWith(QLatin1Char('\t'))) {
        title.remove(0, 1);
        ++depth;
    }
    return number.leftJustified(5, QLatin1Char(' ')) + QString(depth * 4, QLatin1Char(' ')) + title;
}

MouseButton ButtonOf(const QMouseEvent* event) {
    return event->button() == Qt::RightButton ? MouseButton::Right : MouseButton::Left;
}

} // namespace

ReaderWindow::ReaderWindow(Application& app, Reader& reader) : app_(app), reader_(reader) {
    setObjectName(QStringLiteral("Read"));
    setStyleSheet(QString::fromLatin1(ReaderStyle)
                      .arg(Css(reader_.Controls()[ReaderControl::Window].Background)));
    setFocusPolicy(Qt::StrongFocus);
    Build();
    reader_.SetPainter([this] { Render(); });
    setFixedSize(Pixels(reader_.WindowWidth() - FrameWidth),
                 Pixels(reader_.WindowHeight() - FrameHeight));
    const ScreenPoint place =
        CentredPlace(app.Windows.ScreenWidthTwips(), app.Windows.ScreenHeightTwips(),
                     reader_.WindowWidth(), reader_.WindowHeight(), 2, 2);
    move(Pixels(place.Left), Pixels(place.Top));
    Render();
}

void ReaderWindow::Build() {
    auto* panel = new QFrame(this);
    widgets_[Index(ReaderControl::Panel1)] = panel;
    Watch(panel, ReaderControl::Panel1);
    widgets_[Index(ReaderControl::Window)] = this;
    Watch(this, ReaderControl::Window);
    // txtCursor is the window itself: it holds the focus and shows nothing.
    widgets_[Index(ReaderControl::txtCursor)] = this;

    list_ = new QListWidget(this);
    list_->setFocusPolicy(Qt::NoFocus);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setAccessibleName(QStringLiteral("Library index"));
    list_->setAccessibleDescription(
        QStringLiteral("The Sections and Topics of the library, or the saved Dialogues."));
    widgets_[Index(ReaderControl::List1)] = list_;
    Watch(list_, ReaderControl::List1);
    Watch(list_->viewport(), ReaderControl::List1);
    connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        reader_.ListRowClicked(list_->row(item));
        Render();
    });

    spin_ = new QPlainTextEdit(this);
    spin_->setReadOnly(true);
    spin_->setFocusPolicy(Qt::NoFocus);
    spin_->setTextInteractionFlags(Qt::NoTextInteraction);
    spin_->setContextMenuPolicy(Qt::NoContextMenu);
    spin_->document()->setDocumentMargin(8);
    spin_->setAccessibleName(QStringLiteral("Reading text"));
    spin_->setAccessibleDescription(
        QStringLiteral("The text chosen from the index, or the instructions of the library."));
    widgets_[Index(ReaderControl::txtSpin)] = spin_;
    Watch(spin_, ReaderControl::txtSpin);
    Watch(spin_->viewport(), ReaderControl::txtSpin);

    auto* note = new QLabel(this);
    note->setObjectName(QStringLiteral("txtNote"));
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setAccessibleName(QStringLiteral("Instruction"));
    widgets_[Index(ReaderControl::txtNote)] = note;
    Watch(note, ReaderControl::txtNote);

    auto* search = new QLineEdit(this);
    search->setContextMenuPolicy(Qt::NoContextMenu);
    search->setAccessibleName(QStringLiteral("Search text"));
    // No logic depends on the length; sixty characters is more than a phrase needs.
    search->setMaxLength(SearchLength);
    search->setDragEnabled(false);
    search->setAcceptDrops(false);
    widgets_[Index(ReaderControl::txtSearch)] = search;
    Watch(search, ReaderControl::txtSearch);
    // Only the user's edits: the program's own texts come from the logic.
    connect(search, &QLineEdit::textEdited, this, [this](const QString& text) {
        const auto typed = Utf16ToCp1252(text.toStdU16String());
        if (typed) {
            reader_.SearchTextChanged(*typed);
        }
        Render();
    });

    for (int index = 0; index < ReaderControlCount; ++index) {
        const auto control = static_cast<ReaderControl>(index);
        if (!IsReaderButton(control)) {
            continue;
        }
        auto* button = new QPushButton(this);
        button->setFocusPolicy(Qt::NoFocus);
        // The search's captions ("Enter >>", "< Next >") fill the narrow button in its large font.
        if (control == ReaderControl::cmdSearch) {
            button->setStyleSheet(QStringLiteral("padding: 0 1px;"));
        }
        widgets_[Index(control)] = button;
        Watch(button, control);
        connect(button, &QPushButton::pressed, this, [this, control] {
            reader_.MouseDown(control, MouseButton::Left);
            Render();
        });
        connect(button, &QPushButton::released, this, [this, control] {
            reader_.MouseUp(control, MouseButton::Left);
            Render();
        });
        connect(button, &QPushButton::clicked, this, [this, control] {
            reader_.Click(control);
            Render();
        });
    }
}

void ReaderWindow::RenderControls(bool force) {
    for (int index = 0; index < ReaderControlCount; ++index) {
        RenderControl(static_cast<ReaderControl>(index), force);
    }
    RenderList(force);
    RenderText(force);
    const auto& controls = reader_.Controls();
    // A minimised window is named by its icon text; it keeps its name while it waits.
    RenderTitle(controls.Title, shown_.Title, force);
    if (controls.Focus == ReaderControl::txtSearch) {
        Widget(ReaderControl::txtSearch)->setFocus(Qt::OtherFocusReason);
    } else if (!hasFocus()) {
        setFocus(Qt::OtherFocusReason);
    }
}

void ReaderWindow::RenderControl(ReaderControl control, bool force) {
    if (control == ReaderControl::Window || control == ReaderControl::txtCursor) {
        return;
    }
    const Control& now = reader_.Controls()[control];
    Control& was = shown_[control];
    QWidget* widget = Widget(control);
    RenderPlace(*widget, now, was, force);
    const bool reading = control == ReaderControl::List1 || control == ReaderControl::txtSpin;
    const QFont font = DesignedFont(reading ? QFont(ToQt(app_.Fonts.Main)) : this->font(), now);
    const bool fontChanged = force || now.FontSize != was.FontSize || now.FontBold != was.FontBold;
    if (fontChanged) {
        widget->setFont(font);
        if (control == ReaderControl::txtSpin) {
            spin_->setTabStopDistance(QFontMetricsF(font).horizontalAdvance(QLatin1Char(' ')) * 4);
        }
    }
    if (force || now.Background != was.Background || now.Ink != was.Ink) {
        if (control == ReaderControl::txtSpin) {
            // A hit stays marked while the focus is in the search box.
            widget->setStyleSheet(QStringLiteral("background: %1; selection-background-color: "
                                                 "rgb(0, 0, 128); selection-color: white;")
                                      .arg(Css(now.Background)));
        } else if (control == ReaderControl::List1) {
            widget->setStyleSheet(QStringLiteral("background: %1;").arg(Css(now.Background)));
        } else if (control == ReaderControl::txtSearch || control == ReaderControl::txtNote) {
            widget->setStyleSheet(QStringLiteral("color: %1; background: %2;")
                                      .arg(Css(now.Ink), Css(now.Background)));
        } else if (control == ReaderControl::Panel1) {
            widget->setStyleSheet(QStringLiteral("background: %1;").arg(Css(now.Background)));
        }
    }
    if (auto* button = qobject_cast<QPushButton*>(widget)) {
        RenderButton(*button, now, was, force, ToQt(now.Text), ToQt(reader_.HoverTextFor(control)));
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
        if (fontChanged || now.Text != was.Text) {
            ShowSpokenText(*label, ToQt(now.Text));
            FitWrappedText(*label, font);
        }
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        // What the user typed is there already; setting it again would move the caret. Only
        // the program's own words ("Search not active", "No text found") are fitted to the box,
        // so that the type never changes under the user's typing.
        if ((fontChanged || now.Text != was.Text) && line->text() != ToQt(now.Text)) {
            line->setText(ToQt(now.Text));
            FitLineText(*line, font);
        }
    }
    if (force || now.Visible != was.Visible) {
        widget->setVisible(now.Visible);
    }
    if (control == ReaderControl::txtSpin &&
        (force || now.Visible != was.Visible || now.Top != was.Top || now.Height != was.Height)) {
        spinPlaced_ = true;
    }
    const Control kept = was;
    was = now;
    // The text box's text and selection are copied by RenderText, which compares them first.
    if (control == ReaderControl::txtSpin) {
        was.Text = kept.Text;
        was.Caret = kept.Caret;
        was.SelectionLength = kept.SelectionLength;
    }
}

void ReaderWindow::RenderList(bool force) {
    const auto& now = reader_.Controls().List;
    auto& was = shown_.List;
    if (force || now.Rows != was.Rows) {
        list_->clear();
        for (const auto& row : now.Rows) {
            list_->addItem(ListRowText(row));
        }
    }
    if (force || now.Rows != was.Rows || now.Selected != was.Selected || now.TopRow != was.TopRow) {
        const QSignalBlocker quiet(list_);
        list_->setCurrentRow(now.Selected);
        if (now.Selected < 0) {
            list_->clearSelection();
        }
        list_->verticalScrollBar()->setValue(now.TopRow);
        if (QListWidgetItem* top = list_->item(now.TopRow)) {
            list_->scrollToItem(top, QAbstractItemView::PositionAtTop);
        }
    }
    was = now;
}

void ReaderWindow::RenderText(bool force) {
    const auto& now = reader_.Controls()[ReaderControl::txtSpin];
    auto& was = shown_[ReaderControl::txtSpin];
    const bool textChanged = force || now.Text != was.Text;
    if (textChanged) {
        spin_->setPlainText(ToQt(now.Text));
        spin_->verticalScrollBar()->setValue(0);
    }
    // The selection is a hit of the search, kept in view; otherwise the caret is at the top.
    if (textChanged || spinPlaced_ || now.Caret != was.Caret ||
        now.SelectionLength != was.SelectionLength) {
        RenderCaret(*spin_, now, now.Visible);
        spinPlaced_ = false;
    }
    was.Text = now.Text;
    was.Caret = now.Caret;
    was.SelectionLength = now.SelectionLength;
}

void ReaderWindow::keyPressEvent(QKeyEvent* event) {
    // With Ctrl held the arrows and page keys only scroll, so that a long text can be read
    // where the same keys step to the next Topic or Dialogue.
    const int key = event->modifiers() & Qt::ControlModifier ? 0 : ReaderKey(event);
    if (key == 0 || reader_.KeyDown(key) != 0) {
        ScrollText(event->key());
    }
    Render();
    event->accept();
}

void ReaderWindow::ScrollText(int key) {
    static constexpr std::pair<int, QAbstractSlider::SliderAction> Scrolls[] = {
        {Qt::Key_Up, QAbstractSlider::SliderSingleStepSub},
        {Qt::Key_Down, QAbstractSlider::SliderSingleStepAdd},
        {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
        {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
        {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
        {Qt::Key_End, QAbstractSlider::SliderToMaximum},
    };
    if (!spin_->isVisible()) {
        return;
    }
    for (const auto& [scrollKey, action] : Scrolls) {
        if (scrollKey == key) {
            spin_->verticalScrollBar()->triggerAction(action);
        }
    }
}

bool ReaderWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto watchedControl = WatchedControl(watched);
    if (!watchedControl) {
        return QWidget::eventFilter(watched, event);
    }
    const auto control = static_cast<ReaderControl>(*watchedControl);
    switch (event->type()) {
    case QEvent::MouseMove:
        reader_.MouseMove(control);
        Render();
        // A control would pass the move on to the window behind it, whose own move ends the
        // help just begun.
        if (watched != this && static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton) {
            return true;
        }
        break;
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (control == ReaderControl::txtSpin || control == ReaderControl::Window ||
            control == ReaderControl::Panel1 || control == ReaderControl::txtSearch ||
            (IsReaderButton(control) && mouse->button() == Qt::RightButton)) {
            reader_.MouseDown(control, ButtonOf(mouse));
            Render();
            // A left press places the caret in the search box; no other press reaches it, so
            // nothing is pasted by the middle button.
            return control == ReaderControl::txtSpin ||
                   (control == ReaderControl::txtSearch && mouse->button() != Qt::LeftButton);
        }
        break;
    }
    case QEvent::MouseButtonRelease:
        if (control == ReaderControl::txtSpin) {
            reader_.Click(control);
            Render();
            return true;
        }
        if (control == ReaderControl::txtSearch &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            reader_.Click(control);
            Render();
        }
        break;
    case QEvent::KeyPress:
        if (control == ReaderControl::txtSearch) {
            return SearchKey(static_cast<QKeyEvent*>(event));
        }
        if (watched != this) {
            keyPressEvent(static_cast<QKeyEvent*>(event));
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool ReaderWindow::SearchKey(QKeyEvent* event) {
    // No shortcut reaches the box: text cannot be pasted, cut or copied.
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return true;
    }
    const int key = ReaderKey(event);
    if (key != 0 && reader_.KeyDown(key) == 0) {
        Render();
        return true;
    }
    if (key == KeyCode::Enter) {
        reader_.KeyPress(KeyCode::Enter, ReaderControl::txtSearch);
        Render();
        return true;
    }
    const QString text = event->text();
    if (text.size() == 1 && text[0].unicode() >= 32 && text[0].unicode() != 127) {
        const auto byte = CodePointToCp1252(text[0].unicode());
        // A character with no Windows-1252 code is refused.
        if (!byte ||
            reader_.KeyPress(static_cast<unsigned char>(*byte), ReaderControl::txtSearch) == 0) {
            Render();
            return true;
        }
    }
    return false;
}

void ReaderWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        // From the event loop: the events the logic lets through may close the library, which
        // unloads this window, and none may run inside the window's own event. A window closed
        // meanwhile has no library to show.
        QTimer::singleShot(0, this, [this] {
            if (!isVisible()) {
                return;
            }
            const QPointer<ReaderWindow> alive(this);
            reader_.CameToFront();
            if (alive) {
                Render();
            }
        });
    }
}

} // namespace veyrant
