#pragma once

// The window seam over Qt: message boxes, the event loop, the pointer, timers, windows by their
// id, the screen, text measure and the machine's real font faces.

#include "core/WindowLayer.h"
#include "printing/SaveFolder.h"
#include "shell/SpellChecker.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <set>

class QMessageBox;
class QTimer;

namespace veyrant {

class QtWindowLayer final : public WindowLayer {
public:
    using WindowFactory = std::function<QWidget*()>;

    QtWindowLayer();
    ~QtWindowLayer() override;
    QtWindowLayer(const QtWindowLayer&) = delete;
    QtWindowLayer& operator=(const QtWindowLayer&) = delete;

    // How a window is built when it is loaded; the layer owns it from then on.
    void RegisterWindow(WindowId window, WindowFactory factory);
    // What runs each time a timer fires.
    void SetTimerHandler(TimerId timer, std::function<void()> handler);
    // The loaded window, or nullptr.
    QWidget* Window(WindowId window) const;
    // The program's serif face, as the font check chose it, for the printed pages.
    void SetPrintFace(std::function<std::string()> face) { printFace_ = std::move(face); }
    // The spelling marks the export editor shares with the Write window.
    void SetSpelling(SpellChecker& spelling) { spelling_ = &spelling; }
    // True once the program has asked to end; the event loop must then not be entered.
    bool Ended() const { return ended_; }

    MessageAnswer ShowMessage(const MessageBoxRequest& request) override;
    void Yield() override;
    void SetBusyPointer(bool busy) override;
    void StartTimer(TimerId timer, int milliseconds) override;
    void StopTimer(TimerId timer) override;
    void LoadWindow(WindowId window) override;
    void UnloadWindow(WindowId window) override;
    void ShowWindow(WindowId window) override;
    void HideWindow(WindowId window) override;
    void MinimiseWindow(WindowId window) override;
    void RestoreWindow(WindowId window) override;
    bool IsWindowVisible(WindowId window) const override;
    bool IsWindowMinimised(WindowId window) const override;
    int ScreenWidthTwips() const override;
    int ScreenHeightTwips() const override;
    int TextWidthTwips(const std::string& face, double points, bool bold, bool italic,
                       const std::string& text) const override;
    bool HasFontFace(const std::string& face, bool italic) const override;
    PrintOutcome PrintDialogue(const PrintRequest& request) override;
    void ShowInEditor(const std::string& text, const std::string& proposedFileName) override;
    std::optional<std::filesystem::path>
    AskSaveFileName(const std::string& proposedFileName) override;
    std::optional<std::filesystem::path> AskFolder(const std::string& title) override;
    void OpenFolder(const std::filesystem::path& folder) override;
    void EndProcessAfter(int milliseconds) override;
    void EndProcess() override;

private:
    QTimer& TimerFor(TimerId timer);

    std::map<WindowId, WindowFactory> factories_;
    std::map<WindowId, QPointer<QWidget>> windows_;
    std::map<TimerId, std::unique_ptr<QTimer>> timers_;
    std::map<TimerId, std::function<void()>> handlers_;
    std::function<std::string()> printFace_;
    SaveFolder saveFolder_;
    SpellChecker idleSpelling_;
    SpellChecker* spelling_ = &idleSpelling_;
    bool busy_ = false;
    bool ended_ = false;
    // A Wayland client can neither learn that it was brought back from minimised nor raise
    // itself. There a window is only marked as set aside, staying where it is behind the newer
    // window, and bringing an already shown window to the front maps it afresh.
    bool wayland_ = false;
    std::set<WindowId> setAside_;
};

// The box for a request, built but not shown.
std::unique_ptr<QMessageBox> BuildMessageBox(const MessageBoxRequest& request);

} // namespace veyrant
