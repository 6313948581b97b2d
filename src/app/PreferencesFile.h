#pragma once

// exe/Preferences.ini: "version 1" on the first line, then one "key value" line per choice, lines
// ended by CR LF. A key this build does not know is kept; a damaged file repairs itself to the
// defaults without a word to the user, as Tolmira.ini does.

#include "app/Application.h"

namespace veyrant {

std::filesystem::path PreferencesFile(const Application& app);

// exe/Words.txt: the words the user added to the dictionary, one to a line.
std::filesystem::path PersonalWordsFile(const Application& app);

void LoadPreferences(Application& app);
// A failure goes to the caller's handler.
void SavePreferences(const Application& app);

} // namespace veyrant
