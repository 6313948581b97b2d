#pragma once

// The Dialogue Library on disk: one pair of files per saved Dialogue, the same name in isp/ and
// dlg/. Only isp/ is ever listed: it decides what the Library holds. Nothing is deleted for good
// without the user's word: retention, a clean and a delete move the pairs to the desktop's trash.
// Retention is no background task: every scan applies it, at start, when the Library Options
// open, after a save and after a clean.

#include "core/Clock.h"
#include "core/FileCallError.h"
#include "core/WindowLayer.h"
#include "shell/AppFolder.h"
#include "shell/Settings.h"
#include "storage/LibraryListing.h"

#include <optional>
#include <string>
#include <vector>

namespace veyrant {

class DialogueLibrary {
public:
    DialogueLibrary(const AppFolder& folder, const Settings& settings, const Clock& clock,
                    WindowLayer& windows);

    const LibraryListing& Listing() const { return listing_; }

    // Lists isp/, deletes the oldest pair while the Library is over either limit (never the last
    // Dialogue), and fills the listing. A missing isp/ or dlg/ is made anew. On a failure it
    // shows the box "Error n Dialogue Library File Names", leaves the listing as it stands and
    // returns false.
    bool ScanLibrary();

    // Saves the Dialogue under the date of the work buffer savei.tmp, isp/ first, then scans,
    // and gives the name it was saved under. A save in a minute that has one already takes the
    // next free file tag; with all ten taken it is refused. Nothing when the Dialogue could not
    // be saved: the box has been shown and the Library is as it was, so the caller must keep the
    // Dialogue and its work buffers. The scan may take the new pair at once; Holds tells.
    std::optional<std::string> AddToLibrary(const std::string& inspirationText,
                                            const std::string& dialogueText);

    // Whether the last scan listed a Dialogue of that file name.
    bool Holds(const std::string& fileName) const;

    // The Reader's Delete: asks, then moves the pair of that name to the trash, isp/ first. True
    // when the pair is gone, and the Reader then lists the Library anew and refreshes the status.
    // After a failure the listing is scanned again, since part of the pair may be gone.
    bool DeleteDialogue(const std::string& fileName);

    // Moves the pairs of those names to the desktop's trash as one change, as if isp/ then dlg/
    // of each in turn, where a file manager restores them; raises ProgramError 53 at the first
    // file missing, with the pairs before it gone. Where the trash cannot take them a box asks
    // whether to delete them for good instead: false when the user keeps them.
    bool DeletePairs(const std::vector<std::string>& fileNames) const;

private:
    std::optional<std::string> FreeFileName(const DateTime& date) const;
    bool MoveToTrash(const std::vector<std::filesystem::path>& doomed, std::size_t dialogues) const;
    MessageBoxRequest TrashFailureBox(const FileCallError& error, std::size_t dialogues) const;
    void ScanAndRetain();
    void MakeRoom(std::size_t count);
    void FillLabels(const std::vector<std::string>& ranked);
    void MakeLibraryFolders() const;

    const AppFolder& folder_;
    const Settings& settings_;
    const Clock& clock_;
    WindowLayer& windows_;
    LibraryListing listing_;
};

} // namespace veyrant
