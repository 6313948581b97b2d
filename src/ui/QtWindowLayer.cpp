#include "ui/QtWindowLayer.h"

#include "shell/Settings.h"
#include "ui/DialoguePrinter.h"
#include "ui/ExportEditorWindow.h"
#include "ui/PrintFlow.h"
#include "ui/QtText.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPrinter>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <vector>

namespace veyrant {

namespace {

QMessageBox::Icon IconFor(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Warning:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

std::vector<QMessageBox::StandardButton> ButtonsFor(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::Ok:
        return {QMessageBox::Ok};
    case MessageButtons::OkCancel:
        return {QMessageBox::Ok, QMessageBox::Cancel};
    case MessageButtons::YesNo:
        return {QMessageBox::Yes, QMessageBox::No};
    case MessageButtons::YesNoCancel:
        return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    }
    return {QMessageBox::Ok};
}

MessageAnswer AnswerFor(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    default:
        return MessageAnswer::Ok;
    }
}

QScreen* PrimaryScreen() {
    return QGuiApplication::primaryScreen();
}

} // namespace

std::unique_ptr<QMessageBox> BuildMessageBox(const MessageBoxRequest& request) {
    auto box = std::make_unique<QMessageBox>();
    box->setWindowTitle(ToQt(request.Title));
    box->setText(ToQt(request.Text));
    box->setTextFormat(Qt::PlainText);
    box->setIcon(IconFor(request.Icon));
    const auto buttons = ButtonsFor(request.Buttons);
    for (const auto button : buttons) {
        box->addButton(button);
    }
    const auto index = static_cast<std::size_t>(request.DefaultButton - 1);
    box->setDefaultButton(index < buttons.size() ? buttons[index] : buttons.front());
    // Closing the box answers as its last button does: Cancel where there is one.
    box->setEscapeButton(box->button(buttons.back()));
    return box;
}

QtWindowLayer::QtWindowLayer()
    : wayland_(QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {}

QtWindowLayer::~QtWindowLayer() {
    for (auto& [id, window] : windows_) {
        delete window.data();
    }
}

void QtWindowLayer::RegisterWindow(WindowId window, WindowFactory factory) {
    factories_[window] = std::move(factory);
}

void QtWindowLayer::SetTimerHandler(TimerId timer, std::function<void()> handler) {
    handlers_[timer] = std::move(handler);
}

QWidget* QtWindowLayer::Window(WindowId window) const {
    const auto found = windows_.find(window);
    return found == windows_.end() ? nullptr : found->second.data();
}

MessageAnswer QtWindowLayer::ShowMessage(const MessageBoxRequest& request) {
    const auto box = BuildMessageBox(request);
    // Owned by the window in use, so the box closes back onto it.
    if (QWidget* owner = QApplication::activeWindow()) {
        box->setParent(owner, box->windowFlags());
    }
    // A box over a busy pointer would show the hourglass over its buttons.
    const bool wasBusy = busy_;
    SetBusyPointer(false);
    const int button = box->exec();
    SetBusyPointer(wasBusy);
    return AnswerFor(button);
}

void QtWindowLayer::Yield() {
    QCoreApplication::processEvents();
}

void QtWindowLayer::SetBusyPointer(bool busy) {
    if (busy == busy_) {
        return;
    }
    busy_ = busy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

QTimer& QtWindowLayer::TimerFor(TimerId timer) {
    auto& slot = timers_[timer];
    if (!slot) {
        slot = std::make_unique<QTimer>();
        QObject::connect(slot.get(), &QTimer::timeout, [this, timer] {
            if (const auto handler = handlers_.find(timer); handler != handlers_.end()) {
                handler->second();
            }
        });
    }
    return *slot;
}

void QtWindowLayer::StartTimer(TimerId timer, int milliseconds) {
    TimerFor(timer).start(milliseconds);
}

void QtWindowLayer::StopTimer(TimerId timer) {
    TimerFor(timer).stop();
}

void QtWindowLayer::LoadWindow(WindowId window) {
    if (Window(window) != nullptr) {
        return;
    }
    // A window with no Qt form of its own yet stays unloaded; the logic goes on without it.
    if (const auto factory = factories_.find(window); factory != factories_.end()) {
        windows_[window] = factory->second();
    }
}

void QtWindowLayer::UnloadWindow(WindowId window) {
    if (QWidget* widget = Window(window)) {
        widget->hide();
        widget->deleteLater();
    }
    windows_.erase(window);
}

void QtWindowLayer::ShowWindow(WindowId window) {
    LoadWindow(window);
    if (QWidget* widget = Window(window)) {
        if (wayland_ && widget->isVisible()) {
            widget->hide();
        }
        widget->show();
        // A window shown without taking the focus is a backdrop: raised, it would cover the
        // window the user is in.
        if (!widget->testAttribute(Qt::WA_ShowWithoutActivating)) {
            widget->raise();
            widget->activateWindow();
        }
    }
}

void QtWindowLayer::HideWindow(WindowId window) {
    if (QWidget* widget = Window(window)) {
        widget->hide();
    }
}

void QtWindowLayer::MinimiseWindow(WindowId window) {
    if (wayland_) {
        setAside_.insert(window);
        return;
    }
    if (QWidget* widget = Window(window)) {
        widget->showMinimized();
    }
}

void QtWindowLayer::RestoreWindow(WindowId window) {
    if (wayland_) {
        setAside_.erase(window);
        return;
    }
    if (QWidget* widget = Window(window)) {
        widget->showNormal();
    }
}

bool QtWindowLayer::IsWindowMinimised(WindowId window) const {
    if (wayland_) {
        return setAside_.count(window) > 0;
    }
    const QWidget* widget = Window(window);
    return widget != nullptr && widget->isMinimized();
}

bool QtWindowLayer::IsWindowVisible(WindowId window) const {
    const QWidget* widget = Window(window);
    return widget != nullptr && widget->isVisible();
}

int QtWindowLayer::ScreenWidthTwips() const {
    return PrimaryScreen()->size().width() * TwipsPerPixel;
}

int QtWindowLayer::ScreenHeightTwips() const {
    return PrimaryScreen()->size().height() * TwipsPerPixel;
}

int QtWindowLayer::TextWidthTwips(const std::string& face, double points, bool bold, bool italic,
                                  const std::string& text) const {
    QFont font(ToQt(face));
    font.setPointSizeF(points);
    font.setBold(bold);
    font.setItalic(italic);
    const QFontMetricsF metrics(font);
    return static_cast<int>(std::lround(metrics.horizontalAdvance(ToQt(text)) * TwipsPerPixel));
}

bool QtWindowLayer::HasFontFace(const std::string& face, bool italic) const {
    // The font database lists what is really installed; a QFont would quietly take a stand-in.
    const QString family = ToQt(face);
    const QStringList families = QFontDatabase::families();
    const auto found = std::find_if(families.begin(), families.end(), [&](const QString& known) {
        return known.compare(family, Qt::CaseInsensitive) == 0;
    });
    if (found == families.end()) {
        return false;
    }
    if (!italic) {
        return true;
    }
    const QStringList styles = QFontDatabase::styles(*found);
    return std::any_of(styles.begin(), styles.end(),
                       [&](const QString& style) { return QFontDatabase::italic(*found, style); });
}

PrintOutcome QtWindowLayer::PrintDialogue(const PrintRequest& request) {
    const QString face = ToQt(printFace_ ? printFace_() : FontNames{}.Main);
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer, request);
    // The preview and the print dialog take the pointer as any window does.
    const bool wasBusy = busy_;
    SetBusyPointer(false);
    const auto outcome = PreviewAndPrint(printer, [&](QPrinter& target) {
        return PrintDialogueOn(target, request, face).has_value();
    });
    SetBusyPointer(wasBusy);
    return outcome;
}

void QtWindowLayer::ShowInEditor(const std::string& text, const std::string& proposedFileName) {
    auto* editor =
        new ExportEditorWindow(*this, saveFolder_, *spelling_, ToQt(text), ToQt(proposedFileName));
    editor->show();
}

std::optional<std::filesystem::path>
QtWindowLayer::AskSaveFileName(const std::string& proposedFileName) {
    const QString chosen =
        QFileDialog::getSaveFileName(QApplication::activeWindow(), QStringLiteral("Save As"),
                                     ProposedSavePath(saveFolder_, ToQt(proposedFileName)),
                                     QStringLiteral("Text files (*.txt);;All files (*)"));
    if (chosen.isEmpty()) {
        return std::nullopt;
    }
    const std::filesystem::path path(QFile::encodeName(chosen).toStdString());
    saveFolder_.Saved(path);
    return path;
}

std::optional<std::filesystem::path> QtWindowLayer::AskFolder(const std::string& title) {
    const QString chosen = QFileDialog::getExistingDirectory(
        QApplication::activeWindow(), ToQt(title), ProposedSavePath(saveFolder_, QString()));
    if (chosen.isEmpty()) {
        return std::nullopt;
    }
    return std::filesystem::path(QFile::encodeName(chosen).toStdString());
}

void QtWindowLayer::OpenFolder(const std::filesystem::path& folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(folder.c_str())));
}

void QtWindowLayer::EndProcessAfter(int milliseconds) {
    QTimer::singleShot(milliseconds, [this] { EndProcess(); });
}

void QtWindowLayer::EndProcess() {
    ended_ = true;
    QCoreApplication::exit(0);
}

} // namespace veyrant
