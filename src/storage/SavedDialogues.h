#pragma once

// The saved Dialogues read as they stand, for taking them out of the program: nothing here
// changes the Library. No retention runs and no folder is made, so that an export never costs
// the user a Dialogue.

#include "core/DateTime.h"
#include "shell/AppFolder.h"

#include <filesystem>
#include <string>
#include <vector>

namespace veyrant {

struct SavedDialogue {
    std::string FileName;
    DateTime Date;
    std::string Inspiration; // the isp/ file: a tab and the text
    std::string Dialogue;    // the dlg/ file, with its leading blank line
};

// The plain files of isp/ that are no hidden leftover of an interrupted write, in name order. A
// missing isp/ holds none. Raises ProgramError when the folder cannot be listed.
std::vector<std::string> ListedDialogueNames(const std::filesystem::path& inspirations);

// Oldest first by the date in the name: equal dates keep name order, and a name that is no date
// goes before every dated one.
std::vector<std::string> RankByDate(const std::vector<std::string>& names);

// The Dialogue's pair of files and the date of its name. Raises ProgramError: 53 when a file is
// missing, 75 when one cannot be read, 13 when the name is no date.
SavedDialogue ReadSavedDialogue(const AppFolder& folder, const std::string& fileName);

} // namespace veyrant
