#pragma once

#include "core/WindowLayer.h"

#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace veyrant::testing {

// Answers message boxes from a script (Ok when the script is empty) and records everything the
// logic asked of the platform, so a test can assert what the user would have seen.
class FakeWindowLayer : public WindowLayer {
public:
    MessageAnswer ShowMessage(const MessageBoxRequest& request) override {
        Boxes.push_back(request);
        const bool ok =
            request.Buttons == MessageButtons::Ok || request.Buttons == MessageButtons::OkCancel;
        return Next(Answers).value_or(ok ? MessageAnswer::Ok : MessageAnswer::Yes);
    }
    void Yield() override { ++Yields; }
    void SetBusyPointer(bool busy) override { Busy = busy; }
    // A start of a running timer begins its count again, as the screen's timer does.
    void StartTimer(TimerId timer, int milliseconds) override {
        Timers[timer] = milliseconds;
        ++TimerStarts[timer];
    }
    void StopTimer(TimerId timer) override { Timers.erase(timer); }
    void LoadWindow(WindowId window) override {
        Loaded.insert(window);
        Note("load ", window);
    }
    void UnloadWindow(WindowId window) override {
        Loaded.erase(window);
        Visible.erase(window);
        Note("unload ", window);
    }
    void ShowWindow(WindowId window) override {
        Loaded.insert(window);
        Visible.insert(window);
        Note("show ", window);
    }
    void HideWindow(WindowId window) override {
        Visible.erase(window);
        Note("hide ", window);
    }
    void MinimiseWindow(WindowId window) override { Minimised.insert(window); }
    void RestoreWindow(WindowId window) override { Minimised.erase(window); }
    bool IsWindowVisible(WindowId window) const override { return Visible.count(window) > 0; }
    bool IsWindowMinimised(WindowId window) const override { return Minimised.count(window) > 0; }
    int ScreenWidthTwips() const override { return ScreenWidth; }
    int ScreenHeightTwips() const override { return ScreenHeight; }
    // A fixed advance of half an em per character keeps layout tests predictable.
    int TextWidthTwips(const std::string&, double points, bool, bool,
                       const std::string& text) const override {
        return static_cast<int>(static_cast<double>(text.size()) * points * 10.0);
    }
    bool HasFontFace(const std::string& face, bool italic) const override {
        return !MissingFaces.contains(face + (italic ? "/italic" : "")) &&
               !MissingFaces.contains(face);
    }
    PrintOutcome PrintDialogue(const PrintRequest& request) override {
        Printed.push_back(request);
        BusyWhilePrinting = Busy;
        return PrintAnswer;
    }
    void ShowInEditor(const std::string& text, const std::string& proposedFileName) override {
        EditorTexts.push_back({text, proposedFileName});
    }
    // Answers from the script, a cancel when it is empty.
    std::optional<std::filesystem::path>
    AskSaveFileName(const std::string& proposedFileName) override {
        ProposedSaveNames.push_back(proposedFileName);
        return Next(SaveNameAnswers).value_or(std::nullopt);
    }
    // Answers from the script, a cancel when it is empty.
    std::optional<std::filesystem::path> AskFolder(const std::string&) override {
        return Next(FolderAnswers);
    }
    void OpenFolder(const std::filesystem::path& folder) override {
        OpenedFolders.push_back(folder);
    }
    void EndProcessAfter(int) override {}
    void EndProcess() override { Ended = true; }

    // Titles and texts of the boxes shown, in order.
    std::vector<MessageBoxRequest> Boxes;
    std::deque<MessageAnswer> Answers;
    std::map<TimerId, int> Timers;
    std::map<TimerId, int> TimerStarts;
    std::set<WindowId> Loaded;
    std::set<WindowId> Visible;
    std::set<WindowId> Minimised;
    std::vector<std::string> WindowEvents; // "load Mirror", "show Banner", "unload Banner", ...
    std::set<std::string> MissingFaces;
    int ScreenWidth = 1920 * TwipsPerPixel;
    int ScreenHeight = 1080 * TwipsPerPixel;
    // What went to the printer, and how the print dialog ends.
    std::vector<PrintRequest> Printed;
    PrintOutcome PrintAnswer = PrintOutcome::Printed;
    bool BusyWhilePrinting = false;
    struct EditorText {
        std::string Text;
        std::string ProposedFileName;
    };
    std::vector<EditorText> EditorTexts;
    // The names the save dialog proposed, and what the user chooses there, in order.
    std::vector<std::string> ProposedSaveNames;
    std::deque<std::optional<std::filesystem::path>> SaveNameAnswers;
    std::deque<std::filesystem::path> FolderAnswers;
    std::vector<std::filesystem::path> OpenedFolders;
    int Yields = 0;
    bool Busy = false;
    bool Ended = false;

private:
    // The script's next answer, taken from it; nothing when the script is empty.
    template <typename Answer>
    static std::optional<Answer> Next(std::deque<Answer>& script) {
        if (script.empty()) {
            return std::nullopt;
        }
        Answer answer = script.front();
        script.pop_front();
        return answer;
    }
    void Note(const char* verb, WindowId window) {
        static const char* const Names[] = {"Banner",  "Back",   "Mirror", "Read",  "Options",
                                            "Utility", "Resize", "Check",  "Export"};
        WindowEvents.push_back(verb + std::string(Names[static_cast<int>(window)]));
    }
};

} // namespace veyrant::testing
