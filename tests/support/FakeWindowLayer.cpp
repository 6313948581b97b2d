#include "FakeWindowLayer.h"

namespace veyrant::testing {

namespace {

const char* WindowName(WindowId window) {
    switch (window) {
    case WindowId::Banner:
        return "Banner";
    case WindowId::Back:
        return "Back";
    case WindowId::Mirror:
        return "Mirror";
    case WindowId::Read:
        return "Read";
    case WindowId::Options:
        return "Options";
    case WindowId::Utility:
        return "Utility";
    case WindowId::Resize:
        return "Resize";
    case WindowId::Check:
        return "Check";
    case WindowId::Export:
        return "Export";
    }
    return "?";
}

} // namespace

MessageAnswer FakeWindowLayer::ShowMessage(const MessageBoxRequest& request) {
    Boxes.push_back(request);
    if (Answers.empty()) {
        return request.Buttons == MessageButtons::Ok || request.Buttons == MessageButtons::OkCancel
                   ? MessageAnswer::Ok
                   : MessageAnswer::Yes;
    }
    const auto answer = Answers.front();
    Answers.pop_front();
    return answer;
}

std::optional<std::filesystem::path>
FakeWindowLayer::AskSaveFileName(const std::string& proposedFileName) {
    ProposedSaveNames.push_back(proposedFileName);
    if (SaveNameAnswers.empty()) {
        return std::nullopt;
    }
    auto answer = SaveNameAnswers.front();
    SaveNameAnswers.pop_front();
    return answer;
}

std::optional<std::filesystem::path> FakeWindowLayer::AskFolder(const std::string&) {
    if (FolderAnswers.empty()) {
        return std::nullopt;
    }
    auto answer = FolderAnswers.front();
    FolderAnswers.pop_front();
    return answer;
}

void FakeWindowLayer::LoadWindow(WindowId window) {
    Loaded.insert(window);
    WindowEvents.push_back(std::string("load ") + WindowName(window));
}

void FakeWindowLayer::UnloadWindow(WindowId window) {
    Loaded.erase(window);
    Visible.erase(window);
    WindowEvents.push_back(std::string("unload ") + WindowName(window));
}

void FakeWindowLayer::ShowWindow(WindowId window) {
    Loaded.insert(window);
    Visible.insert(window);
    WindowEvents.push_back(std::string("show ") + WindowName(window));
}

void FakeWindowLayer::HideWindow(WindowId window) {
    Visible.erase(window);
    WindowEvents.push_back(std::string("hide ") + WindowName(window));
}

PrintOutcome FakeWindowLayer::PrintDialogue(const PrintRequest& request) {
    Printed.push_back(request);
    BusyWhilePrinting = Busy;
    return PrintAnswer;
}

int FakeWindowLayer::TextWidthTwips(const std::string&, double points, bool, bool,
                                    const std::string& text) const {
    // A fixed advance of half an em per character keeps layout tests predictable.
    return static_cast<int>(static_cast<double>(text.size()) * points * 10.0);
}

bool FakeWindowLayer::HasFontFace(const std::string& face, bool italic) const {
    return MissingFaces.count(face + (italic ? "/italic" : "")) == 0 &&
           MissingFaces.count(face) == 0;
}

} // namespace veyrant::testing
