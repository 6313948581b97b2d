#include "storage/StorageFailure.h"

#include "core/Cp1252.h"
#include "core/ProgramError.h"
#include "core/Text.h"

#include <string>
#include <utility>

namespace veyrant {

namespace {

std::string FolderText(const std::filesystem::path& file) {
    return PathText(file.parent_path());
}

std::string Cause(int number, const std::filesystem::path& file) {
    switch (number) {
    case ErrorNumber::DiskFull:
        return "The disk is full.";
    case ErrorNumber::PermissionDenied:
        return "The program is not allowed to write in the folder " + FolderText(file) + ".";
    default:
        return "The folder " + FolderText(file) + " cannot be written.";
    }
}

std::string Remedy(int number) {
    switch (number) {
    case ErrorNumber::DiskFull:
        return "Make room on the disk";
    case ErrorNumber::PermissionDenied:
        return "Allow the program to write there";
    default:
        return "Check the folder and the disk";
    }
}

std::string Paragraphs(const std::string& first, const std::string& second) {
    return first + std::string(CrLf) + std::string(CrLf) + second;
}

} // namespace

MessageBoxRequest WarningBox(std::string title, std::string text) {
    MessageBoxRequest box;
    box.Title = std::move(title);
    box.Text = std::move(text);
    box.Icon = MessageIcon::Warning;
    return box;
}

MessageBoxRequest LibraryCorruptedBox(std::string title, int number, std::string_view attempt) {
    return WarningBox(std::move(title),
                      "Error " + std::to_string(number) + " attempting to " + std::string(attempt) +
                          " from the Dialogue Library. Because the Library has become corrupted, "
                          "it is necessary for you to repair it. Open the Information Library and "
                          "review the Topic, 'Repairing the Dialogue Library'.");
}

MessageBoxRequest SaveFailureBox(int number, const std::filesystem::path& file) {
    return WarningBox(
        "Error " + std::to_string(number) + " Saving the Dialogue",
        Paragraphs("Error " + std::to_string(number) +
                       " attempting to save your Dialogue in the Dialogue Library. " +
                       Cause(number, file),
                   "Your Dialogue is not lost. It stays on the screen and in the work "
                   "buffers, and the Library is as it was. " +
                       Remedy(number) + ", then click 'Save' again."));
}

MessageBoxRequest KeepFailureBox(int number, const std::filesystem::path& file) {
    return WarningBox(
        "Error " + std::to_string(number) + " Keeping the Dialogue",
        Paragraphs("Error " + std::to_string(number) +
                       " attempting to keep your Dialogue in the work buffers. " +
                       Cause(number, file),
                   "Your Dialogue is not lost: it stays on the screen, and the program stays "
                   "open. The work buffers still hold the Dialogue as it was last kept. " +
                       Remedy(number) + ", then try again."));
}

MessageBoxRequest LeavingKeepFailureBox(int number, const std::filesystem::path& file) {
    MessageBoxRequest box = KeepFailureBox(number, file);
    box.Text = Paragraphs(box.Text, "Or save the Dialogue now as a text file in a place you "
                                    "choose, and the program goes on without it: the Dialogue "
                                    "then does not reopen at the next start.");
    box.Text = Paragraphs(box.Text, "Do you wish to save the Dialogue as a text file?");
    box.Buttons = MessageButtons::YesNo;
    return box;
}

MessageBoxRequest SettingsFailureBox(int number, const std::filesystem::path& file) {
    return WarningBox("Error " + std::to_string(number) + " Storing the Settings",
                      Paragraphs("Error " + std::to_string(number) +
                                     " attempting to store your settings. " + Cause(number, file),
                                 "Your Dialogues are not affected. The settings changed since "
                                 "the program started are lost. " +
                                     Remedy(number) + " before the next start."));
}

MessageBoxRequest PlacesFailureBox(int number, const std::filesystem::path& file) {
    return WarningBox("Error " + std::to_string(number) + " Storing the Library Places",
                      Paragraphs("Error " + std::to_string(number) +
                                     " attempting to store the places marked in the libraries, "
                                     "in the file " +
                                     PathText(file) + ". " + Cause(number, file),
                                 "Your Dialogues are not affected, and the program goes on. "
                                 "The libraries may not open at their marked places. " +
                                     Remedy(number) + "."));
}

} // namespace veyrant
