#include "storage/DialogueLibrary.h"

#include "core/Cp1252.h"
#include "core/DateFormat.h"
#include "core/FileCallError.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "storage/DialogueFile.h"
#include "storage/FileTransaction.h"
#include "storage/LibraryFileName.h"
#include "storage/SavedDialogues.h"
#include "storage/StorageFailure.h"
#include "storage/WorkBuffers.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace veyrant {

namespace {

DateTime FileNameDate(const std::string& name) {
    return FileDateValue(ParseFileName(name).FileDateText);
}

MessageBoxRequest ScanFailureBox(int number) {
    return WarningBox(
        "Error " + std::to_string(number) + " Dialogue Library File Names",
        "The Dialogue Library retrieval system has failed. The cause is unknown, but a file "
        "may be missing. If there has been no tampering, your disk may be corrupted or "
        "damaged. Be certain to check it fully with all available diagnostics." +
            std::string(CrLf) + std::string(CrLf) +
            "If the failure returns after that, uninstall the Veyrant Sagrel and then "
            "re-install it.");
}

} // namespace

// The first tag of that minute that neither folder holds, so that no save replaces another.
std::optional<std::string> DialogueLibrary::FreeFileName(const DateTime& date) const {
    for (int tag = 0; tag < FileTags; ++tag) {
        std::string name = MakeFileName(date, tag);
        std::error_code error;
        if (!std::filesystem::exists(folder_.Isp() / name, error) &&
            !std::filesystem::exists(folder_.Dlg() / name, error)) {
            return name;
        }
    }
    return std::nullopt;
}

DialogueLibrary::DialogueLibrary(const AppFolder& folder, const Settings& settings,
                                 const Clock& clock, WindowLayer& windows)
    : folder_(folder), settings_(settings), clock_(clock), windows_(windows) {}

bool DialogueLibrary::ScanLibrary() {
    try {
        ScanAndRetain();
        return true;
    } catch (const ProgramError& error) {
        windows_.ShowMessage(ScanFailureBox(error.Number()));
        return false;
    }
}

// The folder is listed and ranked once; the pairs over the limits go, oldest first, in one
// change, which leaves the same Library as deleting one pair at a time would.
void DialogueLibrary::ScanAndRetain() {
    MakeLibraryFolders();
    const auto names = ListedDialogueNames(folder_.Isp());
    if (names.empty()) {
        listing_.LibraryCount = 0;
        return;
    }
    listing_.LibraryCount = static_cast<int>(names.size());
    MakeRoom(names.size());
    auto ranked = RankByDate(names);
    std::size_t kept = 0;
    for (;;) {
        listing_.OldestFile = ranked[kept];
        listing_.OldestAge = AgeInDays(clock_.Now(), FileNameDate(listing_.OldestFile));
        const int count = static_cast<int>(ranked.size() - kept);
        // The last Dialogue stays, however old.
        const bool overLimit =
            count > settings_.MaxLibraryFiles || listing_.OldestAge > settings_.MaxLibraryDays;
        if (count < 2 || !overLimit) {
            break;
        }
        ++kept;
    }
    if (kept > 0) {
        const std::vector<std::string> oldest(ranked.begin(),
                                              ranked.begin() + static_cast<long>(kept));
        if (DeletePairs(oldest)) {
            ranked.erase(ranked.begin(), ranked.begin() + static_cast<long>(kept));
            listing_.LibraryCount = static_cast<int>(ranked.size());
        } else {
            // The user keeps them, and the next scan asks again.
            listing_.OldestFile = ranked.front();
            listing_.OldestAge = AgeInDays(clock_.Now(), FileNameDate(listing_.OldestFile));
        }
    }
    FillLabels(ranked);
}

// The tables only grow, so that every index up to LibraryCount holds something even when a
// scan stops halfway.
void DialogueLibrary::MakeRoom(std::size_t count) {
    const std::size_t room = count + 1;
    for (auto* table : {&listing_.LibraryFiles, &listing_.LibraryDates, &listing_.LibraryLabels,
                        &listing_.LibrarySortDates}) {
        table->resize(std::max(table->size(), room));
    }
    listing_.LibraryListOrder.resize(std::max(listing_.LibraryListOrder.size(), room));
}

void DialogueLibrary::FillLabels(const std::vector<std::string>& ranked) {
    const std::size_t count = ranked.size();
    for (std::size_t k = 1; k <= count; ++k) {
        const std::string& name = ranked[k - 1];
        listing_.LibraryFiles[k] = name;
        const DateTime date = FileNameDate(name);
        listing_.LibraryDates[k] = FormatDate(date, "dddd, h:nn am/pm, mmmm d, yyyy");
        std::string label = FormatDate(date, "mmm d");
        if (count > 1) {
            label = (k == 1 ? "Earliest, " : k == count ? "Latest, " : "Prior, ") + label;
        }
        listing_.LibraryLabels[k] = label;
        listing_.LibrarySortDates[k] = FormatDate(date, "yy-mm-dd");
        listing_.LibraryListOrder[count - k + 1] = static_cast<int>(k);
    }
}

void DialogueLibrary::MakeLibraryFolders() const {
    MakeFolder(folder_.Isp());
    MakeFolder(folder_.Dlg());
}

// As one pair after the other, isp/ first, stopping at the first file that is missing: what
// went before it goes to the trash in one change, and then the missing file is reported.
bool DialogueLibrary::DeletePairs(const std::vector<std::string>& fileNames) const {
    const auto inspirations = ListFiles(folder_.Isp());
    const auto dialogues = ListFiles(folder_.Dlg());
    const auto holds = [](const std::vector<std::string>& sorted, const std::string& name) {
        return std::binary_search(sorted.begin(), sorted.end(), name);
    };
    std::vector<std::filesystem::path> doomed;
    bool missing = false;
    for (const auto& name : fileNames) {
        if (!holds(inspirations, name)) {
            missing = true;
            break;
        }
        doomed.push_back(folder_.Isp() / name);
        if (!holds(dialogues, name)) {
            missing = true;
            break;
        }
        doomed.push_back(folder_.Dlg() / name);
    }
    if (!doomed.empty() && !MoveToTrash(doomed, fileNames.size())) {
        return false;
    }
    if (missing) {
        throw ProgramError(ErrorNumber::FileNotFound);
    }
    return true;
}

// Where the trash cannot take the files, they are deleted for good only when the user says so.
bool DialogueLibrary::MoveToTrash(const std::vector<std::filesystem::path>& doomed,
                                  std::size_t dialogues) const {
    FileTransaction change(folder_.Root);
    try {
        for (const auto& file : doomed) {
            change.MoveToTrash(file, folder_.Trash(), clock_.Now());
        }
    } catch (const FileCallError& error) {
        if (windows_.ShowMessage(TrashFailureBox(error, dialogues)) != MessageAnswer::Yes) {
            return false;
        }
        FileTransaction forGood(folder_.Root);
        for (const auto& file : doomed) {
            forGood.Remove(file);
        }
        forGood.Commit();
        return true;
    }
    change.Commit();
    return true;
}

MessageBoxRequest DialogueLibrary::TrashFailureBox(const FileCallError& error,
                                                   std::size_t dialogues) const {
    const std::string number = std::to_string(error.Number());
    const std::string cause = error.Cause() == EXDEV ? "The trash is on another disk."
                              : error.Number() == ErrorNumber::DiskFull ? "The disk is full."
                              : error.Number() == ErrorNumber::PermissionDenied
                                  ? "The program is not allowed to write there."
                                  : "It cannot be written.";
    const bool one = dialogues == 1;
    MessageBoxRequest box = WarningBox(
        "Error " + number + " Moving to the Trash",
        "Error " + number + " attempting to move " +
            (one ? "the Dialogue" : "the " + std::to_string(dialogues) + " Dialogues") +
            " to the trash, " + PathText(folder_.Trash()) + ". " + cause + std::string(CrLf) +
            std::string(CrLf) + "Delete " + (one ? "it" : "them") +
            " for good instead? What is deleted for good cannot be restored. Click 'No' to keep " +
            (one ? "it" : "them") + " in the Library.");
    box.Buttons = MessageButtons::YesNo;
    return box;
}

std::optional<std::string> DialogueLibrary::AddToLibrary(const std::string& inspirationText,
                                                         const std::string& dialogueText) {
    // The buffers name the Dialogue; should savei.tmp be gone, the present minute does, so
    // that the Dialogue is still saved.
    const DateTime date = clock_.FileDate(InspirationBufferPath(folder_)).value_or(clock_.Now());
    const auto name = FreeFileName(date);
    if (!name) {
        windows_.ShowMessage(WarningBox(
            "Cannot Save -- Ten Dialogues in One Minute",
            "Ten Dialogues of this minute are in the Library already, which is as many as their "
            "file names can tell apart." +
                std::string(CrLf) + std::string(CrLf) +
                "Your Dialogue is not lost: it stays on the screen and in the work buffers. Click "
                "'Continue', and 'Finish' again once this minute has passed; then click 'Save'."));
        return std::nullopt;
    }
    // Both files go in as one change: a failure or a crash leaves the pair as it was, old or
    // absent, or the new pair whole.
    const auto inspiration = DialogueFile::SavedInspiration(folder_, *name);
    const auto dialogue = DialogueFile::SavedDialogue(folder_, *name);
    std::filesystem::path writing = inspiration.Path();
    try {
        MakeFolder(folder_.Isp());
        writing = dialogue.Path();
        MakeFolder(folder_.Dlg());
        FileTransaction change(folder_.Root);
        writing = inspiration.Path();
        inspiration.Stage(change, inspirationText);
        writing = dialogue.Path();
        dialogue.Stage(change, dialogueText);
        change.Commit();
    } catch (const ProgramError& error) {
        windows_.ShowMessage(SaveFailureBox(error.Number(), writing));
        return std::nullopt;
    }
    ScanLibrary();
    return *name;
}

bool DialogueLibrary::Holds(const std::string& fileName) const {
    const auto first = listing_.LibraryFiles.begin() + 1;
    return std::find(first, first + listing_.LibraryCount, fileName) !=
           first + listing_.LibraryCount;
}

bool DialogueLibrary::DeleteDialogue(const std::string& fileName) {
    MessageBoxRequest question;
    question.Title = "Delete Dialogue";
    question.Text = "Are you certain you want to delete this Dialogue?";
    question.Icon = MessageIcon::Stop;
    question.Buttons = MessageButtons::YesNoCancel;
    question.DefaultButton = 2;
    if (windows_.ShowMessage(question) != MessageAnswer::Yes) {
        return false;
    }
    try {
        return DeletePairs({fileName});
    } catch (const ProgramError& error) {
        windows_.ShowMessage(
            LibraryCorruptedBox("Dialogue Library Corrupted", error.Number(), "delete the file"));
        // The listing follows what the failure left on the disk.
        ScanLibrary();
        return false;
    }
}

} // namespace veyrant
