#pragma once

// The platform seams for command-line tools: no windows, boxes printed to the error stream, and
// a clock that stands where the tool puts it.

#include "core/Clock.h"
#include "core/Cp1252.h"
#include "core/WindowLayer.h"

#include <iostream>

namespace veyrant::tools {

// Boxes go to the error stream; nothing else of a window is needed here.
class ConsoleWindowLayer final : public WindowLayer {
public:
    MessageAnswer ShowMessage(const MessageBoxRequest& request) override {
        std::cerr << "[" << Cp1252ToUtf8(request.Title) << "] " << Cp1252ToUtf8(request.Text)
                  << "\n";
        return MessageAnswer::Ok;
    }
    void Yield() override {}
    void SetBusyPointer(bool) override {}
    void StartTimer(TimerId, int) override {}
    void StopTimer(TimerId) override {}
    void LoadWindow(WindowId) override {}
    void UnloadWindow(WindowId) override {}
    void ShowWindow(WindowId) override {}
    void HideWindow(WindowId) override {}
    void MinimiseWindow(WindowId) override {}
    void RestoreWindow(WindowId) override {}
    bool IsWindowVisible(WindowId) const override { return false; }
    bool IsWindowMinimised(WindowId) const override { return false; }
    int ScreenWidthTwips() const override { return 1920 * TwipsPerPixel; }
    int ScreenHeightTwips() const override { return 1080 * TwipsPerPixel; }
    int TextWidthTwips(const std::string&, double, bool, bool,
                       const std::string& text) const override {
        return static_cast<int>(text.size()) * 100;
    }
    bool HasFontFace(const std::string&, bool) const override { return true; }
    PrintOutcome PrintDialogue(const PrintRequest&) override { return PrintOutcome::Cancelled; }
    void ShowInEditor(const std::string&, const std::string&) override {}
    std::optional<std::filesystem::path> AskSaveFileName(const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::filesystem::path> AskFolder(const std::string&) override {
        return std::nullopt;
    }
    void OpenFolder(const std::filesystem::path&) override {}
    void EndProcessAfter(int) override {}
    void EndProcess() override {}
};

// A clock that reads what the tool sets.
class SettableClock final : public Clock {
public:
    float Timer() const override { return Seconds; }
    DateTime Now() const override { return {}; }
    float Seconds = 0;
};

} // namespace veyrant::tools
