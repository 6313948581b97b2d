#include "shell/Resize.h"

#include <utility>

namespace veyrant {

Resize::Resize(Settings& settings, Preferences& preferences, WindowLayer& windows,
               std::function<void()> exitProgram)
    : settings_(settings), preferences_(preferences), windows_(windows),
      exitProgram_(std::move(exitProgram)) {}

void Resize::Form_Load() {
    priorOption_ = settings_.DisplayOption;
    priorSpelling_ = preferences_.SpellingMarks;
    Tick(settings_.DisplayOption);
    controls_.chkSpelling.Checked = preferences_.SpellingMarks;
}

void Resize::Option_Click(int value) {
    settings_.DisplayOption = static_cast<std::int16_t>(value);
    Tick(value);
}

void Resize::chkSpelling_Click(bool checked) {
    preferences_.SpellingMarks = checked;
    controls_.chkSpelling.Checked = checked;
}

void Resize::cmdOK_Click() {
    Leave();
}

void Resize::cmdCancel_Click() {
    settings_.DisplayOption = priorOption_;
    Tick(priorOption_);
    chkSpelling_Click(priorSpelling_);
    Leave();
}

void Resize::Tick(int value) {
    for (ResizeOption& choice : controls_.Choices) {
        choice.Checked = choice.Value == value;
    }
}

void Resize::Leave() {
    windows_.HideWindow(WindowId::Resize);
    exitProgram_();
}

std::string Resize::Dump() const {
    std::string text = "title \"" + controls_.Title + "\"\n";
    for (const ResizeOption& choice : controls_.Choices) {
        text += choice.Name + (choice.Checked ? " (x) \"" : " ( ) \"") + choice.Caption + "\"\n";
    }
    const ResizeCheck& spelling = controls_.chkSpelling;
    return text + spelling.Name + (spelling.Checked ? " [x] \"" : " [ ] \"") + spelling.Caption +
           "\"\n";
}

} // namespace veyrant
