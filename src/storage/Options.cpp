#include "storage/Options.h"

#include "core/ProgramError.h"
#include "core/Text.h"
#include "storage/StorageFailure.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace veyrant {

namespace {

constexpr int FewestFiles = 1;
constexpr int MostFiles = 99;
constexpr int FewestDays = 3;
constexpr int MostDays = 99;

// The leading number of a text box, as the program reads one: empty reads as 0, and anything
// past the digits is ignored. Kept within 16 bits, as the setting is.
std::int16_t TextNumber(const std::string& text) {
    const std::string trimmed = Trim(text);
    std::size_t at = 0;
    const bool negative = at < trimmed.size() && trimmed[at] == '-';
    if (negative || (at < trimmed.size() && trimmed[at] == '+')) {
        ++at;
    }
    long value = 0;
    while (at < trimmed.size() && std::isdigit(static_cast<unsigned char>(trimmed[at])) != 0) {
        value = std::min(value * 10 + (trimmed[at] - '0'), 32768L);
        ++at;
    }
    return static_cast<std::int16_t>(std::clamp(negative ? -value : value, -32768L, 32767L));
}

const char* ControlName(OptionsControl control) {
    switch (control) {
    case OptionsControl::None:
        return "none";
    case OptionsControl::txtSetSave:
        return "txtSetSave";
    case OptionsControl::txtSetDays:
        return "txtSetDays";
    case OptionsControl::Check1:
        return "Check1";
    case OptionsControl::cmdOK:
        return "cmdOK";
    case OptionsControl::cmdCancel:
        return "cmdCancel";
    case OptionsControl::cmdClean:
        return "cmdClean";
    }
    return "?";
}

MessageBoxRequest Question(std::string title, std::string text) {
    MessageBoxRequest box;
    box.Title = std::move(title);
    box.Text = std::move(text);
    box.Icon = MessageIcon::Warning;
    box.Buttons = MessageButtons::YesNoCancel;
    box.DefaultButton = 2;
    return box;
}

} // namespace

Options::Options(DialogueLibrary& library, Settings& settings, WindowLayer& windows,
                 std::function<void()> exitProgram, std::function<void()> unloadReader)
    : library_(library), settings_(settings), windows_(windows),
      exitProgram_(std::move(exitProgram)), unloadReader_(std::move(unloadReader)) {}

void Options::Form_Load() {
    priorFiles_ = settings_.MaxLibraryFiles;
    priorDays_ = settings_.MaxLibraryDays;
    priorGuestMode_ = settings_.GuestMode;
    ShowLimits(priorFiles_, priorDays_);
    controls_.Check1 = settings_.GuestMode;
    controls_.Label3.Caption =
        "Set the number and/or age of the files saved in the Library. Check or uncheck the "
        "Library Guest Mode. Then click 'OK' or the prior settings are retained.";
    controls_.lblSetSave.Caption = "Set maximum saved files between " +
                                   std::to_string(FewestFiles) + " and " +
                                   std::to_string(MostFiles) + " files";
    controls_.lblSetDays.Caption = "Set maximum saved days between " + std::to_string(FewestDays) +
                                   " and " + std::to_string(MostDays) + " days";
    library_.ScanLibrary();
    if (library_.Listing().LibraryCount == 0) {
        controls_.cmdClean.Enabled = false;
        controls_.Label4.Caption = "There are no files to clean.";
    } else {
        controls_.cmdClean.Enabled = true;
        controls_.Label4.Caption = "To delete every Dialogue at once, click 'Clean Library'.";
    }
    MoveFocus(OptionsControl::cmdCancel);
}

// Filling a box counts as a change of it, as typing does.
void Options::ShowLimits(int files, int days) {
    controls_.txtSetSave.Text = std::to_string(files);
    txtSetSave_Change(controls_.txtSetSave.Text);
    controls_.txtSetDays.Text = std::to_string(days);
    txtSetDays_Change(controls_.txtSetDays.Text);
}

void Options::txtSetSave_Change(const std::string& text) {
    controls_.txtSetSave.Text = text;
    settings_.MaxLibraryFiles = TextNumber(text);
}

void Options::txtSetDays_Change(const std::string& text) {
    controls_.txtSetDays.Text = text;
    settings_.MaxLibraryDays = TextNumber(text);
}

void Options::Check1_Click(int value) {
    controls_.Check1 = value;
    settings_.GuestMode = static_cast<std::int16_t>(value);
}

// The boxes were filled at load, which counts as a change, so OK always clamps and checks.
void Options::cmdOK_Click() {
    settings_.MaxLibraryDays =
        std::clamp<std::int16_t>(settings_.MaxLibraryDays, FewestDays, MostDays);
    settings_.MaxLibraryFiles =
        std::clamp<std::int16_t>(settings_.MaxLibraryFiles, FewestFiles, MostFiles);
    const LibraryListing& listing = library_.Listing();
    if (listing.LibraryCount > settings_.MaxLibraryFiles ||
        listing.OldestAge > settings_.MaxLibraryDays) {
        const auto answer = windows_.ShowMessage(Question(
            "Delete Dialogues", "This procedure will delete one or more Dialogues from the "
                                "Library. Are you certain you wish to delete those Dialogues?"));
        if (answer != MessageAnswer::Yes) {
            ShowLimits(priorFiles_, priorDays_);
            return;
        }
    }
    // The scan at the next start does the deleting.
    Leave();
}

// Only Guest Mode goes back: limits typed before Cancel are kept as typed, unclamped.
void Options::cmdCancel_Click() {
    settings_.GuestMode = static_cast<std::int16_t>(priorGuestMode_);
    Leave();
}

void Options::cmdClean_Click() {
    const LibraryListing& listing = library_.Listing();
    const auto answer = windows_.ShowMessage(
        Question("Delete All Dialogues",
                 "This will delete all the Dialogues from the Library, a total of " +
                     std::to_string(listing.LibraryCount) + " files." + std::string(CrLf) +
                     std::string(CrLf) + "Are you certain you wish to delete all the Dialogues?"));
    if (answer != MessageAnswer::Yes) {
        MoveFocus(OptionsControl::cmdCancel);
        return;
    }
    unloadReader_();
    try {
        if (!library_.DeletePairs({listing.LibraryFiles.begin() + 1,
                                   listing.LibraryFiles.begin() + 1 + listing.LibraryCount})) {
            MoveFocus(OptionsControl::cmdCancel);
            return;
        }
    } catch (const ProgramError& error) {
        windows_.ShowMessage(
            LibraryCorruptedBox("Dialogue Library Corrupted", error.Number(), "delete a file"));
        return;
    }
    library_.ScanLibrary();
    MoveFocus(OptionsControl::cmdCancel);
    controls_.cmdClean.Enabled = false;
    controls_.Label4.Caption = "All Dialogues have been deleted.";
}

void Options::MoveFocus(OptionsControl control) {
    controls_.Focus = control;
    ++controls_.FocusMoves;
}

void Options::Leave() {
    windows_.HideWindow(WindowId::Options);
    exitProgram_();
}

std::string Options::Dump() const {
    const auto enabled = [](const OptionsButton& button) {
        return button.Enabled ? "enabled" : "disabled";
    };
    return "txtSetSave \"" + controls_.txtSetSave.Text + "\"\n" + "txtSetDays \"" +
           controls_.txtSetDays.Text + "\"\n" + "Check1 " + std::to_string(controls_.Check1) +
           "\n" + "lblSetSave \"" + controls_.lblSetSave.Caption + "\"\n" + "lblSetDays \"" +
           controls_.lblSetDays.Caption + "\"\n" + "Label3 \"" + controls_.Label3.Caption + "\"\n" +
           "Label4 \"" + controls_.Label4.Caption + "\"\n" + "cmdOK " + enabled(controls_.cmdOK) +
           ", cmdCancel " + enabled(controls_.cmdCancel) + ", cmdClean " +
           enabled(controls_.cmdClean) + "\n" + "focus " + ControlName(controls_.Focus) + "\n";
}

} // namespace veyrant
