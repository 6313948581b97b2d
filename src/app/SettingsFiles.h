#pragma once

// Tolmira.ini, Read.ini and Qdrfonts.ini under exe/. A value is known by its place; values are
// parted by blanks, commas or line ends, and a damaged Tolmira.ini or Read.ini repairs itself
// without a word to the user.

#include "app/Application.h"

namespace veyrant {

// exe/Tolmira.ini.
std::filesystem::path SettingsFile(const Application& app);

// On any failure every value takes its default, the display option is chosen from the screen,
// and the file is written afresh. Preferences.ini is read and written with it.
void LoadSettings(Application& app);
// A failure goes to the caller's handler.
void SaveSettings(const Application& app);

// Whether Tolmira.ini in that folder sets the Guest Mode; read only, so a missing or damaged
// file is no Guest Mode and stays as it is.
bool InGuestMode(const AppFolder& folder);

// Keeps an open request the caller set in memory when the file holds 0 for that flag.
void LoadReadSettings(Application& app);
// A failure is told in a box, and the program goes on.
void SaveReadSettings(const Application& app);

// On a failure the user is told, and the faces this machine has stand in.
void LoadFontNames(Application& app);

} // namespace veyrant
