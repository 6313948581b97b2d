#include "storage/DialogueLibrary.h"

#include "core/DateFormat.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "storage/FileOperations.h"
#include "storage/LibraryFileName.h"
#include "storage/StorageFailure.h"
#include "storage/WorkBuffers.h"

#include <algorithm>
#include <system_error>

namespace veyrant {

namespace {

DateTime FileNameDate(const std::string& name) {
    return FileDateValue(ParseFileName(name).FileDateText);
}

// Rank by selection, latest first: for each rank from the top, the unmarked name with the
// greatest key strictly above the best so far, starting from 0. Equal keys leave the one listed
// first at the higher rank. A name whose key is not above 0 never wins, so such names take the
// lowest ranks, in listing order.
std::vector<std::string> RankByDate(const std::vector<std::string>& names) {
    std::vector<std::string> ranked(names.size());
    std::vector<bool> marked(names.size(), false);
    for (std::size_t rank = names.size(); rank >= 1; --rank) {
        double best = 0;
        std::size_t chosen = names.size();
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (!marked[i] && SortKey(names[i]) > best) {
                best = SortKey(names[i]);
                chosen = i;
            }
        }
        if (chosen == names.size()) {
            chosen = static_cast<std::size_t>(std::find(marked.begin(), marked.end(), false) -
                                              marked.begin());
        }
        marked[chosen] = true;
        ranked[rank - 1] = names[chosen];
    }
    return ranked;
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

void DialogueLibrary::ScanAndRetain() {
    MakeLibraryFolders();
    for (;;) {
        const std::size_t count = ListInspirations().size();
        if (count == 0) {
            listing_.LibraryCount = 0;
            return;
        }
        listing_.LibraryCount = static_cast<int>(count);
        MakeRoom(count);
        const auto names = ListInspirations();
        if (names.size() != count) {
            throw ProgramError(ErrorNumber::ProgramState);
        }
        const auto ranked = RankByDate(names);
        listing_.OldestFile = ranked.front();
        listing_.OldestAge = AgeInDays(clock_.Now(), FileNameDate(listing_.OldestFile));
        // The last Dialogue stays, however old.
        const bool overLimit = listing_.LibraryCount > settings_.MaxLibraryFiles ||
                               listing_.OldestAge > settings_.MaxLibraryDays;
        if (listing_.LibraryCount < 2 || !overLimit) {
            FillLabels(ranked);
            return;
        }
        DeletePair(listing_.OldestFile);
    }
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

// Plain files only, in name order so that ties fall the same way on every file system. Names
// that begin with a point are left out: they are hidden files, among them a write of ours that
// a crash interrupted.
std::vector<std::string> DialogueLibrary::ListInspirations() const {
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entries(folder_.Isp(), error);
    if (error) {
        throw ProgramError(ErrorNumberFor(error));
    }
    for (const auto& entry : entries) {
        const std::string name = entry.path().filename().string();
        if (name.front() != '.' && entry.is_regular_file(error)) {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

void DialogueLibrary::MakeLibraryFolders() const {
    MakeFolder(folder_.Isp());
    MakeFolder(folder_.Dlg());
}

void DialogueLibrary::DeletePair(const std::string& fileName) const {
    RemoveFile(folder_.Isp() / fileName);
    RemoveFile(folder_.Dlg() / fileName);
}

bool DialogueLibrary::AddToLibrary(const std::string& inspirationText,
                                   const std::string& dialogueText) {
    // The buffers name the Dialogue; should savei.tmp be gone, the present minute does, so
    // that the Dialogue is still saved.
    const DateTime date = clock_.FileDate(InspirationBufferPath(folder_)).value_or(clock_.Now());
    const std::string name = MakeFileName(date);
    // The isp/ file is laid down first under a hidden name and put in place only once the
    // Dialogue is written, so that a failure leaves the pair as it was, old or absent.
    const std::filesystem::path staged = folder_.Isp() / ("." + name + ".new");
    std::filesystem::path writing;
    try {
        writing = folder_.Isp() / name;
        MakeFolder(folder_.Isp());
        writing = folder_.Dlg() / name;
        MakeFolder(folder_.Dlg());
        writing = folder_.Isp() / name;
        WriteWholeFile(staged, inspirationText);
        writing = folder_.Dlg() / name;
        WriteWholeFile(writing, dialogueText);
        writing = folder_.Isp() / name;
        RenameFile(staged, writing);
    } catch (const ProgramError& error) {
        std::error_code ignored;
        std::filesystem::remove(staged, ignored);
        windows_.ShowMessage(SaveFailureBox(error.Number(), writing));
        return false;
    }
    ScanLibrary();
    return true;
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
        DeletePair(fileName);
        return true;
    } catch (const ProgramError& error) {
        windows_.ShowMessage(WarningBox(
            "Dialogue Library Corrupted",
            "Error " + std::to_string(error.Number()) +
                " attempting to delete the file from the Dialogue Library. Because the Library "
                "has become corrupted, it is necessary for you to repair it. Open the 'User's "
                "Manual' from the Veyrant Sagrel program group and review the section, "
                "'Repairing the Dialogue Library'."));
        return false;
    }
}

} // namespace veyrant
